// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// Plays seeded random input into a real morvel-designer window for a while, and fails on a crash,
// a sanitizer report, a hang (no event processed for 10 s) or a database that fails its
// integrity check. Prints the seed and the last events on every failure.
//
//   morvel_monkey --seed N [--seconds S] [--db FILE]
#include "designer_window.h"
#include "reliability/storage_faults.h"
#include "store/sample_schema.h"
#include "store/schema_database.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QMainWindow>
#include <QPointer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_UNDEFINED__)
#include <sanitizer/common_interface_defs.h>
#define MORVEL_MONKEY_SANITIZED 1
#endif

namespace {

constexpr std::size_t kLogLength = 40;

// Keys a person presses, alone or with Ctrl; the shortcuts of the designer among them. Quitting
// is left out: a closed main window is shown again, but a quit would end the run early.
constexpr std::array kKeys = {
    Qt::Key_Down,   Qt::Key_Up,     Qt::Key_Left,     Qt::Key_Right,     Qt::Key_Home,
    Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Tab,       Qt::Key_Backtab,
    Qt::Key_Return, Qt::Key_Escape, Qt::Key_Delete,   Qt::Key_Backspace, Qt::Key_Space,
    Qt::Key_F3,     Qt::Key_F2,     Qt::Key_A,        Qt::Key_1,         Qt::Key_0,
};
constexpr std::array kCtrlKeys = {Qt::Key_F,    Qt::Key_S, Qt::Key_Z, Qt::Key_Y, Qt::Key_C,
                                  Qt::Key_V,    Qt::Key_X, Qt::Key_D, Qt::Key_A, Qt::Key_Up,
                                  Qt::Key_Down, Qt::Key_N, Qt::Key_R};

// Pieces of text: names, numbers, blanks, punctuation, accented and wide letters, an emoji.
const std::array<QString, 12> kWords = {
    QStringLiteral("Total"),      QStringLiteral("x"),          QStringLiteral("42"),
    QStringLiteral("-7"),         QStringLiteral(" "),          QStringLiteral("a b"),
    QStringLiteral("Größe"),      QStringLiteral("naïve"),      QStringLiteral("価格"),
    QStringLiteral("\U0001F600"), QStringLiteral("9999999999"), QStringLiteral("_;'\"%")};

QString describe(const QWidget* widget) {
    if (!widget)
        return QStringLiteral("(none)");
    const QString name = widget->objectName();
    return QString::fromLatin1(widget->metaObject()->className()) +
           (name.isEmpty() ? QString() : QStringLiteral(" '") + name + QLatin1Char('\''));
}

// Plays random input into a running application as a person at the keyboard and mouse would,
// from one seed: clicks and double clicks on whatever is shown, keys and shortcuts to whatever has
// the focus, typed text (also outside ASCII), wheel turns, resizes of the main window. Modal
// dialogs and menus get the input while they are open, so they are driven too.
class EventMonkey {
public:
    EventMonkey(QWidget& mainWindow, quint32 seed)
        : m_mainWindow(&mainWindow)
        , m_random(seed) {}

