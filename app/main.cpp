// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// morvel-designer: designs the fields of the tables kept in a Morvel database.
#include "command_line.h"
#include "table_commands.h"

#include <QApplication>
#include <QTextStream>
#include <iostream>

int main(int argc, char** argv) {
    using namespace morvel::app;
    // export, import and diff are for scripts: no Qt application, no display.
    if (isTableCommand(argc, argv))
        return runTableCommand(std::vector<std::string>(argv + 1, argv + argc), std::cout,
                               std::cerr);
    // Without a display Qt cannot start its usual platform: draw off screen what needs no window,
    // and say what to do instead of failing inside Qt.
    if (!hasDisplay()) {
        if (!needsNoWindow(argc, argv)) {
            QTextStream(stderr) << "morvel-designer: There is no display to show the window on. "
                                   "Run it on a desktop, or write a picture of it with "
                                   "--screenshot FILE.\n";
            return kNoDisplay;
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Morvel"));
    QApplication::setApplicationName(QStringLiteral("morvel-designer"));
    QApplication::setApplicationDisplayName(QStringLiteral("Morvel Designer"));
    QApplication::setApplicationVersion(QStringLiteral(MORVEL_VERSION));
    return runDesigner(app);
}
