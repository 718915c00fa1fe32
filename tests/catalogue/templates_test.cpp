// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/field_types.h"
#include "catalogue/templates.h"
#include "choices.h"

#include <gtest/gtest.h>

namespace morvel::catalogue {
namespace {

// The suggestions of representative types: "edit suggestions / read-only suggestions".
TEST(Templates, EachTypeFamilyGetsItsSuggestionsAndOthersFallBackToValueLabel) {
    const std::pair<std::int32_t, const char*> cases[] = {
        {11, "CHECKBOX,VALUELABEL/VALUELABEL"},
        {6, "CURRENCYBOX,NUMERICBOX,TEXTBOX,VALUELABEL/VALUELABEL"},
        {220, "HTML,INPUTHTML,TEXTAREA,TEXTAREALARGE,TEXTBOX,VALUELABEL/HTML,VALUELABEL"},
        // URL is treated as a text, with no link template.
        {type::Url, "TEXTAREA,TEXTBOX,VALUELABEL/VALUELABEL"},
        {2100, "FILELINK,INPUTFILE,VALUELABEL/FILELINK,VALUELABEL"},
        {2010, "FILELINK,INPUTFILE,VALUELABEL/FILELINK,VALUELABEL"},
        // Only Link offers a value label link for read-only.
        {type::Link, "SELECT,SELECTITEM,VALUELABEL,VALUELABELLINK/VALUELABEL,VALUELABELLINK"},
        {type::DirectUser, "SELECT,SELECTITEM,VALUELABEL,VALUELABELLINK/VALUELABEL"},
        {type::DirectGroup, "SELECT,SELECTITEM,VALUELABEL,VALUELABELLINK/VALUELABEL"},
        {type::LinkAdo, "SELECT,VALUELABEL/VALUELABEL"},
        {type::MultipleLink, "MULTISELECT,VALUELABEL/VALUELABEL"},
        {type::MultipleList, "MULTISELECT,VALUELABEL/VALUELABEL"},
        {type::SubTable, "SUBTABLEBUTTON/"},
    };
    for (const auto& [code, expected] : cases)
        EXPECT_EQ(snapshot(editTemplates(code)) + "/" + snapshot(readOnlyTemplates(code)), expected)
            << code;
    for (int code : {0, 4, 10000, 10005, 10009, -1})
        EXPECT_EQ(snapshot(editTemplates(code)) + "/" + snapshot(readOnlyTemplates(code)),
                  "VALUELABEL/VALUELABEL")
            << code;
}

} // namespace
} // namespace morvel::catalogue
