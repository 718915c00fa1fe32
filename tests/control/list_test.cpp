// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/designer_fixture.h"

namespace morvel::testing {
namespace {

using FieldList = DesignerTest;

TEST_F(FieldList, RefillShowsEveryCellAndTagsEveryRowAsPreExisting) {
    auto defs = std::make_shared<FieldDefs>();
    auto code = defs->Add("Code", 8);
    code->SetSize(12);
    code->SetDisplayName("Product Code");
    code->SetValidation(2);
    code->SetCtrlReadOnly("VALUELABEL");
    code->SetCtrlEdit("TEXTBOX");
    code->SetCtrlList("LISTCELL");
    defs->Add("Count", 3)->SetSize(9); // a size that its type does not show
    defs->Add("Link", 1002)->SetValidation(7);
    defs->Add("Ref", 10005);
    designer.SetFieldDefs(defs);

    EXPECT_EQ(listSnapshot(), "Code|VarChar|12|Product Code|Required Enforced|VALUELABEL|TEXTBOX|"
                              "LISTCELL\n"
                              "Count|Long|||Not Required|||\n"
                              "Link|Sub Link|||Unknown|||\n"
                              "Ref|System Reference|||Not Required|||\n");
    EXPECT_EQ(std::string(designer.lst.item(1).tag()) + std::string(designer.lst.item(4).tag()),
              ":NOMODIFY::NOMODIFY:");
    EXPECT_TRUE(designer.lst.item(1).selected());
    EXPECT_EQ(designer.SelectedFieldDef(), code);
}

TEST_F(FieldList, AddedFieldGetsAnUntaggedRowAndItsNameReadyToBeTypedOver) {
    auto defs = give({{"A", 200}});
    auto added = defs->Add("NewField", 8);
    const auto& row = designer.lst.item("NewField");
    EXPECT_EQ(row.tag(), "");
    EXPECT_EQ(std::string(row.subItem(1)) + "|" + std::string(row.subItem(2)), "VarChar|0");
    EXPECT_TRUE(row.selected());
    EXPECT_EQ(designer.SelectedFieldDef(), added);
    EXPECT_TRUE(designer.txtName.hasFocus());
    EXPECT_EQ(designer.txtName.selLength(), 8);
}

TEST_F(FieldList, AddingAFieldWhoseNameIsARowKeyAlreadyDoesNothing) {
    auto defs = give({{"A", 200}, {"B", 3}});
    // The rows follow every rename, so no collection can tell of a second "A": told directly.
    clickRow("B");
    const std::string before = listSnapshot();
    designer.moFieldDefs_AfterAdd(std::make_shared<FieldDef>("A", 3));
    EXPECT_EQ(listSnapshot(), before);
    EXPECT_EQ(designer.SelectedFieldDef(), defs->Item("B"));
}

TEST_F(FieldList, RemovingTheSelectedFieldSelectsAndShowsTheFirstRow) {
    auto defs = give({{"A", 200}, {"B", 3}, {"C", 8}});
    clickRow("C");
    defs->Remove("C");
    EXPECT_TRUE(designer.lst.item("A").selected());
    EXPECT_EQ(designer.SelectedFieldDef(), defs->Item("A"));
    EXPECT_EQ(panelState(), "A|200|Properties*,|pic1|cod0");
    defs->Remove("A");
    defs->Remove("B");
    EXPECT_EQ(designer.SelectedFieldDef(), nullptr);
    EXPECT_EQ(panelState(), "-|-1|Properties*,|pic1|cod0");
}

TEST_F(FieldList, TheReplacedCollectionIsNoLongerHeard) {
    auto old = give({{"A", 200}});
    give({{"B", 3}});
    old->Add("X", 200);
    old->Remove("A");
    EXPECT_EQ(listSnapshot(), "B|Long|||Not Required|||\n");
}

} // namespace
} // namespace morvel::testing