    // Plays one random event; safe to call again from inside a dialog that the last one opened.
    void playOne() {
        if (!m_mainWindow)
            return;
        if (!m_mainWindow->isVisible())
            m_mainWindow->show();
        QWidget* top = target();
        QWidget* widget = randomWidgetIn(*top);
        ++m_played;
        const quint32 pick = m_random.bounded(100U);
        if (pick < 30)
            return click(*widget, pick < 5);
        if (pick < 60) {
            QWidget* focus = QApplication::focusWidget();
            return pressKey(focus && focus->window() == top ? *focus : *top);
        }
        if (pick < 80) {
            QWidget* focus = QApplication::focusWidget();
            return typeText(focus && focus->window() == top ? *focus : *widget);
        }
        if (pick < 92)
            return turnWheel(*widget);
        if (pick < 96 && top == m_mainWindow)
            return resizeMainWindow();
        note(QStringLiteral("Ctrl+S"), top);
        QTest::keyClick(top, Qt::Key_S, Qt::ControlModifier);
    }
    int played() const { return m_played; }
    // The last events played, oldest first, one a line; safe from another thread and from a
    // crash handler.
    std::string lastEvents() const {
        // Also called from a crash handler on the thread that may hold the lock: never wait for it.
        const std::unique_lock lock(m_logMutex, std::try_to_lock);
        if (!lock.owns_lock())
            return "(the last events are being written)\n";
        std::string text;
        for (const std::string& line : m_log)
            text += line + '\n';
        return text;
    }

private:
    QWidget* target() const {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup;
        if (QWidget* modal = QApplication::activeModalWidget())
            return modal;
        return m_mainWindow;
    }
    QWidget* randomWidgetIn(QWidget& top) {
        std::vector<QWidget*> shown{&top};
        for (QWidget* child : top.findChildren<QWidget*>())
            if (child->isVisible() && child->isEnabled() && child->width() > 0 &&
                child->height() > 0)
                shown.push_back(child);
        return shown[m_random.bounded(static_cast<quint32>(shown.size()))];
    }
    QPoint randomPointIn(const QWidget& widget) {
        return {
            static_cast<int>(m_random.bounded(static_cast<quint32>(std::max(1, widget.width())))),
            static_cast<int>(m_random.bounded(static_cast<quint32>(std::max(1, widget.height()))))};
    }
    QString randomText() {
        QString text;
        const quint32 words = 1 + m_random.bounded(3U);
        for (quint32 i = 0; i < words; ++i)
            text += kWords[m_random.bounded(static_cast<quint32>(kWords.size()))];
        return text;
    }
    void click(QWidget& widget, bool twice) {
        const QPoint at = randomPointIn(widget);
        note(QStringLiteral("%1 at %2,%3")
                 .arg(twice ? QStringLiteral("double click") : QStringLiteral("click"))
                 .arg(at.x())
                 .arg(at.y()),
             &widget);
        QPointer<QWidget> guard(&widget);
        if (twice) {
            // A double click arrives as press, release, double click, release, as from a mouse.
            QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
            if (guard)
                QTest::mouseDClick(&widget, Qt::LeftButton, {}, at);
            return;
        }
        QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
    }
    void pressKey(QWidget& widget) {
        const bool ctrl = m_random.bounded(4U) == 0;
        const Qt::Key key =
            ctrl ? kCtrlKeys[m_random.bounded(static_cast<quint32>(kCtrlKeys.size()))]
                 : kKeys[m_random.bounded(static_cast<quint32>(kKeys.size()))];
        note(QStringLiteral("key %1%2")
                 .arg(ctrl ? QStringLiteral("Ctrl+") : QString())
                 .arg(QKeySequence(key).toString()),
             &widget);
        QTest::keyClick(&widget, key, ctrl ? Qt::ControlModifier : Qt::NoModifier);
    }
    void typeText(QWidget& widget) {
        const QString text = randomText();
        note(QStringLiteral("type \"%1\"").arg(text), &widget);
        QPointer<QWidget> guard(&widget);
        for (const uint codePoint : text.toUcs4()) {
            if (!guard)
                return;
            if (codePoint < 0x80) {
                QTest::keyClick(&widget, static_cast<char>(codePoint));
                continue;
            }
            // QTest types ASCII only: other letters arrive as a keyboard layout delivers them, a
            // key event that carries the text.
            const QString letter =
                QString::fromUcs4(reinterpret_cast<const char32_t*>(&codePoint), 1);
            QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, letter);
            QApplication::sendEvent(&widget, &press);
            QKeyEvent release(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, letter);
            if (guard)
                QApplication::sendEvent(&widget, &release);
        }
    }
    void turnWheel(QWidget& widget) {
        const QPoint at = randomPointIn(widget);
        const int delta = m_random.bounded(2U) == 0 ? 120 : -120;
        note(QStringLiteral("wheel %1 at %2,%3").arg(delta).arg(at.x()).arg(at.y()), &widget);
        QWheelEvent wheel(QPointF(at), QPointF(widget.mapToGlobal(at)), QPoint(), QPoint(0, delta),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &wheel);
    }
    void resizeMainWindow() {
        const QSize size(400 + static_cast<int>(m_random.bounded(1000U)),
                         300 + static_cast<int>(m_random.bounded(700U)));
        note(QStringLiteral("resize to %1x%2").arg(size.width()).arg(size.height()), m_mainWindow);
        m_mainWindow->resize(size);
    }
    void note(const QString& event, const QWidget* widget) {
        std::string line =
            QStringLiteral("#%1 %2 on %3").arg(m_played).arg(event, describe(widget)).toStdString();
        const std::lock_guard lock(m_logMutex);
        m_log.push_back(std::move(line));
        if (m_log.size() > kLogLength)
            m_log.pop_front();
    }

    QPointer<QWidget> m_mainWindow;
    QRandomGenerator m_random;
    int m_played = 0;
    mutable std::mutex m_logMutex;
    std::deque<std::string> m_log;
};

constexpr auto kHangLimit = std::chrono::seconds(10);
constexpr int kHangExit = 3;
constexpr int kIntegrityExit = 4;
constexpr int kSkipped = 77;

EventMonkey* g_monkey = nullptr;
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

    EventMonkey monkey(*window, g_seed);
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

    const std::string verdict = morvel::reliability::integrityCheck(path);
    if (verdict != "ok") {
        std::fprintf(stderr, "monkey: the database fails its integrity check (%s) with seed %u\n",
                     verdict.c_str(), g_seed);
        return kIntegrityExit;
    }
    std::fprintf(stderr, "monkey: seed %u, %d events, database sound\n", g_seed, monkey.played());
    return 0;
}
