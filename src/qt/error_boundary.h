// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <exception>
#include <stdexcept>
#include <utility>

class QWidget;

namespace morvel::qt {

// A failure as the person reads it: plain words, and whether it was the person's mistake (shown
// with the information icon) or a fault of the program (the critical icon).
struct PersonMessage {
    QString text;
    bool mistake = false;
};

// Words a failure for the person. A library error that says what it is about (a list and the key
// that was taken there, say) is worded from that; a refused field name and a missing selection
// carry a message written for the person already; everything else is a fault, told in general
// words. No control name, key or exception class ever reaches the text.
PersonMessage personMessage(const std::exception& error);

// Shows a failure that an event handler let through to the person, as a message box over the
// context's window, and writes its technical details to stderr. The box opens once the current
// event is done, so that it cannot disturb the focus change or mouse press that raised it.
void showError(QWidget* context, const std::exception& error);

// The binding's event boundary: runs a user action on the headless model and turns any failure
// into a message for the person; the application keeps running. False when it failed.
template <typename Action> bool guarded(QWidget* context, Action&& action) {
    try {
        std::forward<Action>(action)();
        return true;
    } catch (const std::exception& error) {
        showError(context, error);
    } catch (...) {
        showError(context, std::runtime_error("a failure that is not an exception"));
    }
    return false;
}

} // namespace morvel::qt
