// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/prompter.h"

#include <QPointer>
#include <QWidget>

namespace morvel::qt {

// The designer's message and input boxes as real modal dialogs over the parent's window: a
// QMessageBox with the request's text, buttons and icon (an empty title is the application's
// name), and a QInputDialog whose Cancel answers the empty text.
class QtPrompter : public view::Prompter {
public:
    explicit QtPrompter(QWidget* parent = nullptr)
        : m_parent(parent) {}

    view::MsgBoxResult messageBox(const view::MessageBoxRequest& request) override;
    std::string inputBox(const view::InputBoxRequest& request) override;

private:
    QWidget* parentWindow() const;
    QPointer<QWidget> m_parent;
};

// The width a dialog needs so that the window manager shows its whole title.
int widthForTitle(QString title);

} // namespace morvel::qt
