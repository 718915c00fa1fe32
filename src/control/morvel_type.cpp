// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/field_types.h"
#include "control/morvel.h"
#include "control/morvel_helpers.h"
#include "fields/field_utility.h"

#include <string>

namespace morvel::control {

namespace {

namespace type = catalogue::type;

// Names that a type forces on its field.
constexpr std::string_view kTenantName = "zrTenant";
constexpr std::string_view kSignatureName = "zrSignature";
constexpr std::string_view kPlaceholderName = "NewField";

} // namespace

void Morvel::cboType_Click() {
    if (!m_loading && m_currentField) {
        const std::int32_t code = cboType.itemData(cboType.listIndex());
        setCell("Type", GetTypeName(code));
        currentField().SetFieldType(code);
        setAllVisible({&txtSize, &lblSize, &cmdList}, false);
        ArrangeTypeRow();
        setAllVisible({&txtConnStr, &txtTable, &txtIDField, &txtDispField, &txtSQL, &lblConnStr,
                       &lblTable, &lblIDField, &lblDispField, &lblSQL, &chkLinkParent},
                      false);
        const std::int32_t selectedTab = TabStrip.selectedIndex();
        if (TabStrip.count() >= 2)
            TabStrip.remove(2);
        setCell("Size", "");

        const std::int32_t newType = currentField().FieldType();
        const catalogue::TypePage page = catalogue::typePage(newType);
        if (catalogue::hasSize(newType)) {
            setAllVisible({&txtSize, &lblSize}, true);
            setCell("Size", std::to_string(FieldUtility::ToLong(std::string_view(txtSize.text()))));
        }
        if (page != catalogue::TypePage::None) {
            // The link page is captioned "Database" here; the panel load that follows gives it its
            // own caption.
            TabStrip.add(2, catalogue::isDirectLinkType(newType)
                                ? std::string("Database")
                                : std::string(catalogue::tabCaption(page)));
            // A user who was looking at the type page keeps looking at it.
            if (selectedTab == 2)
                TabStrip.setSelectedIndex(2);
            TabStrip_Click();
            if (catalogue::isDirectLinkType(newType) || catalogue::isAdoLinkType(newType)) {
                setAllVisible({&txtConnStr, &txtTable, &txtIDField, &txtDispField, &txtSQL,
                               &lblConnStr, &lblTable, &lblIDField, &lblDispField, &lblSQL},
                              true);
                chkLinkParent.setVisible(newType == type::Link);
            } else if (catalogue::isDirectoryType(newType)) {
                setAllVisible({&txtConnStr, &lblConnStr}, true);
            } else if ((newType == type::SubTable || newType == type::SubLink) &&
                       !m_subTableListLoaded) {
                LoadSubTableList();
            }
            LoadPanel();
        } else if (catalogue::isListType(newType)) {
            cmdList.setVisible(true);
            ArrangeTypeRow();
        } else if (!catalogue::hasSize(newType)) {
            setCell("Size", "");
        }

        // Reserved names: a tenant and a signature field have fixed names; leaving those types
        // gives the field a placeholder name instead.
        const std::int32_t finalType = currentField().FieldType();
        if (finalType == type::Tenant) {
            txtName.setText(std::string(kTenantName));
            txtName_LostFocus();
        } else if (finalType == type::Signature) {
            txtName.setText(std::string(kSignatureName));
            txtName_LostFocus();
            chkCreateOnDemand.setValue(1);
        } else if (txtName.text() == kTenantName || txtName.text() == kSignatureName) {
            txtName.setText(std::string(kPlaceholderName));
            txtName_LostFocus();
            chkCreateOnDemand.setValue(0);
        }
        txtName.setEnabled(finalType != type::Signature && finalType != type::Tenant);
    }
    if (cboType.enabled() && cboType.visible())
        cboType.setFocus();
}

void Morvel::TabStrip_Click() {
    for (std::int32_t i = 1; i <= PanelArray::kCount; ++i)
        pic(i).setVisible(false);
    const std::int32_t selected = TabStrip.selectedIndex();
    if (selected == 1) {
        pic(1).setVisible(true);
        return;
    }
    if (selected != 2)
        return;
    // Every type without a page of its own falls back to the database page.
    const catalogue::TypePage page = catalogue::typePage(currentField().FieldType());
    pic(static_cast<std::int32_t>(page == catalogue::TypePage::None ? catalogue::TypePage::Database
                                                                    : page))
        .setVisible(true);
}

} // namespace morvel::control
