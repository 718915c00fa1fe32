// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/field_types.h"
#include "catalogue/validation.h"
#include "choices.h"

#include <gtest/gtest.h>

namespace morvel::catalogue {
namespace {

TEST(FieldTypes, OffersFortyTypesInListOrderWithExactTexts) {
    EXPECT_EQ(offeredTypes().size(), 40u);
    EXPECT_EQ(snapshot(offeredTypes()),
              "Bit Mask List=1105|Boolean=11|Currency=6|Created By=10006|Date Created=10002|"
              "Date Modified=10003|Date Time=7|Date Only=133|Direct User=3000|Direct Group=3001|"
              "Double=5|Extension ID=10004|File Link=2000|File Link - Audio=2010|"
              "File Link - Picture=2100|File Link - Video=2020|ID=10000|Link=1000|Link ADO=1001|"
              "List=1100|Long=3|Tenant=10008|Text=200|Text - HTML=220|Text - RTF=210|"
              "Text Encrypted=20200|Time Only=145|Modified By=10007|Multiple Bit Mask List=1106|"
              "Multiple Link=1010|Multiple Link ADO=1011|Multiple List=1101|Signature=10009|"
              "Status=10001|Sub Link =1002|Sub Table=5000|URL=2110|VarChar=8|"
              "VarChar Encrypted=20008|Unknown=0");
}

TEST(FieldTypes, NamesMatchTheListTextsExceptSubLinksTrailingBlank) {
    for (const Choice& type : offeredTypes()) {
        if (type.itemData == type::SubLink)
            continue;
        EXPECT_EQ(typeName(type.itemData), type.text) << type.itemData;
    }
    EXPECT_EQ(typeName(type::SubLink), "Sub Link");
}

// System Reference is named but never offered; every other code is unknown.
TEST(FieldTypes, CodesNotOfferedAreNamedUnknownButSystemReference) {
    for (const Choice& type : offeredTypes())
        EXPECT_NE(type.itemData, 10005);
    for (int code : {10005, 0, 4, 9, 1003, 10010, 20000, -1, -200})
        EXPECT_EQ(typeName(code), code == 10005 ? "System Reference" : "Unknown") << code;
}

// The trait table is looked up by code, and a page without a caption would add an empty tab.
TEST(FieldTypes, EveryTypeIsFoundByItsCodeAndEveryPageHasACaption) {
    for (const TypeTraits& traits : typeTraits()) {
        EXPECT_EQ(findType(traits.code), &traits) << traits.code;
        EXPECT_FALSE(traits.name.empty()) << traits.code;
        EXPECT_EQ(tabCaption(traits.page).empty(), traits.page == TypePage::None) << traits.code;
    }
}

TEST(Validation, OffersThreeLevelsAndNamesNoOther) {
    EXPECT_EQ(snapshot(validationLevels()), "Not Required=0|Required=1|Required Enforced=2");
    EXPECT_EQ(validationName(2), "Required Enforced");
    EXPECT_EQ(validationName(3), "Unknown");
    EXPECT_EQ(validationName(-1), "Unknown");
}

} // namespace
} // namespace morvel::catalogue
