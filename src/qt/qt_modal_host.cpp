// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/qt_modal_host.h"

#include "qt/error_boundary.h"
#include "qt/form_binding.h"
#include "qt/qt_prompter.h"
#include "view/form.h"

#include <QDialog>
#include <algorithm>

namespace morvel::qt {

void QtModalHost::showModal(view::Form& form) {
    QDialog dialog(m_parent ? m_parent->window() : nullptr);
    if (m_parent)
        dialog.setFont(m_parent->font());
    FormBinding binding(form, dialog, FormBinding::RootSize::FollowsForm);
    // Wide enough for its whole title; a fixed design keeps its height.
    dialog.resize(std::max(dialog.width(), widthForTitle(dialog.windowTitle())), dialog.height());
    // A form that lays itself out on Resize can grow; any other keeps its design size.
    if (form.Resize.empty())
        dialog.setFixedSize(dialog.size());
    else
        dialog.setMinimumSize(dialog.size());
    Connection closed = form.Closed.connect([&dialog] { dialog.done(QDialog::Accepted); });
    form.opened();
    if (m_hook)
        m_hook(dialog);
    if (form.isOpen())
        dialog.exec();
    closed.disconnect();
    // The window was closed by the person rather than by the form's own code.
    if (form.isOpen())
        guarded(m_parent, [&] { form.close(); });
}

} // namespace morvel::qt
