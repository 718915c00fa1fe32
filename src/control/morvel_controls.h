// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/combo_box.h"
#include "view/container.h"
#include "view/list_view.h"
#include "view/simple_controls.h"
#include "view/tab_strip.h"
#include "view/text_box.h"

#include <array>
#include <cstdint>

namespace morvel::control {

// The panel array pic(1) to pic(7).
class PanelArray {
public:
    explicit PanelArray(view::Container& parent);
    view::Panel& operator()(std::int32_t index);
    const view::Panel& operator()(std::int32_t index) const;
    static constexpr std::int32_t kCount = 7;

private:
    std::array<view::Panel, kCount> m_panels;
};

// Every control of the designer by its name, with its caption and design position in twips.
// The field list on top; below it the tab strip, and over the tab strip's client area the seven
// panels: 1 general, 2 link, 3 database (ADO / directory), 4 sub table, 5 sub link, 6 signature,
// 7 encryption.
struct MorvelControls {
    explicit MorvelControls(view::Container& form);

    // The size the form is designed at; the layout keeps the design heights of the panels.
    static constexpr std::int32_t kDesignWidth = 6000;
    static constexpr std::int32_t kDesignHeight = 7200;

    view::ListView lst;
    view::TabStrip TabStrip;
    view::Button cmdFind;
    view::Button cmdFindNext;
    PanelArray pic;

    // Panel 1: the general page.
    view::Label lblName;
    view::TextBox txtName;
    view::Label lblDisplayName;
    view::TextBox txtDisplayName;
    view::Label lblType;
    view::ComboBox cboType;
    view::Button cmdList;
    view::Label lblDescription;
    view::TextBox txtDescription;
    view::Label lblDefault;
    view::TextBox txtDefault;
    view::Label lblSize;
    view::TextBox txtSize;
    view::CheckBox chkCreateOnDemand;
    view::Label lblCtrlReadOnly;
    view::ComboBox txtCtrlReadOnly;
    view::Label lblCtrlEdit;
    view::ComboBox txtCtrlEdit;
    view::Label lblCtrlList;
    view::TextBox txtCtrlList;
    view::Label lblValidation;
    view::ComboBox cboValidation;
    view::Button cmdLocale;

    // Panel 2: "Link" and "Multiple Link".
    view::Label lblObjectType;
    view::TextBox txtObjectType;
    view::Label lblStatus;
    view::TextBox txtStatus;
    view::Label lblLinkTableName;
    view::ComboBox cboLinkTableName;
    view::TextBox txtLinkTableName;
    view::Label lblLinkIDField;
    view::TextBox txtLinkIDField;
    view::Label lblLinkDisplayField;
    view::TextBox txtLinkDisplayField;
    view::Label lblLinkSelect;
    view::TextBox txtLinkSelect;
    view::Label lblCoreFilter;
    view::TextBox txtCoreFilter;
    view::Label lblAdditionalFilter;
    view::TextBox txtAdditionalFilter;
    view::Label lblOrderField;
    view::TextBox txtOrderField;
    view::CheckBox chkLinkParent;

    // Panel 3: ADO links and the directory types.
    view::Label lblConnStr;
    view::TextBox txtConnStr;
    view::Label lblTable;
    view::TextBox txtTable;
    view::Label lblIDField;
    view::TextBox txtIDField;
    view::Label lblDispField;
    view::TextBox txtDispField;
    view::Label lblSQL;
    view::TextBox txtSQL;

    // Panel 4: "Sub Table".
    view::Label lblSubTable;
    view::ComboBox cboSubTable;
    view::TextBox txtSubTable;
    view::Label lblSubTableFieldID;
    view::TextBox txtSubTableFieldID;

    // Panel 5: "Sub Link".
    view::Label lblLinkFields;
    view::ComboBox cboLinkFields;
    view::Label lblSubLinkTable;
    view::TextBox txtSubLinkTable;
    view::Label lblSubLinkPIDField;
    view::TextBox txtSubLinkPIDField;
    view::Label lblSubLinkDisplayName;
    view::TextBox txtSubLinkDisplayName;
    view::Label lblSubLinkOrderBy;
    view::TextBox txtSubLinkOrderBy;

    // Panel 6: "Signature".
    view::Label lblSignatureHash;
    view::ComboBox cboSignatureHash;
    view::Label lblSignatureKeyLen;
    view::ComboBox cboSignatureKeyLen;
    view::Label lblSignatureFields;
    view::TextBox txtSignatureFields;

    // Panel 7: "Encryption".
    view::Label lblEncryption;
    view::ComboBox cboEncryption;
    view::Label lblEncryptionKeyLen;
    view::ComboBox cboEncryptionKeyLen;
};

} // namespace morvel::control
