#include "control/morvel.h"

namespace morvel::control {

// Basic attributes: each handler writes its one value into the current field at once and
// mirrors it into the current row where the list has a column for it.
// IN PROGRESS: bodies are being written on the control-edit branch.

void Morvel::txtName_Change() {}
void Morvel::txtName_LostFocus() {}
void Morvel::txtSize_Change() {}
void Morvel::txtDisplayName_Change() {}
void Morvel::txtDescription_Change() {}
void Morvel::txtDefault_Change() {}
void Morvel::txtCtrlEdit_Change() {}
void Morvel::txtCtrlEdit_LostFocus() {}
void Morvel::txtCtrlReadOnly_Change() {}
void Morvel::txtCtrlReadOnly_LostFocus() {}
void Morvel::txtCtrlList_Change() {}
void Morvel::cboValidation_Click() {}
void Morvel::chkCreateOnDemand_Click() {}
void Morvel::txtStatus_Change() {}

} // namespace morvel::control
