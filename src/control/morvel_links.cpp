#include "base/handler_policy.h"
#include "catalogue/field_types.h"
#include "control/morvel.h"
#include "fields/field_utility.h"

#include <string_view>

namespace morvel::control {

// Link, database, sub table and sub link settings, stored as keyed properties of the field.
// While the panel is being filled nothing is written: showing a field must not change it.

namespace {

// The box's text as a whole number, converted the library's tolerant way.
std::int32_t numberIn(const view::TextBox& box) {
    return FieldUtility::ToLong(std::string_view(box.text()));
}

constexpr std::int32_t kMaximumTables = 5000;
constexpr std::string_view kSubTableFilter = "TableType=4";
constexpr std::string_view kLinkTableFilter = "TableType=2";

void storeText(FieldDef& field, std::string_view key, std::string text) {
    field.Properties().SetValue(key, Value(std::move(text)), true);
}

void storeLong(FieldDef& field, std::string_view key, std::int32_t number) {
    field.Properties().SetValue(key, Value(number), true);
}

// The boxes of the database page serve two families of links: a link through the system's own
// tables keeps its settings under "zrDirect." keys, a link through an ADO connection under "ADO."
// keys. Any other type keeps nothing, whatever is typed.
void storeByFamily(FieldDef& field, std::string_view directKey, std::string_view adoKey,
                   std::string text) {
    const std::int32_t type = field.FieldType();
    if (catalogue::isDirectLinkType(type))
        storeText(field, directKey, std::move(text));
    else if (catalogue::isAdoLinkType(type))
        storeText(field, adoKey, std::move(text));
}

// The settings of the link page belong to "Link" and "Multiple Link" only.
void storeForDirectLink(FieldDef& field, std::string_view key, std::string text) {
    if (catalogue::isDirectLinkType(field.FieldType()))
        storeText(field, key, std::move(text));
}

} // namespace

void Morvel::txtTable_Change() {
    if (m_panelLoading)
        return;
    skipFailingSteps(
        [&] { storeByFamily(currentField(), "zrDirect.Table", "ADO.Table", txtTable.text()); });
}

// The editing boxes write "ADO.ID", "ADO.Disp" and "ADO.Select" while the panel shows
// "ADO.IDField", "ADO.DispField" and "ADO.SQL": readers of the definitions rely on both forms.
void Morvel::txtIDField_Change() {
    if (m_panelLoading)
        return;
    skipFailingSteps(
        [&] { storeByFamily(currentField(), "zrDirect.ID", "ADO.ID", txtIDField.text()); });
}

void Morvel::txtDispField_Change() {
    if (m_panelLoading)
        return;
    skipFailingSteps(
        [&] { storeByFamily(currentField(), "zrDirect.Disp", "ADO.Disp", txtDispField.text()); });
}

void Morvel::txtSQL_Change() {
    if (m_panelLoading)
        return;
    skipFailingSteps(
        [&] { storeByFamily(currentField(), "zrDirect.Select", "ADO.Select", txtSQL.text()); });
}

// The directory types keep a connection string of their own, and nothing else of this page.
void Morvel::txtConnStr_Change() {
    if (m_panelLoading)
        return;
    skipFailingSteps([&] {
        FieldDef& field = currentField();
        if (catalogue::isDirectoryType(field.FieldType()))
            storeText(field, "zrDirect.ConnStr", txtConnStr.text());
        else
            storeByFamily(field, "zrDirect.ConnStr", "ADO.ConnStr", txtConnStr.text());
    });
}

void Morvel::txtLinkTableName_Change() {
    if (m_panelLoading)
        return;
    storeForDirectLink(currentField(), "zrDirect.Table", txtLinkTableName.text());
}

void Morvel::cboLinkTableName_Change() {
    if (m_loading || m_panelLoading)
        return;
    storeForDirectLink(currentField(), "zrDirect.Table", cboLinkTableName.text());
}

void Morvel::cboLinkTableName_Click() {
    cboLinkTableName_Change();
}

void Morvel::txtLinkIDField_Change() {
    if (m_panelLoading)
        return;
    storeForDirectLink(currentField(), "zrDirect.ID", txtLinkIDField.text());
}

// "zrDirect.Disp123" is a copy that older readers of the definitions expect; only
// "zrDirect.Disp" is ever read back.
void Morvel::txtLinkDisplayField_Change() {
    if (m_panelLoading)
        return;
    FieldDef& field = currentField();
    storeForDirectLink(field, "zrDirect.Disp", txtLinkDisplayField.text());
    storeForDirectLink(field, "zrDirect.Disp123", txtLinkDisplayField.text());
}

void Morvel::txtLinkSelect_Change() {
    if (m_panelLoading)
        return;
    storeForDirectLink(currentField(), "zrDirect.Select", txtLinkSelect.text());
}

void Morvel::txtCoreFilter_Change() {
    if (m_panelLoading)
        return;
    storeForDirectLink(currentField(), "zrDirect.Q", txtCoreFilter.text());
}

void Morvel::txtAdditionalFilter_Change() {
    if (m_panelLoading)
        return;
    storeForDirectLink(currentField(), "zrDirect.IQ", txtAdditionalFilter.text());
}

void Morvel::txtOrderField_Change() {
    if (m_panelLoading)
        return;
    storeForDirectLink(currentField(), "zrDirect.OB", txtOrderField.text());
}

// A link with an object type links to objects and is narrowed by filters and a status; one
// without links to a table. The page shows the controls of the one or the other, also while the
// panel is being filled.
void Morvel::txtObjectType_Change() {
    FieldDef& field = currentField();
    if (!catalogue::isDirectLinkType(field.FieldType()))
        return;
    if (!m_panelLoading)
        storeLong(field, "zrDirect.OT", numberIn(txtObjectType));
    ShowLinkControlsFor(numberIn(txtObjectType));
}

// An unchecked box leaves no key behind rather than False.
void Morvel::chkLinkParent_Click() {
    if (m_loading || m_panelLoading)
        return;
    FieldDef& field = currentField();
    if (chkLinkParent.value() == 1)
        field.Properties().SetValue("Lnk.Parent", Value(true), true);
    else
        field.Properties().Remove("Lnk.Parent");
}

void Morvel::txtSubTable_Change() {
    if (m_panelLoading)
        return;
    skipFailingSteps([&] {
        FieldDef& field = currentField();
        if (field.FieldType() == catalogue::type::SubTable)
            storeLong(field, "zrDirect.ST", numberIn(txtSubTable));
    });
}

void Morvel::txtSubTableFieldID_Change() {
    if (m_panelLoading)
        return;
    skipFailingSteps([&] {
        FieldDef& field = currentField();
        if (field.FieldType() == catalogue::type::SubTable)
            storeLong(field, "zrDirect.STF", numberIn(txtSubTableFieldID));
    });
}

void Morvel::cboSubTable_Click() {
    if (m_loading || m_panelLoading)
        return;
    const std::int32_t index = cboSubTable.listIndex();
    storeLong(currentField(), "zrDirect.ST", index < 0 ? 0 : cboSubTable.itemData(index));
}

void Morvel::txtSubLinkTable_LostFocus() {
    if (m_panelLoading)
        return;
    storeText(currentField(), "SubLnk.Tbl", txtSubLinkTable.text());
}

void Morvel::txtSubLinkPIDField_LostFocus() {
    if (m_panelLoading)
        return;
    storeText(currentField(), "SubLnk.PID", txtSubLinkPIDField.text());
}

void Morvel::txtSubLinkDisplayName_LostFocus() {
    if (m_panelLoading)
        return;
    storeText(currentField(), "SubLnk.DN", txtSubLinkDisplayName.text());
}

void Morvel::txtSubLinkOrderBy_LostFocus() {
    if (m_panelLoading)
        return;
    storeText(currentField(), "SubLnk.OB", txtSubLinkOrderBy.text());
}

void Morvel::cboLinkFields_Click() {
    if (m_loading || m_panelLoading)
        return;
    const std::int32_t index = cboLinkFields.listIndex();
    storeText(currentField(), "SubLnk.Lnk", index < 0 ? std::string() : cboLinkFields.list(index));
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
