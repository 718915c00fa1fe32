// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "control/field_row_index.h"
#include "control/morvel_controls.h"
#include "control/property_bag.h"
#include "fields/database.h"
#include "fields/field_defs.h"
#include "view/form.h"
#include "view/modal_host.h"
#include "view/prompter.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace morvel::catalogue {
struct SettingBox;
} // namespace morvel::catalogue

namespace morvel::control {

// The field designer: a list of a table's fields and a tabbed property panel for the selected
// one. Every edit is written at once into the FieldDef shown; the host decides when to save.
//
// The host provides the prompter (message and input boxes) and the modal host (the two editor
// dialogs). The controls are public so that a front end can mirror them and tests can drive them
// as a person would; the handlers run from the controls' events.
class Morvel : public view::Form, public MorvelControls {
public:
    using FieldDefsPtr = std::shared_ptr<morvel::FieldDefs>;
    using FieldDefPtr = std::shared_ptr<morvel::FieldDef>;
    using DatabasePtr = std::shared_ptr<morvel::Database>;

    Morvel(view::Prompter& prompter, view::ModalHost& modalHost);
    ~Morvel() override;

    // Public properties.
    const FieldDefsPtr& FieldDefs() const { return moFieldDefs; }
    void SetFieldDefs(FieldDefsPtr poFieldDefs);
    const DatabasePtr& Database() const { return m_database; }
    void SetDatabase(DatabasePtr poDatabase) { m_database = std::move(poDatabase); }
    bool CanModifyExisting() const { return m_canModifyExisting; }
    void SetCanModifyExisting(bool pbCanModifyExisting) {
        m_canModifyExisting = pbCanModifyExisting;
    }
    const FieldDefPtr& SelectedFieldDef() const { return m_currentField; }

    // Persisted settings ("CME").
    void UserControl_ReadProperties(const PropertyBag& bag);
    void UserControl_WriteProperties(PropertyBag& bag) const;

    // Raised whenever another field (or none) becomes the current field.
    Signal<const FieldDefPtr&> currentFieldChanged;

    // For front ends: true while the control only shows a field (fills the panel, or moves a
    // combo's selection by code). What its logic does meanwhile is not the person's doing: a
    // focus move then is not a place for the person's next keystroke.
    bool showingField() const { return m_loading || m_panelLoading; }

    // Choice lists from the catalogues.
    void FillTypeList(view::ComboBox& list);
    std::string GetTypeName(std::int32_t code) const;
    void FillValidationList(view::ComboBox& list);
    std::string GetValidationName(std::int32_t code) const;
    void FillEditTemplates(std::int32_t code);
    void FillReadOnlyTemplates(std::int32_t code);
    void FillCipherList(view::ComboBox& list);
    void FillHashList(view::ComboBox& list);
    void FillCipherKeyLengths(view::ComboBox& list, std::int32_t cipherCode);
    void FillHashKeyLengths(view::ComboBox& list, std::int32_t hashCode);
    // Selects the first entry with that item data, with the loading flag set so that the
    // combo's click handler does not take the move for an edit.
    void SelectByItemData(view::ComboBox& list, std::int32_t value);

    // Field list.
    void FillList();
    void ShowSelectedRow();
    void moFieldDefs_AfterAdd(const FieldDefPtr& eoFieldDef);
    void moFieldDefs_AfterRemove(const FieldDefPtr& eoFieldDef);
    void lst_ItemClick(view::ListItem& item);
    void lst_Click();

    // Panel loading, type changes and tabs.
    void LoadPanel();
    void cboType_Click();
    void TabStrip_Click();

    // Basic attributes.
    void txtName_Change();
    void txtName_LostFocus();
    void txtSize_Change();
    void txtDisplayName_Change();
    void txtDescription_Change();
    void txtDefault_Change();
    void txtCtrlEdit_Change();
    void txtCtrlEdit_LostFocus();
    void txtCtrlReadOnly_Change();
    void txtCtrlReadOnly_LostFocus();
    void txtCtrlList_Change();
    void cboValidation_Click();
    void chkCreateOnDemand_Click();
    void txtStatus_Change();
    void cmdList_Click();
    void cmdLocale_Click();

    // Link, database, sub table and sub link settings.
    void txtTable_Change();
    void txtIDField_Change();
    void txtDispField_Change();
    void txtSQL_Change();
    void txtConnStr_Change();
    void txtLinkTableName_Change();
    void cboLinkTableName_Change();
    void cboLinkTableName_Click();
    void txtLinkIDField_Change();
    void txtLinkDisplayField_Change();
    void txtLinkSelect_Change();
    void txtCoreFilter_Change();
    void txtAdditionalFilter_Change();
    void txtOrderField_Change();
    void txtObjectType_Change();
    void chkLinkParent_Click();
    void txtSubTable_Change();
    void txtSubTableFieldID_Change();
    void cboSubTable_Click();
    void txtSubLinkTable_LostFocus();
    void txtSubLinkPIDField_LostFocus();
    void txtSubLinkDisplayName_LostFocus();
    void txtSubLinkOrderBy_LostFocus();
    void cboLinkFields_Click();
    void LoadSubTableList();
    void LoadLinkTableList();

