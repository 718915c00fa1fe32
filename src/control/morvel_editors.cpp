// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/morvel.h"
#include "dialogs/frm_edit_list.h"
#include "dialogs/frm_locale.h"

namespace morvel::control {

// The two editor dialogs, opened for the current field through the host's modal hook. Neither
// reloads the panel afterwards: the list values editor writes only the list values, and the
// locale editor only the per-locale texts, none of which the panel shows.

void Morvel::cmdList_Click() {
    if (!m_currentField)
        return;
    dialogs::frmEditList form(m_prompter);
    form.SetFieldDef(m_currentField);
    form.LoadData();
    m_modalHost.showModal(form);
}

// Showing the form is the locale editor's own business.
void Morvel::cmdLocale_Click() {
    if (!m_currentField)
        return;
    dialogs::frmLocale form(m_prompter, m_modalHost);
    form.ShowForm(m_currentField);
}

} // namespace morvel::control
