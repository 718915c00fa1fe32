// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/handler_policy.h"
#include "base/text.h"
#include "control/morvel.h"
#include "fields/field_utility.h"

namespace morvel::control {

// Basic attributes: each handler writes its one value into the current field at once and
// mirrors it into the current row where the list has a column for it. None of them runs while the
// panel is being filled (the wiring sees to that) except the name correction.

namespace {

// The box's text as a whole number, converted the library's tolerant way.
std::int32_t numberIn(const view::TextBox& box) {
    return FieldUtility::ToLong(std::string_view(box.text()));
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

// A field name never begins with a digit. Setting the box's text raises Change again, so a run of
// leading digits goes one per pass; the box is corrected, the field is not touched.
void Morvel::txtName_Change() {
    const std::string_view trimmed = trimBlanks(txtName.text());
    if (trimmed.empty() || !isDigit(trimmed.front()))
        return;
    txtName.setText(std::string(trimmed.substr(1)));
}

// The rename takes the box text untrimmed. A name that the collection already knows (letter case
// ignored, the field's own name included) is undone silently.
void Morvel::txtName_LostFocus() {
    FieldDef& field = currentField();
    const std::string typed = txtName.text();
    if (moFieldDefs && moFieldDefs->find(typed)) {
        txtName.setText(field.Name());
        return;
    }
    field.SetName(typed);
    // The row's text and key follow the name the library actually stored, so that the row still
    // maps back to its field.
    if (!m_currentRow)
        return;
    m_currentRow->setText(field.Name());
    m_currentRow->setKey(field.Name());
}

void Morvel::txtSize_Change() {
    if (!m_currentField)
        return;
    const std::string& typed = txtSize.text();
    setCell("Size", typed);
    m_currentField->SetSize(numberIn(txtSize));
}

void Morvel::txtDisplayName_Change() {
    if (!m_currentField)
        return;
    const std::string& typed = txtDisplayName.text();
    setCell("DisplayName", typed);
    m_currentField->SetDisplayName(typed);
}

void Morvel::txtDescription_Change() {
    skipFailingSteps([&] { currentField().SetDescription(txtDescription.text()); });
}

void Morvel::txtDefault_Change() {
    skipFailingSteps([&] { currentField().SetDefaultValue(txtDefault.text()); });
}

void Morvel::txtCtrlEdit_Change() {
    skipFailingSteps([&] { setCell("CtrlEdit", txtCtrlEdit.text()); },
                     [&] { currentField().SetCtrlEdit(txtCtrlEdit.text()); });
}

// Picking a suggestion raises Click, not Change; leaving the box stores what it shows.
void Morvel::txtCtrlEdit_LostFocus() {
    txtCtrlEdit_Change();
}

void Morvel::txtCtrlReadOnly_Change() {
    skipFailingSteps([&] { setCell("CtrlReadOnly", txtCtrlReadOnly.text()); },
                     [&] { currentField().SetCtrlReadOnly(txtCtrlReadOnly.text()); });
}

void Morvel::txtCtrlReadOnly_LostFocus() {
    txtCtrlReadOnly_Change();
}

void Morvel::txtCtrlList_Change() {
    skipFailingSteps([&] { setCell("CtrlList", txtCtrlList.text()); },
                     [&] { currentField().SetCtrlList(txtCtrlList.text()); });
}

void Morvel::cboValidation_Click() {
    if (m_loading || !m_currentField)
        return;
    const std::int32_t code = cboValidation.itemData(cboValidation.listIndex());
    setCell("Validation", GetValidationName(code));
    m_currentField->SetValidation(code);
}

void Morvel::chkCreateOnDemand_Click() {
    currentField().SetCreateOnDemand(chkCreateOnDemand.value() == 1);
}

// The status filters the linked objects, so only the direct link types keep one.
void Morvel::txtStatus_Change() {
    writeBox(txtStatus);
}

} // namespace morvel::control
