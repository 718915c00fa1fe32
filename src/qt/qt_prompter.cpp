// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/qt_prompter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGridLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QSpacerItem>
#include <QStyle>

namespace morvel::qt {

namespace {

QString toQString(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString titleOf(const std::string& title) {
    return title.empty() ? QApplication::applicationDisplayName() : toQString(title);
}

QMessageBox::Icon iconOf(view::MsgBoxIcon icon) {
    switch (icon) {
    case view::MsgBoxIcon::Critical:
        return QMessageBox::Critical;
    case view::MsgBoxIcon::Question:
        return QMessageBox::Question;
    case view::MsgBoxIcon::Exclamation:
        return QMessageBox::Warning;
    case view::MsgBoxIcon::Information:
        return QMessageBox::Information;
    case view::MsgBoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(view::MsgBoxButtons buttons) {
    switch (buttons) {
    case view::MsgBoxButtons::OKCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case view::MsgBoxButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case view::MsgBoxButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case view::MsgBoxButtons::YesNoOKCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Ok | QMessageBox::Cancel;
    case view::MsgBoxButtons::OK:
        break;
    }
    return QMessageBox::Ok;
}

} // namespace

QWidget* QtPrompter::parentWindow() const {
    if (m_parent)
        return m_parent->window();
    return QApplication::activeWindow();
}

// The platform adds the application's name to the title; the window manager draws it in a
// larger bold font, beside the frame's icon and buttons.
int widthForTitle(QString title) {
    const QString application = QApplication::applicationDisplayName();
    if (!application.isEmpty() && title != application)
        title += QStringLiteral(" \u2014 ") + application;
    QFont font = QApplication::font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.2);
    return QFontMetrics(font).horizontalAdvance(title) + 160;
}

view::MsgBoxResult QtPrompter::messageBox(const view::MessageBoxRequest& request) {
    QMessageBox box(iconOf(request.icon), titleOf(request.title), toQString(request.prompt),
                    buttonsOf(request.buttons), parentWindow());
    // Closing the box with Escape or its close button answers its last button: No for a
    // question without Cancel, as a person who does not want to go on would.
    if (request.buttons == view::MsgBoxButtons::YesNo)
        box.setEscapeButton(QMessageBox::No);
    std::size_t next = 0;
    for (const QMessageBox::StandardButton which :
         {QMessageBox::Yes, QMessageBox::No, QMessageBox::Ok, QMessageBox::Cancel})
        if (QAbstractButton* button = box.button(which);
            button && next < request.buttonTexts.size())
            button->setText(toQString(request.buttonTexts[next++]));
    // A message box sizes itself to its text; a spacer across its grid keeps the title whole.
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(new QSpacerItem(widthForTitle(box.windowTitle()), 0), grid->rowCount(), 0, 1,
                      grid->columnCount());
    switch (box.exec()) {
    case QMessageBox::Yes:
        return view::MsgBoxResult::Yes;
    case QMessageBox::No:
        return view::MsgBoxResult::No;
    case QMessageBox::Ok:
        return view::MsgBoxResult::OK;
    default:
        return request.buttons == view::MsgBoxButtons::OK ? view::MsgBoxResult::OK
                                                          : view::MsgBoxResult::Cancel;
    }
}

std::string QtPrompter::inputBox(const view::InputBoxRequest& request) {
    QInputDialog box(parentWindow());
    box.setWindowTitle(titleOf(request.title));
    box.setLabelText(toQString(request.prompt));
    box.setTextValue(toQString(request.defaultText));
    // The dialog's layout fixes its size from its contents: the text line carries the width.
    if (auto* line = box.findChild<QLineEdit*>())
        line->setMinimumWidth(widthForTitle(box.windowTitle()) -
                              2 * box.style()->pixelMetric(QStyle::PM_LayoutLeftMargin));
    return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}

} // namespace morvel::qt
