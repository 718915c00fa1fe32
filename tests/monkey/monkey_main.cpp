// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// Plays seeded random input into a real morvel-designer window for a while, and fails on a crash,
// a sanitizer report, a hang (no event processed for 10 s) or a database that fails its
// integrity check. Prints the seed and the last events on every failure.
//
//   morvel_monkey --seed N [--seconds S] [--db FILE]
#include "designer_window.h"
#include "monkey/event_monkey.h"
#include "store/sample_schema.h"
#include "store/schema_database.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTemporaryDir>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <sqlite3.h>
#include <string>
#include <thread>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_UNDEFINED__)
#include <sanitizer/common_interface_defs.h>
#define MORVEL_MONKEY_SANITIZED 1
#endif

namespace {

constexpr auto kHangLimit = std::chrono::seconds(10);
constexpr int kHangExit = 3;
constexpr int kIntegrityExit = 4;
constexpr int kSkipped = 77;

morvel::monkey::EventMonkey* g_monkey = nullptr;
quint32 g_seed = 0;

void printLastEvents(const char* why) {
    std::fprintf(stderr, "monkey: %s with seed %u; the last events:\n%s", why, g_seed,
                 g_monkey ? g_monkey->lastEvents().c_str() : "(none yet)\n");
    std::fflush(stderr);
}

std::int64_t nowMs() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// "ok" when SQLite finds the file sound, else its first complaint.
std::string integrityOf(const std::string& path) {
    sqlite3* db = nullptr;
    std::string verdict = "cannot be opened";
    if (sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(db, "PRAGMA integrity_check", -1, &statement, nullptr) ==
                SQLITE_OK &&
            sqlite3_step(statement) == SQLITE_ROW)
            verdict = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
        sqlite3_finalize(statement);
    }
    sqlite3_close(db);
    return verdict;
}

} // namespace

int main(int argc, char** argv) {
    // A real window needs a display; without one the run is skipped, not failed.
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        std::fprintf(stderr, "monkey: no DISPLAY; skipped\n");
        return kSkipped;
    }
    QApplication app(argc, argv);
    // A Quit among the random clicks closes the window; the monkey shows it again and goes on.
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setOrganizationName(QStringLiteral("MorvelMonkey"));
    QApplication::setApplicationName(QStringLiteral("morvel-monkey"));
    QCommandLineParser parser;
    const QCommandLineOption seedOption(QStringLiteral("seed"), QStringLiteral("Seed."),
                                        QStringLiteral("N"), QStringLiteral("1"));
    const QCommandLineOption secondsOption(QStringLiteral("seconds"), QStringLiteral("Run time."),
                                           QStringLiteral("S"), QStringLiteral("60"));
    const QCommandLineOption dbOption(QStringLiteral("db"), QStringLiteral("Database file."),
                                      QStringLiteral("FILE"));
    parser.addOptions({seedOption, secondsOption, dbOption});
    parser.process(app);
    g_seed = parser.value(seedOption).toUInt();
    const int seconds = parser.value(secondsOption).toInt();

    QTemporaryDir scratch;
    const std::string path = parser.isSet(dbOption)
                                 ? parser.value(dbOption).toStdString()
                                 : scratch.filePath(QStringLiteral("monkey.morvel")).toStdString();
    auto database = std::make_shared<morvel::SchemaDatabase>(std::filesystem::path(path));
    if (database->created())
        morvel::writeSampleSchema(*database);

    auto window = std::make_unique<morvel::app::DesignerWindow>(database);
    window->openTable(window->firstTable());
    window->resize(1000, 760);
    window->show();

    morvel::monkey::EventMonkey monkey(*window, g_seed);
    g_monkey = &monkey;
#ifdef MORVEL_MONKEY_SANITIZED
    __sanitizer_set_death_callback([] { printLastEvents("a sanitizer stopped the run"); });
#endif
    std::fprintf(stderr, "monkey: seed %u for %d s on %s\n", g_seed, seconds, path.c_str());

    // The heartbeat proves that events are processed, also inside a modal dialog's own loop.
    std::atomic<std::int64_t> lastBeat{nowMs()};
    std::atomic<bool> finished{false};
    QTimer heartbeat;
    QObject::connect(&heartbeat, &QTimer::timeout, [&] { lastBeat = nowMs(); });
    heartbeat.start(100);
    std::thread watchdog([&] {
        while (!finished) {
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
            if (nowMs() - lastBeat > std::chrono::milliseconds(kHangLimit).count()) {
                printLastEvents("no event was processed for 10 s");
                std::_Exit(kHangExit);
            }
        }
    });

    // Each event is played by a timer of its own, armed before the event: a timer whose handler
    // opened a modal dialog would not fire again inside the dialog's loop, a new one does.
    bool playing = true;
    std::function<void()> playNext = [&] {
        if (!playing)
            return;
        QTimer::singleShot(5, playNext);
        monkey.playOne();
    };
    QTimer::singleShot(5, playNext);
    // Ends every event loop, the ones of open dialogs too.
    QTimer::singleShot(std::chrono::seconds(seconds), [&] {
        playing = false;
        QApplication::exit(0);
    });
    QApplication::exec();
    // A dialog's loop that was ended may leave the window to finish what it was doing.
    QApplication::processEvents();
    finished = true;
    watchdog.join();
    g_monkey = nullptr;
    window.reset();
    database.reset();

    const std::string verdict = integrityOf(path);
    if (verdict != "ok") {
        std::fprintf(stderr, "monkey: the database fails its integrity check (%s) with seed %u\n",
                     verdict.c_str(), g_seed);
        return kIntegrityExit;
    }
    std::fprintf(stderr, "monkey: seed %u, %d events, database sound\n", g_seed, monkey.played());
    return 0;
}
