#include "view/modal_host.h"

#include "view/form.h"

namespace morvel::view {

void ScriptedModalHost::showModal(Form& form) {
    ++m_shown;
    form.opened();
    if (m_script)
        m_script(form);
    form.close();
}

} // namespace morvel::view
