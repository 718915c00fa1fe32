// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "testing/scripted_modal_host.h"

#include "view/form.h"

namespace morvel::testkit {

void ScriptedModalHost::showModal(view::Form& form) {
    ++m_shown;
    form.opened();
    if (m_script)
        m_script(form);
    form.close();
}

} // namespace morvel::testkit
