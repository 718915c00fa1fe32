// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/morvel.h"

#include "base/error.h"
#include "base/handler_policy.h"
#include "control/morvel_helpers.h"
#include "fields/field_utility.h"

#include <functional>

namespace morvel::control {

namespace {
constexpr std::string_view kCanModifyExistingKey = "CME";
} // namespace

Morvel::Morvel(view::Prompter& prompter, view::ModalHost& modalHost)
    : view::Form("Morvel")
    , MorvelControls(static_cast<view::Container&>(*this))
    , m_prompter(prompter)
    , m_modalHost(modalHost) {
    move(0, 0, kDesignWidth, kDesignHeight);
    wireEvents();

    FillTypeList(cboType);
    FillValidationList(cboValidation);
    FillCipherList(cboEncryption);
    FillHashList(cboSignatureHash);
    enableBasicControls(false);
    // Type pages are added per field; only the general tab stays.
    TabStrip.remove(2);
    TabStrip_Click();
}

Morvel::~Morvel() = default;

template <void (Morvel::*Handler)()> void Morvel::unlessLoading() {
    if (!m_panelLoading)
        (this->*Handler)();
}

void Morvel::wireEvents() {
    // The third argument names the step in the undo history as a person would: "Type in
    // Display Name" (of the field shown). Handlers that write nothing of a field go unnamed.
    auto on = [this](Signal<>& event, void (Morvel::*handler)(), std::string what = {}) {
        m_wiring += event.connect(
            [this, handler, what = std::move(what)] { runAsOwnAction(handler, what); });
    };
    auto typeIn = [](const view::Label& label) { return "Type in " + label.caption(); };
    auto change = [](const std::string& caption) { return "Change " + caption; };

    // Showing a field is not editing it: the handlers that write to the field or mirror into its
    // row are wired through unlessLoading, which does not run them while the panel is being
    // filled. The plain ones write nothing, or go on with their other work during a load.
    on(lst.Click, &Morvel::lst_Click);
    m_wiring += lst.ItemClick.connect([this](view::ListItem& item) { lst_ItemClick(item); });
    on(TabStrip.Click, &Morvel::TabStrip_Click);
    on(Resize, &Morvel::UserControl_Resize);
    for (std::int32_t i = 1; i <= PanelArray::kCount; ++i)
        m_wiring += pic(i).Resize.connect([this, i] { pic_Resize(i); });
    on(cmdFind.Click, &Morvel::cmdFind_Click);
    on(cmdFindNext.Click, &Morvel::cmdFindNext_Click);

    // General page.
    on(txtName.Change, &Morvel::txtName_Change, typeIn(lblName));
    on(txtName.LostFocus, &Morvel::unlessLoading<&Morvel::txtName_LostFocus>, typeIn(lblName));
    on(txtDisplayName.Change, &Morvel::unlessLoading<&Morvel::txtDisplayName_Change>,
       typeIn(lblDisplayName));
    on(cboType.Click, &Morvel::cboType_Click, std::string("Change type"));
    on(cmdList.Click, &Morvel::cmdList_Click, std::string("Edit list values"));
    on(txtDescription.Change, &Morvel::unlessLoading<&Morvel::txtDescription_Change>,
       typeIn(lblDescription));
    on(txtDefault.Change, &Morvel::unlessLoading<&Morvel::txtDefault_Change>, typeIn(lblDefault));
    on(txtSize.Change, &Morvel::unlessLoading<&Morvel::txtSize_Change>, typeIn(lblSize));
    on(chkCreateOnDemand.Click, &Morvel::unlessLoading<&Morvel::chkCreateOnDemand_Click>,
       change(chkCreateOnDemand.caption()));
    on(txtCtrlReadOnly.Change, &Morvel::unlessLoading<&Morvel::txtCtrlReadOnly_Change>,
       typeIn(lblCtrlReadOnly));
    on(txtCtrlReadOnly.LostFocus, &Morvel::unlessLoading<&Morvel::txtCtrlReadOnly_LostFocus>,
       typeIn(lblCtrlReadOnly));
    on(txtCtrlEdit.Change, &Morvel::unlessLoading<&Morvel::txtCtrlEdit_Change>,
       typeIn(lblCtrlEdit));
    on(txtCtrlEdit.LostFocus, &Morvel::unlessLoading<&Morvel::txtCtrlEdit_LostFocus>,
       typeIn(lblCtrlEdit));
    on(txtCtrlList.Change, &Morvel::unlessLoading<&Morvel::txtCtrlList_Change>,
       typeIn(lblCtrlList));
    on(cboValidation.Click, &Morvel::unlessLoading<&Morvel::cboValidation_Click>,
       change(lblValidation.caption()));
    on(cmdLocale.Click, &Morvel::cmdLocale_Click, std::string("Edit locales"));

    // Link page.
    on(txtObjectType.Change, &Morvel::txtObjectType_Change, typeIn(lblObjectType));
    on(txtStatus.Change, &Morvel::unlessLoading<&Morvel::txtStatus_Change>, typeIn(lblStatus));
    on(cboLinkTableName.Change, &Morvel::unlessLoading<&Morvel::cboLinkTableName_Change>,
       typeIn(lblLinkTableName));
    on(cboLinkTableName.Click, &Morvel::unlessLoading<&Morvel::cboLinkTableName_Click>,
       change(lblLinkTableName.caption()));
    on(txtLinkTableName.Change, &Morvel::unlessLoading<&Morvel::txtLinkTableName_Change>,
       typeIn(lblLinkTableName));
    on(txtLinkIDField.Change, &Morvel::unlessLoading<&Morvel::txtLinkIDField_Change>,
       typeIn(lblLinkIDField));
    on(txtLinkDisplayField.Change, &Morvel::unlessLoading<&Morvel::txtLinkDisplayField_Change>,
       typeIn(lblLinkDisplayField));
    on(txtLinkSelect.Change, &Morvel::unlessLoading<&Morvel::txtLinkSelect_Change>,
       typeIn(lblLinkSelect));
    on(txtCoreFilter.Change, &Morvel::unlessLoading<&Morvel::txtCoreFilter_Change>,
       typeIn(lblCoreFilter));
    on(txtAdditionalFilter.Change, &Morvel::unlessLoading<&Morvel::txtAdditionalFilter_Change>,
       typeIn(lblAdditionalFilter));
    on(txtOrderField.Change, &Morvel::unlessLoading<&Morvel::txtOrderField_Change>,
       typeIn(lblOrderField));
    on(chkLinkParent.Click, &Morvel::unlessLoading<&Morvel::chkLinkParent_Click>,
       change(chkLinkParent.caption()));

    // Database page.
    on(txtConnStr.Change, &Morvel::unlessLoading<&Morvel::txtConnStr_Change>, typeIn(lblConnStr));
    on(txtTable.Change, &Morvel::unlessLoading<&Morvel::txtTable_Change>, typeIn(lblTable));
    on(txtIDField.Change, &Morvel::unlessLoading<&Morvel::txtIDField_Change>, typeIn(lblIDField));
    on(txtDispField.Change, &Morvel::unlessLoading<&Morvel::txtDispField_Change>,
       typeIn(lblDispField));
    on(txtSQL.Change, &Morvel::unlessLoading<&Morvel::txtSQL_Change>, typeIn(lblSQL));

    // Sub table and sub link pages.
    on(cboSubTable.Click, &Morvel::unlessLoading<&Morvel::cboSubTable_Click>,
       change(lblSubTable.caption()));
    on(txtSubTable.Change, &Morvel::unlessLoading<&Morvel::txtSubTable_Change>,
       typeIn(lblSubTable));
    on(txtSubTableFieldID.Change, &Morvel::unlessLoading<&Morvel::txtSubTableFieldID_Change>,
       typeIn(lblSubTableFieldID));
    on(cboLinkFields.Click, &Morvel::unlessLoading<&Morvel::cboLinkFields_Click>,
       change(lblLinkFields.caption()));
    on(txtSubLinkTable.LostFocus, &Morvel::unlessLoading<&Morvel::txtSubLinkTable_LostFocus>,
       typeIn(lblSubLinkTable));
    on(txtSubLinkPIDField.LostFocus, &Morvel::unlessLoading<&Morvel::txtSubLinkPIDField_LostFocus>,
       typeIn(lblSubLinkPIDField));
    on(txtSubLinkDisplayName.LostFocus,
       &Morvel::unlessLoading<&Morvel::txtSubLinkDisplayName_LostFocus>,
       typeIn(lblSubLinkDisplayName));
    on(txtSubLinkOrderBy.LostFocus, &Morvel::unlessLoading<&Morvel::txtSubLinkOrderBy_LostFocus>,
       typeIn(lblSubLinkOrderBy));

    // Signature and encryption pages.
    on(cboSignatureHash.Click, &Morvel::cboSignatureHash_Click, change(lblSignatureHash.caption()));
    on(cboSignatureKeyLen.Click, &Morvel::unlessLoading<&Morvel::cboSignatureKeyLen_Click>,
       change(lblSignatureKeyLen.caption()));
    on(txtSignatureFields.LostFocus, &Morvel::unlessLoading<&Morvel::txtSignatureFields_LostFocus>,
       typeIn(lblSignatureFields));
    on(cboEncryption.Click, &Morvel::cboEncryption_Click, change(lblEncryption.caption()));
    on(cboEncryptionKeyLen.Click, &Morvel::unlessLoading<&Morvel::cboEncryptionKeyLen_Click>,
       change(lblEncryptionKeyLen.caption()));
}

void Morvel::leaveFocusedBox() {
    view::Control* focusedControl = focused();
    if (!focusedControl || focusedControl == &lst)
        return;
    // The host's change goes ahead whatever the pending edit meets: an edit the library refuses
    // (an empty name, say) is dropped, as the panel is about to show another field.
    skipFailingSteps([&] {
        if (!lst.setFocus())
            clearFocus();
    });
}

void Morvel::SetFieldDefs(FieldDefsPtr poFieldDefs) {
    leaveFocusedBox();
    // Dropping the old subscriptions first: from now on only the new collection is heard.
    m_collectionWiring.clear();
    moFieldDefs = std::move(poFieldDefs);
    if (moFieldDefs) {
        m_collectionWiring += moFieldDefs->AfterAdd.connect(
            [this](const FieldDefPtr& field) { moFieldDefs_AfterAdd(field); });
        m_collectionWiring += moFieldDefs->AfterRemove.connect(
            [this](const FieldDefPtr& field) { moFieldDefs_AfterRemove(field); });
        followCollection();
    }
    FillList();
    indexRows();
    ShowSelectedRow();
}

void Morvel::UserControl_ReadProperties(const PropertyBag& bag) {
    const Value stored = bag.ReadProperty(kCanModifyExistingKey, false);
    m_canModifyExisting = stored.kind() == Value::Kind::Boolean ? stored.asBoolean()
                                                                : FieldUtility::ToLong(stored) != 0;
}

void Morvel::UserControl_WriteProperties(PropertyBag& bag) const {
    bag.WriteProperty(kCanModifyExistingKey, m_canModifyExisting, false);
}

morvel::FieldDef& Morvel::currentField() const {
    if (!m_currentField)
        throw NoCurrentFieldError();
    return *m_currentField;
}

void Morvel::setCell(std::string_view columnKey, const std::string& text) {
    if (!m_currentRow)
        throw InvalidOperationError("No row of the field list is current.");
    // "Name" is the row's own text; every other column is a sub item.
    if (columnKey == "Name") {
        m_currentRow->setText(text);
        return;
    }
    m_currentRow->setSubItem(lst.columnIndex(columnKey) - 1, text);
}

void Morvel::enableBasicControls(bool enabled) {
    setAllEnabled({&txtDefault, &txtDescription, &txtDisplayName, &txtName, &txtSize, &cboType,
                   &cboValidation, &lblDefault, &lblDescription, &lblDisplayName, &lblName,
                   &lblSize, &lblType, &cmdList, &cmdLocale},
                  enabled);
}

void Morvel::setCurrent(FieldDefPtr field, view::ListItem* row) {
    m_currentRow = row;
    if (field == m_currentField)
        return;
    m_currentField = std::move(field);
    currentFieldChanged.notify(m_currentField);
}

} // namespace morvel::control
