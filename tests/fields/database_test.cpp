// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "fields/database.h"

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

} // namespace
} // namespace morvel
