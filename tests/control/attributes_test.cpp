// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "control/designer_fixture.h"

namespace morvel::testing {
namespace {

// Fields handed over with the collection are locked by default; these tests edit them.
class AttributeEditing : public DesignerTest {
protected:
    AttributeEditing() { designer.SetCanModifyExisting(true); }
};

TEST_F(AttributeEditing, NameLosesLeadingDigitsAndIsRenamedUntrimmedOnLeaving) {
    auto defs = give({{"Alpha", 200}, {"Beta", 200}});
    designer.txtName.type("");
    typeInto(designer.txtName, "12ab");
    EXPECT_EQ(designer.txtName.text(), "ab");
    // The second pass trims to "x" and leaves the box alone, so the leading blank survives.
    designer.txtName.type(" 7 x");
    EXPECT_EQ(defs->Item(1)->Name(), "Alpha");
    designer.txtDisplayName.setFocus();
    EXPECT_EQ(defs->Item(1)->Name(), " x");
    clickRow(" x"); // the row's key followed, so it still maps back to its field
    EXPECT_EQ(designer.SelectedFieldDef(), defs->Item(1));

    designer.txtName.type("BETA"); // taken, letter case aside: undone without a word
    designer.txtDisplayName.setFocus();
    EXPECT_EQ(designer.txtName.text() + defs->Item(1)->Name() +
                  std::string(designer.lst.item(1).key()),
              " x x x");
    EXPECT_TRUE(prompter.prompts().empty());
}

TEST_F(AttributeEditing, EditsReachTheFieldAndOnlyTheirOwnColumns) {
    auto defs = give({{"Code", 8}});
    const FieldDef& field = *defs->Item(1);
    designer.txtSize.type("abc");
    designer.txtDisplayName.type("Code No");
    pickByData(designer.cboValidation, 1);
    designer.txtCtrlList.type("VALUELABEL");
    designer.txtCtrlEdit.pick(0); // a picked suggestion raises no Change: stored on leaving
    designer.txtDescription.type("The code");
    designer.txtDefault.type("X1");
    EXPECT_EQ(listSnapshot(), "Code|VarChar|abc|Code No|Required||TEXTAREA|VALUELABEL\n");
    EXPECT_EQ(field.Size(), 0);
    EXPECT_EQ(field.Validation(), 1);
    EXPECT_EQ(field.CtrlEdit() + "|" + field.Description() + "|" + field.DefaultValue(),
              "TEXTAREA|The code|X1");
}

TEST_F(AttributeEditing, StatusIsKeptForDirectLinksOnly) {
    auto defs = give({{"Note", 200}, {"Owner", 1000}});
    designer.txtStatus.setText("5");
    EXPECT_EQ(defs->Item(1)->Properties().Count(), 0);
    clickRow("Owner");
    designer.txtStatus.setText("7x");
    EXPECT_EQ(defs->Item(2)->Properties().GetValue("zrDirect.S", {}), Value(7));
}

TEST_F(AttributeEditing, WithoutFieldOnlyHandlersThatCatchNothingFail) {
    give({});
    EXPECT_THROW(designer.txtName_LostFocus(), NoCurrentFieldError);
    EXPECT_THROW(designer.chkCreateOnDemand_Click(), NoCurrentFieldError);
    designer.txtDescription_Change(); // skips its failing step
    designer.cmdList_Click();
    designer.cmdLocale_Click();
    EXPECT_EQ(modalHost.shown(), 0);
}

} // namespace
} // namespace morvel::testing
