// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "store/sample_schema.h"
#include "store/schema_database.h"
#include "store/store_error.h"
#include "store/temp_dir.h"

#include <gtest/gtest.h>

namespace morvel {
namespace {

// Two designers have the same table open through two handles on one file.
TEST(ConcurrentSave, SecondSaveIsRefusedAndWritesNothing) {
    testing::TempDir dir;
    SchemaDatabase first(dir.file("db"));
    writeSampleSchema(first);
    SchemaDatabase second(dir.file("db"));

    TableDefinition mine = first.load("Orders");
    TableDefinition theirs = second.load("Orders");
    mine.fields->Item("Notes")->SetDisplayName("Remarks");
    first.save(mine);

    theirs.fields->Remove("Notes");
    theirs.fields->Add("Extra", 8);
    theirs.info.displayName = "Their orders";
    const std::string before = testing::fileBytes(dir.file("db"));
    try {
        second.save(theirs);
        FAIL() << "the second save was accepted";
    } catch (const ConcurrentSaveError& error) {
        EXPECT_NE(std::string(error.what()).find("changed and saved by someone else"),
                  std::string::npos)
            << error.what();
    }
    EXPECT_EQ(testing::fileBytes(dir.file("db")), before);
    // The refused definitions stay as they were, ready to be saved under another name.
    EXPECT_TRUE(theirs.fields->find("Extra"));
    EXPECT_EQ(theirs.info.revision, 1);

    const TableDefinition stored = second.load("Orders");
    EXPECT_EQ(stored.info.revision, 2);
    EXPECT_EQ(stored.info.displayName, "Orders");
    EXPECT_EQ(stored.fields->Item("Notes")->DisplayName(), "Remarks");
    EXPECT_FALSE(stored.fields->find("Extra"));

    theirs.info.name = "TheirOrders";
    second.saveAsNew(theirs);
    EXPECT_TRUE(first.load("TheirOrders").fields->find("Extra"));
}

TEST(ConcurrentSave, ReloadedDefinitionSavesAgain) {
    testing::TempDir dir;
    SchemaDatabase first(dir.file("db"));
    writeSampleSchema(first);
    SchemaDatabase second(dir.file("db"));
    TableDefinition mine = first.load("Products");
    first.save(mine);
    first.save(mine);
    TableDefinition reloaded = second.load("Products");
    EXPECT_EQ(reloaded.info.revision, 3);
    EXPECT_NO_THROW(second.save(reloaded));
}

} // namespace
} // namespace morvel
