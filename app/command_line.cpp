// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "command_line.h"

#include "designer_window.h"
#include "qt/qt_prompter.h"
#include "screenshots.h"
#include "store/sample_schema.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTextStream>
#include <filesystem>

namespace morvel::app {

namespace {

// Tells the person what went wrong: on stderr, and in a message box when there is a window to
// show it in.
int fail(int code, const QString& message, bool interactive) {
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << message << "\n";
    if (interactive)
        qt::QtPrompter().messageBox(
            {message.toStdString(), view::MsgBoxButtons::OK, view::MsgBoxIcon::Exclamation, ""});
    return code;
}

// A note for the status bar, also written to stderr for whoever runs it from a script.
void note(DesignerWindow& window, const QString& text) {
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << text << "\n";
    window.showNote(text);
}

QString defaultDatabasePath() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(folder);
    return QDir(folder).filePath(QStringLiteral("sample.morvel"));
}

} // namespace

bool hasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

bool needsNoWindow(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]).section(QLatin1Char('='), 0, 0);
        for (const char* option : {"-h", "--help", "-v", "--version", "--screenshot", "-screenshot",
                                   "--screenshot-all", "-screenshot-all"})
            if (argument == QLatin1String(option))
                return true;
    }
    return false;
}

int runDesigner(QApplication& app) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Designs the fields of the tables kept in a Morvel database. Without "
                       "--db it opens a sample database in your data folder, made on first run."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption dbOption(QStringLiteral("db"),
                                      QStringLiteral("The Morvel database to open; a missing (or "
                                                     "empty) file is made a new database with the "
                                                     "sample tables."),
                                      QStringLiteral("PATH"));
    const QCommandLineOption tableOption(
        QStringLiteral("table"),
        QStringLiteral("The table to open first; when there is none of that name, the first."),
        QStringLiteral("NAME"));
    const QCommandLineOption screenshotOption(
        QStringLiteral("screenshot"),
        QStringLiteral("Load, draw the window into a PNG file and exit; needs no display."),
        QStringLiteral("FILE"));
    const QCommandLineOption allOption(
        QStringLiteral("screenshot-all"),
        QStringLiteral("Write the documentation screenshots into a folder and exit."),
        QStringLiteral("DIR"));
    parser.addOptions({dbOption, tableOption, screenshotOption, allOption});
    parser.process(app);
    if (!parser.positionalArguments().isEmpty())
        return fail(kUsageError,
                    QStringLiteral("Unexpected argument \"%1\"; see --help.")
                        .arg(parser.positionalArguments().first()),
                    false);

    const bool interactive = !parser.isSet(screenshotOption) && !parser.isSet(allOption);
    const QString path = parser.isSet(dbOption) ? parser.value(dbOption) : defaultDatabasePath();

    const QFileInfo before(path);
    const bool wasEmptyFile = before.isFile() && before.size() == 0;
    std::shared_ptr<SchemaDatabase> database;
    QDir().mkpath(before.absolutePath());
    try {
        database = std::make_shared<SchemaDatabase>(std::filesystem::path(path.toStdString()));
        if (database->created())
            writeSampleSchema(*database);
    } catch (const Error& error) {
        return fail(kDatabaseError, QString::fromUtf8(error.what()), interactive);
    }

    DesignerWindow window(database);
    if (database->created())
        note(window, wasEmptyFile
                         ? QStringLiteral("The empty file %1 was made a new Morvel database with "
                                          "the sample tables.")
                               .arg(path)
                         : QStringLiteral("Made the new Morvel database %1 with the sample tables.")
                               .arg(path));
    QString table = window.firstTable();
    try {
        if (parser.isSet(tableOption)) {
            const QString asked = parser.value(tableOption);
            if (window.openTable(asked))
                table.clear();
            else
                note(window, QStringLiteral("There is no table \"%1\" in %2; showing the first "
                                            "table instead.")
                                 .arg(asked, path));
        }
        if (!table.isEmpty())
            window.openTable(table);
    } catch (const Error& error) {
        return fail(kDatabaseError, QString::fromUtf8(error.what()), interactive);
    }

    window.resize(window.sizeHint().expandedTo(QSize(960, 720)));
    window.show();
    if (parser.isSet(screenshotOption))
        return writeScreenshot(window, parser.value(screenshotOption)) ? 0 : kScreenshotError;
    if (parser.isSet(allOption))
        return writeAllScreenshots(window, parser.value(allOption)) ? 0 : kScreenshotError;
    return QApplication::exec();
}

} // namespace morvel::app
