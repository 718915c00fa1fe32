#include "qt/error_boundary.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace morvel::qt {

void showError(QWidget* context, const QString& message) {
    QPointer<QWidget> guard(context);
    QTimer::singleShot(0, qApp, [guard, message] {
        QWidget* parent = guard ? guard->window() : nullptr;
        QMessageBox::critical(parent, QApplication::applicationDisplayName(), message);
    });
}

} // namespace morvel::qt
