// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "store/schema_database.h"
#include "store/store_error.h"
#include "store/temp_dir.h"
#include "testing/snapshot.h"

#include <gtest/gtest.h>
#include <limits>

namespace morvel {
namespace {

TableDefinition richTable() {
    TableDefinition table;
    table.info = {0, "Invoices", "Invoices of the year", 2, 0};
    FieldDef& a = *table.fields->Add("Amount", 6);
    a.SetDescription("Total \"with\" tax");
    a.SetDisplayName("Betrag \xE2\x82\xAC");
    a.SetSize(-7);
    a.SetDefaultValue("0,00");
    a.SetCtrlEdit("CURRENCYBOX");
    a.SetCtrlReadOnly("VALUELABEL");
    a.SetCtrlList("TEXTBOX");
    a.SetValidation(2);
    a.SetCreateOnDemand(true);
    // Keys out of alphabetical order, and values that look alike in text but differ in kind.
    a.Properties().SetValue("zrDirect.OT", std::int32_t{12}, true);
    a.Properties().SetValue("Encyrpt.Type", "12", true);
    a.Properties().SetValue("Lnk.Parent", true, true);
    a.Properties().SetValue("Flag", false, true);
    a.Properties().SetValue("Nothing", Value(), true);
    a.Properties().SetValue("Min", std::numeric_limits<std::int32_t>::min(), true);
    a.Properties().SetValue("Max", std::numeric_limits<std::int32_t>::max(), true);
    a.Properties().SetValue("Empty text", "", true);
    a.Properties().SetValue("Nul", std::string("a\0b", 3), true);
    a.ListValues().SetValue("8", "Eight", true);
    a.ListValues().SetValue("1", "One", true);
    a.SetLocaleDisplayName("1033", "Amount");
    a.SetLocaleDescription("1031", "Gesamtbetrag");
    table.fields->Add("Plain", 200);
    return table;
}

TEST(RoundTrip, EveryMemberKeyAndKindComesBackInOrder) {
    testing::TempDir dir;
    TableDefinition original = richTable();
    SchemaDatabase(dir.file("db")).saveAsNew(original);
    EXPECT_EQ(original.info.revision, 1);

    SchemaDatabase reopened(dir.file("db"));
    const TableDefinition loaded = reopened.load("INVOICES");
    EXPECT_EQ(testkit::fieldsSnapshot(*loaded.fields), testkit::fieldsSnapshot(*original.fields));
    const auto info = [](const TableInfo& i) {
        return std::to_string(i.id) + "|" + i.name + "|" + i.displayName + "|" +
               std::to_string(i.tableType) + "|" + std::to_string(i.revision);
    };
    EXPECT_EQ(info(loaded.info), info(original.info));
}

TEST(RoundTrip, SaveReplacesFieldsAndCatalogueEntry) {
    testing::TempDir dir;
    SchemaDatabase database(dir.file("db"));
    TableDefinition table = richTable();
    database.saveAsNew(table);

    TableDefinition edited = database.load(table.info.id);
    edited.fields->Remove("Amount");
    edited.fields->Insert(1, std::make_shared<FieldDef>("First", 3));
    edited.fields->Item("Plain")->Properties().SetValue("k", "v", true);
    edited.info.name = "Bills";
    edited.info.displayName = "Bills";
    database.save(edited);
    EXPECT_EQ(edited.info.revision, 2);

    EXPECT_EQ(testkit::fieldsSnapshot(*database.load("Bills").fields),
              testkit::fieldsSnapshot(*edited.fields));
    ASSERT_EQ(database.tables().size(), 1u);
    EXPECT_EQ(database.tables()[0].revision, 2);
    EXPECT_THROW(database.load("Invoices"), NotFoundError);
}

TEST(RoundTrip, TableNamesAreUniqueIgnoringCase) {
    testing::TempDir dir;
    SchemaDatabase database(dir.file("db"));
    TableDefinition first = richTable();
    database.saveAsNew(first);
    TableDefinition second = richTable();
    second.info.name = "INVOICES";
    EXPECT_THROW(database.saveAsNew(second), StoreError);
    second.info.name = "";
    EXPECT_THROW(database.saveAsNew(second), StoreError);
    EXPECT_EQ(database.tables().size(), 1u);
}

} // namespace
} // namespace morvel
