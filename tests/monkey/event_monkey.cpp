// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "monkey/event_monkey.h"

#include <QApplication>
#include <QMainWindow>
#include <QTest>
#include <QWheelEvent>
#include <array>
#include <utility>

namespace morvel::monkey {

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

} // namespace

EventMonkey::EventMonkey(QWidget& mainWindow, quint32 seed)
    : m_mainWindow(&mainWindow)
    , m_random(seed) {}

void EventMonkey::playOne() {
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

QWidget* EventMonkey::target() const {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return m_mainWindow;
}

QWidget* EventMonkey::randomWidgetIn(QWidget& top) {
    std::vector<QWidget*> shown{&top};
    for (QWidget* child : top.findChildren<QWidget*>())
        if (child->isVisible() && child->isEnabled() && child->width() > 0 && child->height() > 0)
            shown.push_back(child);
    return shown[m_random.bounded(static_cast<quint32>(shown.size()))];
}

QPoint EventMonkey::randomPointIn(const QWidget& widget) {
    return {static_cast<int>(m_random.bounded(static_cast<quint32>(std::max(1, widget.width())))),
            static_cast<int>(m_random.bounded(static_cast<quint32>(std::max(1, widget.height()))))};
}

QString EventMonkey::randomText() {
    QString text;
    const quint32 words = 1 + m_random.bounded(3U);
    for (quint32 i = 0; i < words; ++i)
        text += kWords[m_random.bounded(static_cast<quint32>(kWords.size()))];
    return text;
}

void EventMonkey::click(QWidget& widget, bool twice) {
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

void EventMonkey::pressKey(QWidget& widget) {
    const bool ctrl = m_random.bounded(4U) == 0;
    const Qt::Key key = ctrl ? kCtrlKeys[m_random.bounded(static_cast<quint32>(kCtrlKeys.size()))]
                             : kKeys[m_random.bounded(static_cast<quint32>(kKeys.size()))];
    note(QStringLiteral("key %1%2")
             .arg(ctrl ? QStringLiteral("Ctrl+") : QString())
             .arg(QKeySequence(key).toString()),
         &widget);
    QTest::keyClick(&widget, key, ctrl ? Qt::ControlModifier : Qt::NoModifier);
}

void EventMonkey::typeText(QWidget& widget) {
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
        // QTest types ASCII only: other letters arrive as a keyboard layout delivers them, a key
        // event that carries the text.
        const QString letter = QString::fromUcs4(reinterpret_cast<const char32_t*>(&codePoint), 1);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, letter);
        QApplication::sendEvent(&widget, &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, letter);
        if (guard)
            QApplication::sendEvent(&widget, &release);
    }
}

void EventMonkey::turnWheel(QWidget& widget) {
    const QPoint at = randomPointIn(widget);
    const int delta = m_random.bounded(2U) == 0 ? 120 : -120;
    note(QStringLiteral("wheel %1 at %2,%3").arg(delta).arg(at.x()).arg(at.y()), &widget);
    QWheelEvent wheel(QPointF(at), QPointF(widget.mapToGlobal(at)), QPoint(), QPoint(0, delta),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &wheel);
}

void EventMonkey::resizeMainWindow() {
    const QSize size(400 + static_cast<int>(m_random.bounded(1000U)),
                     300 + static_cast<int>(m_random.bounded(700U)));
    note(QStringLiteral("resize to %1x%2").arg(size.width()).arg(size.height()), m_mainWindow);
    m_mainWindow->resize(size);
}

void EventMonkey::note(const QString& event, const QWidget* widget) {
    std::string line =
        QStringLiteral("#%1 %2 on %3").arg(m_played).arg(event, describe(widget)).toStdString();
    const std::lock_guard lock(m_logMutex);
    m_log.push_back(std::move(line));
    if (m_log.size() > kLogLength)
        m_log.pop_front();
}

std::string EventMonkey::lastEvents() const {
    // Also called from a crash handler on the thread that may hold the lock: never wait for it.
    const std::unique_lock lock(m_logMutex, std::try_to_lock);
    if (!lock.owns_lock())
        return "(the last events are being written)\n";
    std::string text;
    for (const std::string& line : m_log)
        text += line + '\n';
    return text;
}

} // namespace morvel::monkey
