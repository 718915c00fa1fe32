#include "dialogs/frm_edit_list.h"

namespace morvel::dialogs {

// IN PROGRESS: the editor is being written on the dialogs branch.
frmEditList::frmEditList(view::Prompter& prompter)
    : view::Form("frmEditList")
    , m_prompter(prompter) {}
frmEditList::~frmEditList() = default;
void frmEditList::LoadData() {}

} // namespace morvel::dialogs
