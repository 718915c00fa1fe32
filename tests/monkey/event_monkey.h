// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QRandomGenerator>
#include <QString>
#include <QWidget>
#include <deque>
#include <mutex>
#include <string>
#include <vector>

namespace morvel::monkey {

// Plays random input into a running application as a person at the keyboard and mouse would,
// from one seed: clicks and double clicks on whatever is shown, keys and shortcuts to whatever has
// the focus, typed text (also outside ASCII), wheel turns, resizes of the main window. Modal
// dialogs and menus get the input while they are open, so they are driven too.
class EventMonkey : public QObject {
public:
    EventMonkey(QWidget& mainWindow, quint32 seed);

    // Plays one random event; safe to call again from inside a dialog that the last one opened.
    void playOne();
    int played() const { return m_played; }
    // The last events played, oldest first, one a line; safe from another thread and from a
    // crash handler.
    std::string lastEvents() const;

private:
    QWidget* target() const;
    QWidget* randomWidgetIn(QWidget& top);
    QPoint randomPointIn(const QWidget& widget);
    QString randomText();
    void click(QWidget& widget, bool twice);
    void pressKey(QWidget& widget);
    void typeText(QWidget& widget);
    void turnWheel(QWidget& widget);
    void resizeMainWindow();
    void note(const QString& event, const QWidget* widget);

    QPointer<QWidget> m_mainWindow;
    QRandomGenerator m_random;
    int m_played = 0;
    mutable std::mutex m_logMutex;
    std::deque<std::string> m_log;
};

} // namespace morvel::monkey
