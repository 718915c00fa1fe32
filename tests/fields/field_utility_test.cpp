// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "fields/field_utility.h"

#include <gtest/gtest.h>
#include <limits>

namespace morvel {
namespace {

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

TEST(FieldUtility, ToLongReadsLeadingDigitsOfTypedText) {
    EXPECT_EQ(FieldUtility::ToLong("42"), 42);
    EXPECT_EQ(FieldUtility::ToLong("  \t-17"), -17);
    EXPECT_EQ(FieldUtility::ToLong("+8"), 8);
    EXPECT_EQ(FieldUtility::ToLong("0012"), 12);
    EXPECT_EQ(FieldUtility::ToLong("12abc"), 12);
    EXPECT_EQ(FieldUtility::ToLong("3.9"), 3);
    EXPECT_EQ(FieldUtility::ToLong("1 000"), 1);
    // Called on every keystroke, so text without a number is 0, never an error.
    EXPECT_EQ(FieldUtility::ToLong(""), 0);
    EXPECT_EQ(FieldUtility::ToLong("abc"), 0);
    EXPECT_EQ(FieldUtility::ToLong("-"), 0);
    EXPECT_EQ(FieldUtility::ToLong("- 5"), 0);
}

TEST(FieldUtility, ToLongClampsToTheLongRange) {
    EXPECT_EQ(FieldUtility::ToLong("2147483648"), kMax);
    EXPECT_EQ(FieldUtility::ToLong("-2147483649"), kMin);
    EXPECT_EQ(FieldUtility::ToLong("99999999999999999999999"), kMax);
    EXPECT_EQ(FieldUtility::ToLong("-99999999999999999999999"), kMin);
}

TEST(FieldUtility, ToLongOfStoredValues) {
    EXPECT_EQ(FieldUtility::ToLong(Value(448)), 448);
    EXPECT_EQ(FieldUtility::ToLong(Value(" 192 (typical)")), 192);
    EXPECT_EQ(FieldUtility::ToLong(Value(true)), -1);
    EXPECT_EQ(FieldUtility::ToLong(Value(false)), 0);
    EXPECT_EQ(FieldUtility::ToLong(Value()), 0);
}

TEST(FieldUtility, IsNumericAcceptsNumbersAsPeopleTypeThem) {
    for (const char* text : {"12", " -1.5 ", "+.5", "7.", "\t3"})
        EXPECT_TRUE(FieldUtility::IsNumeric(text)) << text;
    for (const char* text : {"", " ", "-", ".", "1.2.3", "12a", "1 2", "--1"})
        EXPECT_FALSE(FieldUtility::IsNumeric(text)) << text;
}

} // namespace
} // namespace morvel