    // Find.
    void cmdFind_Click();
    void cmdFindNext_Click();

    // Encryption and signature.
    void cboEncryption_Click();
    void cboEncryptionKeyLen_Click();
    void cboSignatureHash_Click();
    void cboSignatureKeyLen_Click();
    void txtSignatureFields_LostFocus();

    // The box of a row of catalogue::settingBoxes() (a reference into that table).
    view::Control& settingControl(const catalogue::SettingBox& row) const;

    // Layout.
    void UserControl_Resize();
    void pic_Resize(std::int32_t Index);
    void ArrangeTypeRow();

    // Host entry points beside the specified interface.
    //
    // Makes the field of that name (in any letter case) current as a click on its row would: the
    // focused box is left (so that what was typed is stored into its own field), the row is
    // selected and scrolled into view, the selection routine shows the field and the list keeps the
    // focus. False, changing nothing, when no field of that name is listed.
    bool SelectFieldByName(std::string_view name);

private:
    void wireEvents();
    // Runs a wired handler as the person's action: its writes form one step of origin Person,
    // and the control knows them for its own, so that it does not follow them back. The step is
    // called "<what> of <field>", or "Edit <field>" when what is empty.
    void runAsOwnAction(void (Morvel::*handler)(), std::string_view what);
    // Following the library (morvel_follow.cpp): what others change shows in the rows and, for
    // the current field, in the panel.
    void followCollection();
    void indexRows();
    void followFieldChange(const FieldChange& change);
    void followInsertion(const FieldPlaced& placed);
    void followRemoval(const FieldPlaced& placed);
    void followMove(const FieldMoved& moved);
    view::ListItem* rowOf(const morvel::FieldDef& field) const;
    // Whether the panel shows something of that field: it is current, or the current field's
    // page lists it.
    bool panelShows(const morvel::FieldDef& field, FieldMember member) const;
    // The handler, run unless the panel is being filled; how wireEvents guards writing handlers.
    template <void (Morvel::*Handler)()> void unlessLoading();
    // Leaves the focused box before the host shows another field, so that a box which stores its
    // text on LostFocus stores it into the field it was typed for.
    void leaveFocusedBox();
    // The field shown in the panel; NoCurrentFieldError when there is none.
    morvel::FieldDef& currentField() const;
    // Sets the cell of the current row in the column with that key.
    void setCell(std::string_view columnKey, const std::string& text);
    void enableBasicControls(bool enabled);
    // Makes the field (or none) and its row current, raising currentFieldChanged on a change.
    void setCurrent(FieldDefPtr field, view::ListItem* row);
    // The link page's split between a link to a table (objectType 0) and a link to objects.
    void ShowLinkControlsFor(std::int32_t objectType);
    // Loads the type page of the current field; answers the caption of its tab, "" for none.
    std::string LoadTypePage(morvel::FieldDef& field);
    // Lock of the name, the type and (for pre-existing rows) the encryption settings.
    bool mayModifyCurrentRow() const;
    // Stores what the box shows under the keys its rows in the setting table give for the current
    // field's type; NoCurrentFieldError when there is no current field.
    void writeBox(const view::Control& box);
    // Fills the row's list if it has one, then shows the field's stored setting (or its read
    // default) in the row's box.
    void showSetting(const catalogue::SettingBox& row, const morvel::FieldDef& field);

    view::Prompter& m_prompter;
    view::ModalHost& m_modalHost;
    Connections m_wiring;

    FieldDefsPtr moFieldDefs;
    Connections m_collectionWiring;
    FieldDefPtr m_currentField;
    view::ListItem* m_currentRow = nullptr;
    DatabasePtr m_database;
    std::string m_searchText;
    bool m_canModifyExisting = false;
    // Set only while SelectByItemData moves a combo selection.
    bool m_loading = false;
    // Set while LoadPanel fills the panel: showing a field must not write to it, so the handlers
    // that write are wired not to run meanwhile (see wireEvents).
    bool m_panelLoading = false;
    // Set while a wired handler runs: every write meanwhile is the control's own.
    bool m_ownAction = false;
    // The row of each field, by identity: the row key is the field's name, which others change.
    FieldRowIndex m_rowById;
    std::string m_stepText;
    // The controls of the setting table's rows, in its order.
    mutable std::vector<view::Control*> m_settingControls;
    bool m_subTableListLoaded = false;
    bool m_linkTableListLoaded = false;
};

} // namespace morvel::control
