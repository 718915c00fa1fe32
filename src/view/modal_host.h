#pragma once

#include <functional>

namespace morvel::view {

class Form;

// Shows a form modally and returns when it is closed. The Qt front end runs a real dialog; tests
// run a script that drives the form and closes it.
class ModalHost {
public:
    virtual ~ModalHost() = default;
    virtual void showModal(Form& form) = 0;
};

// Runs a script while the form is "shown"; the form is open during the script. A script that
// leaves the form open ends the modal show as the window's own close button would.
class ScriptedModalHost : public ModalHost {
public:
    using Script = std::function<void(Form&)>;
    void setScript(Script script) { m_script = std::move(script); }
    void showModal(Form& form) override;
    int shown() const { return m_shown; }

private:
    Script m_script;
    int m_shown = 0;
};

} // namespace morvel::view
