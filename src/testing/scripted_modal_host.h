// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/modal_host.h"

#include <functional>

namespace morvel::testkit {

// Runs a script while the form is "shown"; the form is open during the script. A script that
// leaves the form open ends the modal show as the window's own close button would.
class ScriptedModalHost : public view::ModalHost {
public:
    using Script = std::function<void(view::Form&)>;
    void setScript(Script script) { m_script = std::move(script); }
    void showModal(view::Form& form) override;
    int shown() const { return m_shown; }

private:
    Script m_script;
    int m_shown = 0;
};

} // namespace morvel::testkit
