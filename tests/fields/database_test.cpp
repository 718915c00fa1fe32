// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "testing/in_memory_database.h"

#include <gtest/gtest.h>

namespace morvel {
namespace {

TEST(Database, ParsesTheTableTypeFilter) {
    EXPECT_EQ(parseTableTypeFilter(""), std::nullopt);
    EXPECT_EQ(parseTableTypeFilter("TableType=4"), 4);
    EXPECT_EQ(parseTableTypeFilter(" tabletype = 2 "), 2);
    for (const char* filter : {"Type=4", "TableType=", "TableType=x", "TableType=4x", "TableType"})
        EXPECT_THROW(parseTableTypeFilter(filter), SearchFilterError) << filter;
}

TEST(Database, InMemorySearchFiltersLimitsAndRecordsEachCall) {
    testkit::InMemoryDatabase db;
    db.addTable({10, "Orders", "All orders", 2});
    db.addTable({11, "OrderLines", "Order lines", 4});
    db.addTable({12, "Customers", "Customers", 2});
    db.addTable({13, "Notes", "Notes", 4});

    auto subTables = db.Search("TableType=4", "", 5000);
    ASSERT_EQ(subTables.size(), 2u);
    EXPECT_EQ(subTables[0].DisplayName, "Order lines");
    EXPECT_EQ(subTables[0].ID, Value(11));
    EXPECT_EQ(subTables[1].ItemObject.TableName, "Notes");
    EXPECT_EQ(db.Search("TableType=2", "", 1).size(), 1u);
    EXPECT_EQ(db.Search("", "", 5000).size(), 4u);
    EXPECT_THROW(db.Search("Kind=2", "", 5000), SearchFilterError);

    ASSERT_GE(db.calls().size(), 3u);
    EXPECT_EQ(db.calls()[1].filter, "TableType=2");
    EXPECT_EQ(db.calls()[1].second, "");
    EXPECT_EQ(db.calls()[1].maximum, 1);
}

} // namespace
} // namespace morvel
