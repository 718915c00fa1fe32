// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/handler_policy.h"
#include "base/text.h"
#include "catalogue/field_types.h"
#include "catalogue/property_keys.h"
#include "catalogue/setting_boxes.h"
#include "control/morvel.h"
#include "control/setting_values.h"
#include "fields/field_utility.h"

#include <string_view>
#include <unordered_map>

namespace morvel::control {

// Link, database, sub table and sub link settings, stored as keyed properties of the field. Which
// box writes which key for which types is the table of setting boxes; the handlers name their box
// and their failure policy.

namespace {

constexpr std::int32_t kMaximumTables = 5000;
constexpr std::string_view kSubTableFilter = "TableType=4";
constexpr std::string_view kLinkTableFilter = "TableType=2";

using catalogue::Fill;
using catalogue::Shown;

// The text of a text box or an editable combo box.
const std::string& textOf(const view::Control& box) {
    if (const auto* text = dynamic_cast<const view::TextBox*>(&box))
        return text->text();
    return dynamic_cast<const view::ComboBox&>(box).text();
}

} // namespace

view::Control& Morvel::settingControl(const catalogue::SettingBox& row) const {
    const std::span<const catalogue::SettingBox> rows = catalogue::settingBoxes();
    if (m_settingControls.empty()) {
        // The setting boxes sit on the panels; they are looked up by name once.
        std::unordered_map<std::string_view, view::Control*> byName;
        for (std::int32_t i = 1; i <= PanelArray::kCount; ++i)
            for (view::Control* control : pic(i).children())
                byName.emplace(control->name(), control);
        for (const catalogue::SettingBox& each : rows)
            m_settingControls.push_back(byName.at(each.box));
    }
    return *m_settingControls.at(static_cast<std::size_t>(&row - rows.data()));
}

void Morvel::writeBox(const view::Control& box) {
    FieldDef& field = currentField();
    const std::int32_t code = field.FieldType();
    for (const catalogue::SettingBox& row : catalogue::settingBoxes()) {
        if (&settingControl(row) != &box || row.key.empty() || !(row.anyType || row.types(code)))
            continue;
        const auto* list = dynamic_cast<const view::ComboBox*>(&box);
        const std::int32_t index = list ? list->listIndex() : -1;
        Value value;
        switch (row.shown) {
        case Shown::Text:
            value = Value(textOf(box));
            break;
        case Shown::Number:
            value = Value(FieldUtility::ToLong(std::string_view(textOf(box))));
            break;
        case Shown::ItemData:
            value = index < 0 ? Value(std::string()) : Value(list->itemData(index));
            break;
        case Shown::EntryText:
            value = Value(index < 0 ? std::string() : list->list(index));
            break;
        case Shown::Checked:
            value = Value(true);
            break;
        }
        field.Properties().SetValue(row.key, std::move(value), true);
    }
}

void Morvel::showSetting(const catalogue::SettingBox& row, const FieldDef& field) {
    const PropertyStore& stored = field.Properties();
    view::Control& box = settingControl(row);
    auto* list = dynamic_cast<view::ComboBox*>(&box);
    switch (row.fill) {
    case Fill::None:
        break;
    case Fill::SubTables:
        LoadSubTableList();
        break;
    case Fill::LinkTables:
        LoadLinkTableList();
        break;
    case Fill::CipherKeyLengths:
        FillCipherKeyLengths(*list, shownNumber(catalogue::settingOf("cboEncryption"), stored));
        break;
    case Fill::HashKeyLengths:
        FillHashKeyLengths(*list, shownNumber(catalogue::settingOf("cboSignatureHash"), stored));
        break;
    case Fill::LinkFields:
        list->clear();
        if (moFieldDefs)
            for (const FieldDefPtr& each : *moFieldDefs)
                if (each->FieldType() == catalogue::type::Link)
                    list->addItem(each->Name());
        break;
    }
    switch (row.shown) {
    case Shown::Text:
    case Shown::Number:
        if (auto* text = dynamic_cast<view::TextBox*>(&box))
            text->setText(shownText(row, stored));
        else
            list->setText(shownText(row, stored));
        return;
    case Shown::ItemData:
        SelectByItemData(*list, shownNumber(row, stored));
        return;
    case Shown::EntryText: {
        const std::string entry = shownText(row, stored);
        for (std::int32_t i = 0; i < list->listCount(); ++i) {
            if (equalsIgnoringCase(list->list(i), entry)) {
                list->setListIndex(i);
                return;
            }
        }
        return;
    }
    case Shown::Checked:
        // True is stored as a Boolean; a Long -1 means the same.
        dynamic_cast<view::CheckBox&>(box).setValue(shownNumber(row, stored) == -1 ? 1 : 0);
        return;
    }
}

// The database page's boxes fail step by step: a missing field or a failing write is passed over.
void Morvel::txtTable_Change() {
    skipFailingSteps([this] { writeBox(txtTable); });
}

void Morvel::txtIDField_Change() {
    skipFailingSteps([this] { writeBox(txtIDField); });
}

void Morvel::txtDispField_Change() {
    skipFailingSteps([this] { writeBox(txtDispField); });
}

void Morvel::txtSQL_Change() {
    skipFailingSteps([this] { writeBox(txtSQL); });
}

void Morvel::txtConnStr_Change() {
    skipFailingSteps([this] { writeBox(txtConnStr); });
}

void Morvel::txtLinkTableName_Change() {
    writeBox(txtLinkTableName);
}

void Morvel::cboLinkTableName_Change() {
    if (m_loading)
        return;
    writeBox(cboLinkTableName);
}

void Morvel::cboLinkTableName_Click() {
    cboLinkTableName_Change();
}

void Morvel::txtLinkIDField_Change() {
    writeBox(txtLinkIDField);
}

// Written twice: a copy under a second key that only older readers of the definitions read.
void Morvel::txtLinkDisplayField_Change() {
    writeBox(txtLinkDisplayField);
}

void Morvel::txtLinkSelect_Change() {
    writeBox(txtLinkSelect);
}

void Morvel::txtCoreFilter_Change() {
    writeBox(txtCoreFilter);
}

void Morvel::txtAdditionalFilter_Change() {
    writeBox(txtAdditionalFilter);
}

void Morvel::txtOrderField_Change() {
    writeBox(txtOrderField);
}

// A link with an object type links to objects and is narrowed by filters and a status; one
// without links to a table. The page shows the controls of the one or the other, also while the
// panel is being filled, which is why this handler is wired without the loading guard.
void Morvel::txtObjectType_Change() {
    if (!catalogue::isDirectLinkType(currentField().FieldType()))
        return;
    if (!m_panelLoading)
        writeBox(txtObjectType);
    ShowLinkControlsFor(FieldUtility::ToLong(std::string_view(txtObjectType.text())));
}

// An unchecked box leaves no key behind rather than False.
void Morvel::chkLinkParent_Click() {
    if (m_loading)
        return;
    if (chkLinkParent.value() == 1)
        writeBox(chkLinkParent);
    else
        currentField().Properties().Remove(catalogue::kLinkParent);
}

void Morvel::txtSubTable_Change() {
    skipFailingSteps([this] { writeBox(txtSubTable); });
}

void Morvel::txtSubTableFieldID_Change() {
    skipFailingSteps([this] { writeBox(txtSubTableFieldID); });
}

// Unlike the other pick lists, no table picked stores the number 0, not the empty text.
void Morvel::cboSubTable_Click() {
    if (m_loading)
        return;
    const std::int32_t index = cboSubTable.listIndex();
    currentField().Properties().SetValue(catalogue::kDirectSubTable,
                                         Value(index < 0 ? 0 : cboSubTable.itemData(index)), true);
}

void Morvel::txtSubLinkTable_LostFocus() {
    writeBox(txtSubLinkTable);
}

void Morvel::txtSubLinkPIDField_LostFocus() {
    writeBox(txtSubLinkPIDField);
}

void Morvel::txtSubLinkDisplayName_LostFocus() {
    writeBox(txtSubLinkDisplayName);
}

void Morvel::txtSubLinkOrderBy_LostFocus() {
    writeBox(txtSubLinkOrderBy);
}

void Morvel::cboLinkFields_Click() {
    if (m_loading)
        return;
    writeBox(cboLinkFields);
}

// The look-ups run once per control instance, found or not, and whether or not a Database was
// there to ask: without one the free-text box is used for good.
void Morvel::LoadSubTableList() {
    if (m_subTableListLoaded)
        return;
    m_subTableListLoaded = true;
    if (!m_database) {
        txtSubTable.setVisible(true);
        cboSubTable.setVisible(false);
        return;
    }
    txtSubTable.setVisible(false);
    cboSubTable.setVisible(true);
    cboSubTable.clear();
    for (const SearchItem& item : m_database->Search(kSubTableFilter, "", kMaximumTables)) {
        const std::int32_t index = cboSubTable.addItem(item.DisplayName);
        cboSubTable.setItemData(index, FieldUtility::ToLong(item.ID));
    }
}

// The link table is stored by name, so the entries show the tables' names; their item data is
// kept for symmetry with the sub tables but not used.
void Morvel::LoadLinkTableList() {
    if (m_linkTableListLoaded)
        return;
    m_linkTableListLoaded = true;
    if (!m_database) {
        txtLinkTableName.setVisible(true);
        cboLinkTableName.setVisible(false);
        return;
    }
    txtLinkTableName.setVisible(false);
    cboLinkTableName.setVisible(true);
    cboLinkTableName.clear();
    for (const SearchItem& item : m_database->Search(kLinkTableFilter, "", kMaximumTables)) {
        const std::int32_t index = cboLinkTableName.addItem(item.ItemObject.TableName);
        cboLinkTableName.setItemData(index, FieldUtility::ToLong(item.ID));
    }
}

} // namespace morvel::control
