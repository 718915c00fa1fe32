// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/field_types.h"
#include "store/sample_schema.h"
#include "store/schema_database.h"
#include "store/store_error.h"
#include "store/temp_dir.h"

#include <gtest/gtest.h>
#include <set>

namespace morvel {
namespace {

class SampleDatabase : public ::testing::Test {
protected:
    SampleDatabase() { writeSampleSchema(database); }

    std::string search(std::string_view filter, std::int32_t maximum) {
        std::string text;
        for (const SearchItem& item : database.Search(filter, "", maximum)) {
            EXPECT_EQ(item.ID.kind(), Value::Kind::Long);
            EXPECT_EQ(database.findTable(item.ItemObject.TableName)->id, item.ID.asLong());
            text += item.DisplayName + "|" + item.ItemObject.TableName + ",";
        }
        return text;
    }

    testing::TempDir dir;
    SchemaDatabase database{dir.file("sample.db")};
};

TEST_F(SampleDatabase, CatalogueHasLinkableSubAndMainTables) {
    std::string catalogue;
    for (const TableInfo& table : database.tables())
        catalogue += table.name + ":" + std::to_string(table.tableType) + " ";
    EXPECT_EQ(catalogue, "Addresses:4 Customers:2 Employees:2 OrderLines:4 Orders:1 Products:2 "
                         "Suppliers:2 ");
    EXPECT_THROW(writeSampleSchema(database), StoreError);
}

TEST_F(SampleDatabase, OrdersShowEveryTypeFamily) {
    const TableDefinition orders = database.load("Orders");
    namespace c = catalogue;
    std::set<std::string> families;
    for (const auto& field : *orders.fields) {
        const std::int32_t code = field->FieldType();
        families.insert(c::isDirectLinkType(code)   ? "direct link"
                        : c::isAdoLinkType(code)    ? "ADO link"
                        : code == c::type::SubLink  ? "sub link"
                        : c::isBitMaskType(code)    ? "bit mask"
                        : c::isListType(code)       ? "list"
                        : c::isFileLinkType(code)   ? "file link"
                        : c::isDirectoryType(code)  ? "directory"
                        : code == c::type::SubTable ? "sub table"
                        : c::isSystemType(code)     ? "system"
                        : c::isEncryptedType(code)  ? "encrypted"
                                                    : "plain");
    }
    EXPECT_EQ(families.size(), 11u);

    // The links the sample's pages show point at tables the sample has.
    for (const char* key : {"zrDirect.Table", "ADO.Table", "SubLnk.Tbl"})
        for (const auto& field : *orders.fields) {
            const ListEntry* table = field->Properties().Lookup(key);
            EXPECT_TRUE(!table || database.findTable(table->Value.asText())) << field->Name();
        }
}

TEST_F(SampleDatabase, SearchFiltersByTableTypeAndHonoursMaximum) {
    EXPECT_EQ(search("TableType=2", 5000),
              "Customers|Customers,Employees|Employees,Products|Products,Suppliers|Suppliers,");
    EXPECT_EQ(search("TableType=4", 5000), "Addresses|Addresses,Order lines|OrderLines,");
    EXPECT_EQ(search("TableType=2", 2), "Customers|Customers,Employees|Employees,");
    EXPECT_EQ(search("TableType=3", 5000), "");
    EXPECT_EQ(search("", 0), "");
    EXPECT_EQ(database.Search("", "", 5000).size(), 7u);
    EXPECT_THROW(database.Search("Kind=2", "", 5000), SearchFilterError);
}

} // namespace
} // namespace morvel
