// morvel-designer: designs the fields of the tables kept in a Morvel database.
#include "designer_window.h"
#include "screenshots.h"
#include "store/sample_schema.h"
#include "store/schema_database.h"
#include "store/store_error.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTextStream>
#include <filesystem>
#include <memory>

namespace {

// Exit codes: 0 done, 1 a mistake on the command line, 2 the database or table cannot be used,
// 3 a screenshot could not be written, 4 a window was asked for and there is no display.
constexpr int kUsageError = 1;
constexpr int kDatabaseError = 2;
constexpr int kScreenshotError = 3;
constexpr int kNoDisplay = 4;

bool hasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

// What the command line asks for needs no window of its own: help, the version, screenshots.
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

// Tells the person what went wrong: on stderr, and in a message box when there is a window to
// show it in.
int fail(int code, const QString& message, bool interactive) {
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << message << "\n";
    if (interactive)
        QMessageBox::critical(nullptr, QApplication::applicationDisplayName(), message);
    return code;
}

QString defaultDatabasePath() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(folder);
    return QDir(folder).filePath(QStringLiteral("sample.morvel"));
}

} // namespace

int main(int argc, char** argv) {
    // Without a display Qt cannot start its usual platform: draw off screen what needs no window,
    // and say what to do instead of failing inside Qt.
    if (!hasDisplay()) {
        if (!needsNoWindow(argc, argv)) {
            QTextStream(stderr) << "morvel-designer: there is no display to show the window on. "
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

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Designs the fields of the tables kept in a Morvel database. Without "
                       "--db it opens a sample database in your data folder, made on first run."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption dbOption(QStringLiteral("db"),
                                      QStringLiteral("The Morvel database to open; a missing file "
                                                     "is created with the sample tables."),
                                      QStringLiteral("PATH"));
    const QCommandLineOption tableOption(QStringLiteral("table"),
                                         QStringLiteral("The table to open first."),
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
                    QStringLiteral("unexpected argument \"%1\"; see --help.")
                        .arg(parser.positionalArguments().first()),
                    false);

    const bool interactive = !parser.isSet(screenshotOption) && !parser.isSet(allOption);
    const QString path = parser.isSet(dbOption) ? parser.value(dbOption) : defaultDatabasePath();

    std::shared_ptr<morvel::SchemaDatabase> database;
    QDir().mkpath(QFileInfo(path).absolutePath());
    try {
        database =
            std::make_shared<morvel::SchemaDatabase>(std::filesystem::path(path.toStdString()));
        if (database->created())
            morvel::writeSampleSchema(*database);
    } catch (const morvel::Error& error) {
        return fail(kDatabaseError, QString::fromUtf8(error.what()), interactive);
    }

    morvel::app::DesignerWindow window(database);
    const QString table =
        parser.isSet(tableOption) ? parser.value(tableOption) : window.firstTable();
    try {
        if (!table.isEmpty() && !window.openTable(table))
            return fail(kDatabaseError,
                        QStringLiteral("the database %1 has no table \"%2\".").arg(path, table),
                        interactive);
    } catch (const morvel::Error& error) {
        return fail(kDatabaseError, QString::fromUtf8(error.what()), interactive);
    }

    window.resize(window.sizeHint().expandedTo(QSize(960, 720)));
    window.show();
    if (parser.isSet(screenshotOption))
        return morvel::app::writeScreenshot(window, parser.value(screenshotOption))
                   ? 0
                   : kScreenshotError;
    if (parser.isSet(allOption))
        return morvel::app::writeAllScreenshots(window, parser.value(allOption)) ? 0
                                                                                 : kScreenshotError;
    return QApplication::exec();
}
