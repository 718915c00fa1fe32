// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/morvel_controls.h"

#include "control/morvel_helpers.h"

#include <string>

namespace morvel::control {

namespace {

using view::ComboBox;
constexpr ComboBox::Style kDropDown = ComboBox::Style::DropDownList;
constexpr ComboBox::Style kEditable = ComboBox::Style::Editable;

// The panels' grid: a column of labels on the left, the boxes to the right of it reaching the
// panel's right edge, one row every 360 twips.
constexpr std::int32_t kRowPitch = 360;
constexpr std::int32_t kBoxHeight = 330;
constexpr std::int32_t kLabelWidth = 1440;
constexpr std::int32_t kLabelOffset = 38;
constexpr std::int32_t kLabelHeight = 255;
constexpr std::int32_t kBoxLeft = kLabelWidth + 120;
// The general page has the most rows; every panel is as high as it.
constexpr std::int32_t kRowCount = 11;
constexpr std::int32_t kPanelHeight = (kRowCount - 1) * kRowPitch + kBoxHeight;
constexpr std::int32_t kMargin = 120;
constexpr std::int32_t kPanelWidth = MorvelControls::kDesignWidth - 2 * kMargin;
// The tab strip's header row, above the panels.
constexpr std::int32_t kTabHeader = 480;

constexpr std::int32_t rowTop(std::int32_t row) {
    return row * kRowPitch;
}

void label(view::Label& control, std::int32_t row, std::string caption) {
    control.setCaption(std::move(caption));
    control.move(0, rowTop(row) + kLabelOffset, kLabelWidth, kLabelHeight);
}

// A box from the label column to the panel's right edge.
void stretched(view::Control& control, std::int32_t row) {
    control.move(kBoxLeft, rowTop(row), kPanelWidth - kBoxLeft, kBoxHeight);
}

void fixed(view::Control& control, std::int32_t row, std::int32_t left, std::int32_t width) {
    control.move(left, rowTop(row), width, kBoxHeight);
}

// Anchored to the panel's right edge.
void rightAnchored(view::Control& control, std::int32_t row, std::int32_t width) {
    control.move(kPanelWidth - width, rowTop(row), width, kBoxHeight);
}

} // namespace

PanelArray::PanelArray(view::Container& parent)
    : m_panels{{{&parent, "pic", 1},
                {&parent, "pic", 2},
                {&parent, "pic", 3},
                {&parent, "pic", 4},
                {&parent, "pic", 5},
                {&parent, "pic", 6},
                {&parent, "pic", 7}}} {}

view::Panel& PanelArray::operator()(std::int32_t index) {
    return m_panels.at(static_cast<std::size_t>(index - 1));
}

const view::Panel& PanelArray::operator()(std::int32_t index) const {
    return m_panels.at(static_cast<std::size_t>(index - 1));
}

MorvelControls::MorvelControls(view::Container& form)
    : lst(&form, "lst")
    , TabStrip(&form, "TabStrip")
    , cmdFind(&form, "cmdFind")
    , cmdFindNext(&form, "cmdFindNext")
    , pic(form)
    , lblName(&pic(1), "lblName")
    , txtName(&pic(1), "txtName")
    , lblDisplayName(&pic(1), "lblDisplayName")
    , txtDisplayName(&pic(1), "txtDisplayName")
    , lblType(&pic(1), "lblType")
    , cboType(&pic(1), "cboType", kDropDown, true)
    , cmdList(&pic(1), "cmdList")
    , lblDescription(&pic(1), "lblDescription")
    , txtDescription(&pic(1), "txtDescription")
    , lblDefault(&pic(1), "lblDefault")
    , txtDefault(&pic(1), "txtDefault")
    , lblSize(&pic(1), "lblSize")
    , txtSize(&pic(1), "txtSize")
    , chkCreateOnDemand(&pic(1), "chkCreateOnDemand")
    , lblCtrlReadOnly(&pic(1), "lblCtrlReadOnly")
    , txtCtrlReadOnly(&pic(1), "txtCtrlReadOnly", kEditable)
    , lblCtrlEdit(&pic(1), "lblCtrlEdit")
    , txtCtrlEdit(&pic(1), "txtCtrlEdit", kEditable)
    , lblCtrlList(&pic(1), "lblCtrlList")
    , txtCtrlList(&pic(1), "txtCtrlList")
    , lblValidation(&pic(1), "lblValidation")
    , cboValidation(&pic(1), "cboValidation", kDropDown, true)
    , cmdLocale(&pic(1), "cmdLocale")
    , lblObjectType(&pic(2), "lblObjectType")
    , txtObjectType(&pic(2), "txtObjectType")
    , lblStatus(&pic(2), "lblStatus")
    , txtStatus(&pic(2), "txtStatus")
    , lblLinkTableName(&pic(2), "lblLinkTableName")
    , cboLinkTableName(&pic(2), "cboLinkTableName", kEditable)
    , txtLinkTableName(&pic(2), "txtLinkTableName")
    , lblLinkIDField(&pic(2), "lblLinkIDField")
    , txtLinkIDField(&pic(2), "txtLinkIDField")
    , lblLinkDisplayField(&pic(2), "lblLinkDisplayField")
    , txtLinkDisplayField(&pic(2), "txtLinkDisplayField")
    , lblLinkSelect(&pic(2), "lblLinkSelect")
    , txtLinkSelect(&pic(2), "txtLinkSelect")
    , lblCoreFilter(&pic(2), "lblCoreFilter")
    , txtCoreFilter(&pic(2), "txtCoreFilter")
    , lblAdditionalFilter(&pic(2), "lblAdditionalFilter")
    , txtAdditionalFilter(&pic(2), "txtAdditionalFilter")
    , lblOrderField(&pic(2), "lblOrderField")
    , txtOrderField(&pic(2), "txtOrderField")
    , chkLinkParent(&pic(2), "chkLinkParent")
    , lblConnStr(&pic(3), "lblConnStr")
    , txtConnStr(&pic(3), "txtConnStr")
    , lblTable(&pic(3), "lblTable")
    , txtTable(&pic(3), "txtTable")
    , lblIDField(&pic(3), "lblIDField")
    , txtIDField(&pic(3), "txtIDField")
    , lblDispField(&pic(3), "lblDispField")
    , txtDispField(&pic(3), "txtDispField")
    , lblSQL(&pic(3), "lblSQL")
    , txtSQL(&pic(3), "txtSQL")
    , lblSubTable(&pic(4), "lblSubTable")
    , cboSubTable(&pic(4), "cboSubTable", kDropDown)
    , txtSubTable(&pic(4), "txtSubTable")
    , lblSubTableFieldID(&pic(4), "lblSubTableFieldID")
    , txtSubTableFieldID(&pic(4), "txtSubTableFieldID")
    , lblLinkFields(&pic(5), "lblLinkFields")
    , cboLinkFields(&pic(5), "cboLinkFields", kDropDown)
    , lblSubLinkTable(&pic(5), "lblSubLinkTable")
    , txtSubLinkTable(&pic(5), "txtSubLinkTable")
    , lblSubLinkPIDField(&pic(5), "lblSubLinkPIDField")
    , txtSubLinkPIDField(&pic(5), "txtSubLinkPIDField")
    , lblSubLinkDisplayName(&pic(5), "lblSubLinkDisplayName")
    , txtSubLinkDisplayName(&pic(5), "txtSubLinkDisplayName")
    , lblSubLinkOrderBy(&pic(5), "lblSubLinkOrderBy")
    , txtSubLinkOrderBy(&pic(5), "txtSubLinkOrderBy")
    , lblSignatureHash(&pic(6), "lblSignatureHash")
    , cboSignatureHash(&pic(6), "cboSignatureHash", kDropDown)
    , lblSignatureKeyLen(&pic(6), "lblSignatureKeyLen")
    , cboSignatureKeyLen(&pic(6), "cboSignatureKeyLen", kDropDown)
    , lblSignatureFields(&pic(6), "lblSignatureFields")
    , txtSignatureFields(&pic(6), "txtSignatureFields")
    , lblEncryption(&pic(7), "lblEncryption")
    , cboEncryption(&pic(7), "cboEncryption", kDropDown)
    , lblEncryptionKeyLen(&pic(7), "lblEncryptionKeyLen")
    , cboEncryptionKeyLen(&pic(7), "cboEncryptionKeyLen", kDropDown) {
    // The form: the list on top, the tab strip below it, the panels over its client area.
    constexpr std::int32_t listHeight = kDesignHeight - kPanelHeight - 720;
    constexpr std::int32_t tabTop = listHeight + kMargin;
    lst.move(0, 0, kDesignWidth, listHeight);
    lst.setFontName("Tahoma");
    lst.addColumn("Name", "Field Name", 2540);
    lst.addColumn("Type", "Field Type", 2540);
    lst.addColumn("Size", "Size", 1058);
    lst.addColumn("DisplayName", "Display Name", 7056);
    lst.addColumn("Validation", "Validation", 2540);
    lst.addColumn("CtrlReadOnly", "Ctrl Read Only", 2540);
    lst.addColumn("CtrlEdit", "Control Edit", 2540);
    lst.addColumn("CtrlList", "Control List", 2540);

    TabStrip.move(0, tabTop, kDesignWidth, kDesignHeight - tabTop);
    TabStrip.add(1, "Properties");
    TabStrip.add(2, "Link Properties");

    // The find buttons sit at the right end of the tab strip's header row.
    cmdFindNext.setCaption("Find Next");
    cmdFindNext.move(kDesignWidth - kMargin - 1080, tabTop + 60, 1080, kBoxHeight);
    cmdFind.setCaption("Find...");
    cmdFind.move(cmdFindNext.left() - 60 - 1080, tabTop + 60, 1080, kBoxHeight);

    for (std::int32_t i = 1; i <= PanelArray::kCount; ++i)
        pic(i).move(kMargin, tabTop + kTabHeader, kPanelWidth, kPanelHeight);

    // Panel 1: the general page.
    label(lblName, 0, "Name");
    stretched(txtName, 0);
    label(lblDisplayName, 1, "Display Name");
    stretched(txtDisplayName, 1);
    label(lblType, 2, "Type");
    stretched(cboType, 2);
    cmdList.setCaption("Values...");
    rightAnchored(cmdList, 2, 1080);
    cmdList.setVisible(false);
    label(lblDescription, 3, "Description");
    stretched(txtDescription, 3);
    label(lblDefault, 4, "Default");
    stretched(txtDefault, 4);
    chkCreateOnDemand.setCaption("Create on demand");
    rightAnchored(chkCreateOnDemand, 5, 1800);
    label(lblSize, 5, "Size");
    fixed(txtSize, 5, kBoxLeft, chkCreateOnDemand.left() - kMargin - kBoxLeft);
    lblSize.setVisible(false);
    txtSize.setVisible(false);
    label(lblCtrlReadOnly, 6, "Read Only Control");
    stretched(txtCtrlReadOnly, 6);
    label(lblCtrlEdit, 7, "Edit Control");
    stretched(txtCtrlEdit, 7);
    label(lblCtrlList, 8, "List Control");
    stretched(txtCtrlList, 8);
    label(lblValidation, 9, "Validation");
    stretched(cboValidation, 9);
    cmdLocale.setCaption("Locales...");
    rightAnchored(cmdLocale, 10, 1080);

    // Panel 2: a link to a table (object type 0) shows the table rows; a link to objects shows
    // the filter rows in the same places instead.
    label(lblObjectType, 0, "Object Type");
    fixed(txtObjectType, 0, kBoxLeft, 900);
    rightAnchored(txtStatus, 0, 900);
    lblStatus.setCaption("Status");
    lblStatus.move(txtStatus.left() - 60 - 600, rowTop(0) + kLabelOffset, 600, kLabelHeight);
    label(lblLinkTableName, 1, "Table");
    stretched(cboLinkTableName, 1);
    stretched(txtLinkTableName, 1);
    label(lblLinkIDField, 2, "ID Field");
    stretched(txtLinkIDField, 2);
    label(lblLinkDisplayField, 3, "Display Field");
    stretched(txtLinkDisplayField, 3);
    label(lblLinkSelect, 4, "Select");
    stretched(txtLinkSelect, 4);
    label(lblCoreFilter, 1, "Core Filter");
    stretched(txtCoreFilter, 1);
    label(lblAdditionalFilter, 2, "Additional Filter");
    stretched(txtAdditionalFilter, 2);
    label(lblOrderField, 3, "Order Field");
    stretched(txtOrderField, 3);
    chkLinkParent.setCaption("Parent Mode");
    fixed(chkLinkParent, 5, kBoxLeft, 1800);
    setAllVisible({&lblCoreFilter, &txtCoreFilter, &lblAdditionalFilter, &txtAdditionalFilter,
                   &lblOrderField, &txtOrderField, &lblStatus, &txtStatus, &cboLinkTableName},
                  false);

    // Panel 3: ADO links and the directory types.
    label(lblConnStr, 0, "Connection");
    stretched(txtConnStr, 0);
    label(lblTable, 1, "Table");
    stretched(txtTable, 1);
    label(lblIDField, 2, "ID Field");
    stretched(txtIDField, 2);
    label(lblDispField, 3, "Display Field");
    stretched(txtDispField, 3);
    label(lblSQL, 4, "SQL");
    stretched(txtSQL, 4);

    // Panel 4: the combo box when a database lists the tables, the number box otherwise.
    label(lblSubTable, 0, "Sub Table");
    stretched(cboSubTable, 0);
    cboSubTable.setVisible(false);
    fixed(txtSubTable, 0, kBoxLeft, 1200);
    label(lblSubTableFieldID, 1, "Field ID");
    fixed(txtSubTableFieldID, 1, kBoxLeft, 1200);

    // Panel 5.
    label(lblLinkFields, 0, "Link Field");
    stretched(cboLinkFields, 0);
    label(lblSubLinkTable, 1, "Table");
    stretched(txtSubLinkTable, 1);
    label(lblSubLinkPIDField, 2, "Parent ID Field");
    stretched(txtSubLinkPIDField, 2);
    label(lblSubLinkDisplayName, 3, "Display Name");
    stretched(txtSubLinkDisplayName, 3);
    label(lblSubLinkOrderBy, 4, "Order By");
    stretched(txtSubLinkOrderBy, 4);

    // Panel 6.
    label(lblSignatureHash, 0, "Hash");
    stretched(cboSignatureHash, 0);
    label(lblSignatureKeyLen, 1, "Key Length");
    stretched(cboSignatureKeyLen, 1);
    label(lblSignatureFields, 2, "Fields");
    stretched(txtSignatureFields, 2);

    // Panel 7.
    label(lblEncryption, 0, "Cipher");
    stretched(cboEncryption, 0);
    label(lblEncryptionKeyLen, 1, "Key Length");
    stretched(cboEncryptionKeyLen, 1);
}

} // namespace morvel::control
