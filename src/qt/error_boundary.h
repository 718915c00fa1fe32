#pragma once

#include <QString>
#include <exception>
#include <utility>

class QWidget;

namespace morvel::qt {

// Shows a failure that an event handler let through to the person, as a critical message box
// over the context's window. The box opens once the current event is done, so that it cannot
// disturb the focus change or mouse press that raised the failure.
void showError(QWidget* context, const QString& message);

// The binding's event boundary: runs a user action on the headless model and turns any failure
// into a message for the person; the application keeps running. False when it failed.
template <typename Action> bool guarded(QWidget* context, Action&& action) {
    try {
        std::forward<Action>(action)();
        return true;
    } catch (const std::exception& error) {
        showError(context, QString::fromUtf8(error.what()));
    } catch (...) {
        showError(context, QStringLiteral("An unexpected error occurred."));
    }
    return false;
}

} // namespace morvel::qt
