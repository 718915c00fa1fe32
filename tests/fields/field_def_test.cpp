// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "fields/field_defs.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace morvel {
namespace {

std::string describe(const FieldChange& change) {
    std::string text = std::string(memberName(change.member));
    if (!change.key.empty())
        text += "[" + change.key + "]";
    return text + " " + change.oldValue.toText() + ">" + change.newValue.toText();
}

TEST(FieldDef, TellsEachMemberChangeWithOldAndNewValue) {
    FieldDef field("Amount", 3);
    std::vector<std::string> seen;
    auto connection = field.onChanged([&](const FieldChange& c) { seen.push_back(describe(c)); });
    field.SetDisplayName("Total");
    field.SetDisplayName("Total"); // unchanged: nothing to tell
    field.SetFieldType(6);
    field.SetSize(12);
    field.SetCreateOnDemand(true);
    field.SetName("Sum");
    field.SetCtrlEdit("CURRENCYBOX");
    EXPECT_EQ(seen, (std::vector<std::string>{"DisplayName >Total", "FieldType 3>6", "Size 0>12",
                                              "CreateOnDemand False>True", "Name Amount>Sum",
                                              "CtrlEdit >CURRENCYBOX"}));
}

TEST(FieldDef, ForwardsChangesOfItsStoresWithTheirKey) {
    FieldDef field("Colour", 1100);
    std::vector<std::string> seen;
    std::vector<Value::Kind> kinds;
    auto connection = field.onChanged([&](const FieldChange& change) {
        seen.push_back(describe(change));
        kinds.push_back(change.newValue.kind());
    });
    field.Properties().SetValue("Lnk.Parent", true, true);
    field.Properties().Remove("Lnk.Parent");
    field.ListValues().SetValue("I1", "Red", true);
    field.SetLocaleDisplayName("1033", "Colour");
    EXPECT_EQ(seen, (std::vector<std::string>{"Properties[Lnk.Parent] >True",
                                              "Properties[Lnk.Parent] True>", "ListValues[I1] >Red",
                                              "Locales[DN1033] >Colour"}));
    EXPECT_EQ(kinds[0], Value::Kind::Boolean);
}

TEST(FieldDefs, TellsChangesOfItsFieldsUntilTheyAreRemoved) {
    FieldDefs defs;
    auto field = defs.Add("Amount", 3);
    std::vector<std::string> seen;
    auto connection = defs.changed.connect([&](const FieldChange& c) {
        seen.push_back(describe(c));
        EXPECT_EQ(&c.field, field.get());
    });
    field->SetValidation(1);
    field->Properties().SetValue("zrDirect.OB", "Name", true);
    defs.Remove("Amount");
    field->SetValidation(2);
    EXPECT_EQ(seen, (std::vector<std::string>{"Validation 0>1", "Properties[zrDirect.OB] >Name"}));
}

} // namespace
} // namespace morvel
