// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/field_types.h"
#include "catalogue/templates.h"
#include "choices.h"

#include <gtest/gtest.h>

namespace morvel::catalogue {
namespace {

TEST(Templates, SuggestionsForRepresentativeTypes) {
    EXPECT_EQ(snapshot(editTemplates(11)), "CHECKBOX,VALUELABEL");
    EXPECT_EQ(snapshot(editTemplates(6)), "CURRENCYBOX,NUMERICBOX,TEXTBOX,VALUELABEL");
    EXPECT_EQ(snapshot(editTemplates(220)),
              "HTML,INPUTHTML,TEXTAREA,TEXTAREALARGE,TEXTBOX,VALUELABEL");
    EXPECT_EQ(snapshot(readOnlyTemplates(220)), "HTML,VALUELABEL");
    // URL is treated as a text, with no link template.
    EXPECT_EQ(snapshot(editTemplates(type::Url)), "TEXTAREA,TEXTBOX,VALUELABEL");
    EXPECT_EQ(snapshot(editTemplates(2100)), "FILELINK,INPUTFILE,VALUELABEL");
    EXPECT_EQ(snapshot(readOnlyTemplates(2010)), "FILELINK,VALUELABEL");
}

TEST(Templates, OnlyLinkOffersAValueLabelLinkForReadOnly) {
    EXPECT_EQ(snapshot(editTemplates(type::Link)), "SELECT,SELECTITEM,VALUELABEL,VALUELABELLINK");
    EXPECT_EQ(snapshot(editTemplates(type::DirectUser)),
              "SELECT,SELECTITEM,VALUELABEL,VALUELABELLINK");
    EXPECT_EQ(snapshot(readOnlyTemplates(type::Link)), "VALUELABEL,VALUELABELLINK");
    for (int code : {type::MultipleLink, type::LinkAdo, type::DirectUser, type::DirectGroup})
        EXPECT_EQ(snapshot(readOnlyTemplates(code)), "VALUELABEL") << code;
    EXPECT_EQ(snapshot(editTemplates(type::MultipleList)), "MULTISELECT,VALUELABEL");
}

TEST(Templates, SubTableSuggestsOnlyTheSubTableButton) {
    EXPECT_EQ(snapshot(editTemplates(type::SubTable)), "SUBTABLEBUTTON");
    EXPECT_TRUE(readOnlyTemplates(type::SubTable).empty());
}

TEST(Templates, OtherTypesFallBackToValueLabel) {
    for (int code : {0, 4, 10000, 10005, 10009, -1}) {
        EXPECT_EQ(snapshot(editTemplates(code)), "VALUELABEL") << code;
        EXPECT_EQ(snapshot(readOnlyTemplates(code)), "VALUELABEL") << code;
    }
}

} // namespace
} // namespace morvel::catalogue
