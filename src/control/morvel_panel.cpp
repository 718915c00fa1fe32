// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/text.h"
#include "catalogue/field_types.h"
#include "catalogue/setting_boxes.h"
#include "control/morvel.h"
#include "control/morvel_helpers.h"
#include "fields/field_utility.h"

#include <string>

namespace morvel::control {

namespace {
constexpr std::string_view kNoModifyTag = ":NOMODIFY:";
} // namespace

bool Morvel::mayModifyCurrentRow() const {
    if (m_canModifyExisting)
        return true;
    return !(m_currentRow && m_currentRow->tag().find(kNoModifyTag) != std::string_view::npos);
}

void Morvel::LoadPanel() {
    // Showing a field is not editing it: the handlers that the filling raises write nothing.
    ScopedFlag panelLoading(m_panelLoading);
    const FieldDefPtr field = m_currentField;

    if (!field) {
        enableBasicControls(false);
        for (view::TextBox* box :
             {&txtName, &txtSize, &txtDisplayName, &txtDefault, &txtDescription, &txtCtrlList})
            box->setText("");
        txtCtrlReadOnly.setText("");
        txtCtrlEdit.setText("");
        cboType.setListIndex(-1);
        cboValidation.setListIndex(-1);
    } else {
        enableBasicControls(true);
        txtName.setText(field->Name());
        txtSize.setText(std::to_string(field->Size()));
        txtDisplayName.setText(field->DisplayName());
        SelectByItemData(cboType, field->FieldType());
        txtDefault.setText(field->DefaultValue());
        txtDescription.setText(field->Description());
        chkCreateOnDemand.setValue(field->CreateOnDemand() ? 1 : 0);
        // Read-only first: for a sub table it leaves a suggestion in the edit box that the
        // edit fill then clears again.
        FillReadOnlyTemplates(field->FieldType());
        FillEditTemplates(field->FieldType());
        txtCtrlReadOnly.setText(field->CtrlReadOnly());
        txtCtrlEdit.setText(field->CtrlEdit());
        txtCtrlList.setText(field->CtrlList());
        SelectByItemData(cboValidation, field->Validation());
        cmdList.setVisible(false);
        const bool locked = !mayModifyCurrentRow();
        txtName.setLocked(locked);
        cboType.setLocked(locked);
    }

    // Tab 2 belongs to the field's type: the previous field's page goes.
    const std::int32_t selectedTab = TabStrip.selectedIndex();
    if (TabStrip.count() >= 2)
        TabStrip.remove(2);
    if (field) {
        const std::string page = LoadTypePage(*field);
        if (!page.empty()) {
            TabStrip.add(2, page);
            // Moving through the list keeps the user on the type page.
            if (selectedTab == 2)
                TabStrip.setSelectedIndex(2);
        }
        if (catalogue::isEncryptedType(field->FieldType())) {
            const bool locked = !mayModifyCurrentRow();
            cboEncryption.setLocked(locked);
            cboEncryptionKeyLen.setLocked(locked);
        }
    }

    pic_Resize(1);
    TabStrip_Click();
}

std::string Morvel::LoadTypePage(morvel::FieldDef& field) {
    const std::int32_t code = field.FieldType();

    // Only ever shown here; hiding them is the type change's business.
    if (catalogue::hasSize(code))
        setAllVisible({&txtSize, &lblSize}, true);
    if (catalogue::isDirectLinkType(code))
        chkLinkParent.setVisible(code == catalogue::type::Link);
    for (const catalogue::SettingBox& row : catalogue::settingBoxes())
        if (!row.shownKey.empty() && row.types(code))
            showSetting(row, field);
    // Applied last: the object type box's Change may not fire when its text is already the stored
    // one, and the first table look-up shows a table box even for a link to objects.
    if (catalogue::isDirectLinkType(code))
        ShowLinkControlsFor(FieldUtility::ToLong(std::string_view(txtObjectType.text())));
    if (catalogue::isListType(code))
        cmdList.setVisible(true);
    return std::string(catalogue::tabCaption(catalogue::typePage(code)));
}

void Morvel::ShowLinkControlsFor(std::int32_t objectType) {
    // A link to objects is filtered and ordered; a link to a table names its table and columns.
    const bool toObjects = objectType != 0;
    setAllVisible({&lblCoreFilter, &lblAdditionalFilter, &lblOrderField, &lblStatus, &txtCoreFilter,
                   &txtAdditionalFilter, &txtOrderField, &txtStatus},
                  toObjects);
    txtLinkTableName.setVisible(!toObjects && !m_database);
    cboLinkTableName.setVisible(!toObjects && m_database);
    setAllVisible({&txtLinkIDField, &txtLinkDisplayField, &txtLinkSelect, &lblLinkTableName,
                   &lblLinkIDField, &lblLinkDisplayField, &lblLinkSelect},
                  !toObjects);
}

} // namespace morvel::control
