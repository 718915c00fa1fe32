// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/modal_host.h"

#include <QPointer>
#include <QWidget>
#include <functional>

class QDialog;

namespace morvel::qt {

// Shows a headless form (the list values editor, the locale editor) as a modal QDialog whose
// widgets are made with the same binding as the designer's. Returns when the form closes itself
// (Form::Closed) or the person closes the window (its close button or Escape), which closes the
// form.
class QtModalHost : public view::ModalHost {
public:
    explicit QtModalHost(QWidget* parent = nullptr)
        : m_parent(parent) {}

    void showModal(view::Form& form) override;

    // Called with each dialog once it is built and before it runs, for hosts and tests that need
    // to reach it (a screenshot, a scripted person).
    using DialogHook = std::function<void(QDialog&)>;
    void setDialogHook(DialogHook hook) { m_hook = std::move(hook); }

private:
    QPointer<QWidget> m_parent;
    DialogHook m_hook;
};

} // namespace morvel::qt
