// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "history/change_set.h"
#include "store/sample_schema.h"
#include "store/schema.h"
#include "store/schema_database.h"
#include "store/store_error.h"
#include "store/temp_dir.h"
#include "testing/snapshot.h"

#include <functional>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace morvel {
namespace {

// A collection as stored: every member and value with its kind, and each field's identity.
std::string stored(const FieldDefs& fields) {
    std::string ids;
    for (const auto& field : fields)
        ids += std::to_string(field->id().value()) + " ";
    return testkit::fieldsSnapshot(fields) + ids;
}

std::string storedTable(const std::filesystem::path& path, const std::string& name) {
    return stored(*SchemaDatabase(path, SchemaDatabase::Access::ReadOnly).load(name).fields);
}

TableDefinition tableOf(int count) {
    TableDefinition table;
    table.info.name = "T";
    table.info.displayName = "T";
    for (int i = 1; i <= count; ++i) {
        FieldDef& field = *table.fields->Add("F" + std::to_string(i), 200);
        field.Properties().SetValue("Min", i, true);
        field.ListValues().SetValue("1", "One", true);
        field.ListValues().SetValue("2", "Two", true);
        field.SetLocaleDisplayName("1033", "Shown " + std::to_string(i));
    }
    return table;
}

struct Edit {
    const char* what;
    std::function<void(FieldDefs&)> write;
};

// Whatever changed, writing only the change leaves the stored table as a full rewrite of the
// same collection would; and again after a second save that builds on the rows the first placed.
TEST(ChangeSave, IncrementalSavesStoreWhatAFullRewriteStores) {
    const std::vector<Edit> edits = {
        {"members and a rename",
         [](FieldDefs& f) {
             f.Item(2)->SetDisplayName("Two");
             f.Item(3)->SetName("Renamed");
             f.Item(4)->SetCreateOnDemand(true);
         }},
        {"stored keys of each store",
         [](FieldDefs& f) {
             f.Item(1)->Properties().SetValue("Max", "9", true);
             f.Item(1)->Properties().Remove("Min");
             f.Item(2)->ListValues().Clear();
             f.Item(2)->ListValues().SetValue("2", "Two", false);
             f.Item(2)->ListValues().SetValue("1", "Uno", false);
             f.Item(2)->CommitListValues();
             f.Item(3)->SetLocaleDescription("1031", "Beschreibung");
         }},
        {"fields added at the start, between and at the end",
         [](FieldDefs& f) {
             f.Insert(1, std::make_shared<FieldDef>("First", 3));
             f.Insert(3, std::make_shared<FieldDef>("Between", 3))
                 ->Properties()
                 .SetValue("A", 1, true);
             f.Insert(4, std::make_shared<FieldDef>("Between2", 3));
             f.Add("Last", 3);
         }},
        {"fields removed",
         [](FieldDefs& f) {
             f.Remove("F1");
             f.Remove("F4");
         }},
        {"moves up and down",
         [](FieldDefs& f) {
             f.Move(5, 1);
             f.Move(2, 4);
         }},
        {"a removed field's name taken by a new one",
         [](FieldDefs& f) {
             f.Remove("F3");
             f.Insert(1, std::make_shared<FieldDef>("F3", 7));
         }},
    };
    for (const Edit& edit : edits) {
        SCOPED_TRACE(edit.what);
        testing::TempDir dir;
        const auto path = dir.file("db");
        TableDefinition original = tableOf(6);
        SchemaDatabase database(path);
        database.saveAsNew(original);
        TableDefinition table = database.load("T");
        ChangeSet changes(*table.fields);
        for (int round = 1; round <= 2; ++round) {
            if (round == 1) {
                edit.write(*table.fields);
            } else { // a move to the far end and an edit: the second save builds on the first
                table.fields->Move(table.fields->Count(), 1);
                table.fields->Item(2)->SetDescription("round 2");
            }
            database.save(table, &changes);
            changes.rebase();
            TableDefinition copy{table.info, table.fields};
            copy.info.name = "Full" + std::to_string(round);
            database.saveAsNew(copy);
            EXPECT_EQ(storedTable(path, "T"), stored(*table.fields));
            EXPECT_EQ(storedTable(path, "T"), storedTable(path, copy.info.name));
        }
    }
}

TEST(ChangeSave, SaveOfNothingChangedWritesNothingAndKeepsTheRevision) {
    testing::TempDir dir;
    const auto path = dir.file("db");
    TableDefinition table = tableOf(3);
    SchemaDatabase database(path);
    database.saveAsNew(table);
    ChangeSet changes(*table.fields);
    table.fields->Item(1)->SetSize(4); // and back: different for a moment only
    table.fields->Item(1)->SetSize(0);
    const std::string before = testing::fileBytes(path);
    database.save(table, &changes);
    EXPECT_EQ(table.info.revision, 1);
    EXPECT_EQ(testing::fileBytes(path), before);
    EXPECT_EQ(database.findTable("T")->revision, 1);
}

const std::filesystem::path kVersion1 = MORVEL_STORE_FIXTURES "/version1.db";

// Every table of the file, as read through a connection that cannot write.
std::string everyTable(const std::filesystem::path& path) {
    const SchemaDatabase database(path, SchemaDatabase::Access::ReadOnly);
    std::string text;
    for (const TableInfo& info : database.tables())
        text += info.name + "\n" + testkit::fieldsSnapshot(*database.load(info.id).fields);
    return text;
}

std::int64_t versionOf(const std::filesystem::path& path) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(db, "PRAGMA user_version", -1, &statement, nullptr);
    sqlite3_step(statement);
    const std::int64_t version = sqlite3_column_int64(statement, 0);
    sqlite3_finalize(statement);
    sqlite3_close(db);
    return version;
}

TEST(Migration, AVersion1FileIsUpdatedOnOpenAfterABackupAndReadsTheSame) {
    testing::TempDir dir;
    const auto path = dir.file("old.db");
    std::filesystem::copy_file(kVersion1, path);
    const std::string bytes = testing::fileBytes(path);
    const std::string content = everyTable(path); // read in place, version 1 as it is
    ASSERT_NE(content.find("Orders"), std::string::npos);
    EXPECT_EQ(versionOf(path), 1);
    {
        SchemaDatabase database(path);
        EXPECT_EQ(versionOf(path), schema::kVersion);
        // Identities are stored now: a save of one change keeps the others' rows.
        TableDefinition orders = database.load("Orders");
        ChangeSet changes(*orders.fields);
        orders.fields->Item(2)->SetDisplayName("Changed");
        database.save(orders, &changes);
        EXPECT_EQ(storedTable(path, "Orders"), stored(*orders.fields));
    }
    EXPECT_EQ(testing::fileBytes(SchemaDatabase::backupPath(path)), bytes);
    EXPECT_EQ(everyTable(SchemaDatabase::backupPath(path)), content);
}

TEST(Migration, AFailedMigrationLeavesTheFileAsItWas) {
    testing::TempDir dir;
    const auto path = dir.file("old.db");
    std::filesystem::copy_file(kVersion1, path);
    // A table in the way of the update's own.
    sqlite3* db = nullptr;
    sqlite3_open(path.c_str(), &db);
    sqlite3_exec(db, "CREATE TABLE fields_v1 (x)", nullptr, nullptr, nullptr);
    sqlite3_close(db);
    const std::string bytes = testing::fileBytes(path);
    EXPECT_THROW(SchemaDatabase database(path), StoreError);
    EXPECT_EQ(testing::fileBytes(path), bytes);
    EXPECT_EQ(versionOf(path), 1);
}

} // namespace
} // namespace morvel
