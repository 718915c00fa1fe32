#include "control/morvel.h"

namespace morvel::control {

// Link, database, sub table and sub link settings, stored as keyed properties of the field.
// IN PROGRESS: bodies are being written on the control-edit branch.

void Morvel::txtTable_Change() {}
void Morvel::txtIDField_Change() {}
void Morvel::txtDispField_Change() {}
void Morvel::txtSQL_Change() {}
void Morvel::txtConnStr_Change() {}
void Morvel::txtLinkTableName_Change() {}
void Morvel::cboLinkTableName_Change() {}
void Morvel::cboLinkTableName_Click() {}
void Morvel::txtLinkIDField_Change() {}
void Morvel::txtLinkDisplayField_Change() {}
void Morvel::txtLinkSelect_Change() {}
void Morvel::txtCoreFilter_Change() {}
void Morvel::txtAdditionalFilter_Change() {}
void Morvel::txtOrderField_Change() {}
void Morvel::txtObjectType_Change() {}
void Morvel::chkLinkParent_Click() {}
void Morvel::txtSubTable_Change() {}
void Morvel::txtSubTableFieldID_Change() {}
void Morvel::cboSubTable_Click() {}
void Morvel::txtSubLinkTable_LostFocus() {}
void Morvel::txtSubLinkPIDField_LostFocus() {}
void Morvel::txtSubLinkDisplayName_LostFocus() {}
void Morvel::txtSubLinkOrderBy_LostFocus() {}
void Morvel::cboLinkFields_Click() {}
void Morvel::LoadSubTableList() {}
void Morvel::LoadLinkTableList() {}

} // namespace morvel::control
