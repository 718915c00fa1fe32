#include "dialogs/frm_locale.h"

namespace morvel::dialogs {

// IN PROGRESS: the editor is being written on the dialogs branch.
frmLocale::frmLocale(view::Prompter& prompter, view::ModalHost& modalHost)
    : view::Form("frmLocale")
    , m_prompter(prompter)
    , m_modalHost(modalHost) {}
frmLocale::~frmLocale() = default;
void frmLocale::ShowForm(std::shared_ptr<morvel::FieldDef> poFieldDef) {
    m_fieldDef = std::move(poFieldDef);
}

} // namespace morvel::dialogs
