// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "dialogs/dialog_support.h"
#include "dialogs/frm_edit_list.h"
#include "testing/scripted_modal_host.h"
#include "testing/scripted_prompter.h"
#include "view/modal_host.h"

#include <gtest/gtest.h>

namespace morvel::testing {
namespace {

using Values = std::initializer_list<std::pair<const char*, const char*>>;

class EditListTest : public ::testing::Test {
protected:
    // A field of the type with the given (value, display text) entries, loaded into the form.
    std::shared_ptr<FieldDef> open(int type, Values values) {
        auto field = std::make_shared<FieldDef>("Colour", type);
        for (const auto& [key, text] : values)
            field->ListValues().SetValue(key, text, true);
        form.SetFieldDef(field);
        form.LoadData();
        watch = field->onChanged([this](const FieldChange& change) {
            ++writes;
            commits += change.member == FieldMember::ListValuesCommitted;
        });
        return field;
    }
    // Answers the input box with the text and the question that may follow with the result.
    void addSpecific(std::string text, view::MsgBoxResult question = view::MsgBoxResult::No) {
        prompter.reset();
        prompter.answer(std::move(text));
        prompter.answer(question);
        form.cmdAddSpecific.click();
    }
    void deleteRow(const char* key) {
        form.lstValues.clickItem(form.lstValues.item(key));
        form.lstValues.keyDown(46);
    }
    bool has(const char* key) const { return form.lstValues.find(key) != nullptr; }

    testkit::ScriptedPrompter prompter;
    dialogs::frmEditList form{prompter};
    Connection watch;
    int writes = 0;
    int commits = 0;
};

TEST_F(EditListTest, AddItemCountsOnFromTheLargestStoredValueAndStartsEditing) {
    open(1100, {{"1", "One"}, {"5", "Five"}, {"2", "Two"}});
    form.cmdNew.click();
    ASSERT_TRUE(has("I6"));
    EXPECT_TRUE(form.lstValues.item("I6").selected());
    form.cmdNew.click();
    EXPECT_EQ(rowsText(form.lstValues), "Five|5; New Item|6; New Item|7; One|1; Two|2");
}

TEST_F(EditListTest, BitMaskValuesDoubleAndStopSilentlyAtTheHighestBit) {
    open(1105, {{"1", "A"}, {"2", "B"}, {"8", "C"}});
    addSpecific("");
    EXPECT_EQ(std::get<view::InputBoxRequest>(prompter.prompts().front()).defaultText, "16");
    form.cmdNew.click();
    EXPECT_TRUE(has("I16"));

    open(1106, {{"1073741824", "Top"}});
    prompter.reset();
    form.cmdNew.click();
    form.cmdAddSpecific.click();
    EXPECT_EQ(form.lstValues.count(), 1);
    EXPECT_EQ(lastPrompt(prompter), "(none)");

    // An empty bit-mask list: Add Item starts at 1, Add Specific Value does nothing at all.
    open(1105, {});
    form.cmdAddSpecific.click();
    EXPECT_EQ(lastPrompt(prompter), "(none)");
    form.cmdNew.click();
    EXPECT_EQ(rowsText(form.lstValues), "New Item|1");
}

TEST_F(EditListTest, SpecificValuesPassTheBitZeroAndDuplicateRules) {
    open(1105, {{"1", "A"}});
    addSpecific("3"); // the bit test is loose: any of bits 0 to 30 will do
    EXPECT_EQ(lastPrompt(prompter), "Enter the value for the new item|New Item Value|2");
    EXPECT_TRUE(has("I3"));
    addSpecific("-2147483648");
    EXPECT_EQ(lastPrompt(prompter), "The value must be a valid bit value (eg. 1, 2, 4, 8, 16, 32, "
                                    "64, etc)|OK|Information|");
    addSpecific("0", view::MsgBoxResult::No);
    EXPECT_EQ(lastPrompt(prompter), "You have entered a zero (0) value. Are you sure this is the "
                                    "correct value?|YesNo|None|");
    EXPECT_FALSE(has("I0"));

    open(1106, {{"1", "A"}});
    addSpecific("0", view::MsgBoxResult::Yes);
    EXPECT_EQ(lastPrompt(prompter),
              "Muliple Bit Mask fields can't have a zero (0) value in the list.|OK|Information|");
    EXPECT_FALSE(has("I0"));

    open(1100, {{"1", "A"}, {"2", "B"}});
    addSpecific("x", view::MsgBoxResult::Yes); // not a number: zero, and accepted on Yes
    EXPECT_TRUE(has("I0"));
    EXPECT_EQ(form.largestValue(), 2);
    // Deleted here but still stored: refused. Added here but not stored: fails on its row key.
    deleteRow("I2");
    addSpecific("2");
    EXPECT_EQ(lastPrompt(prompter), "The value already exists in the list|OK|Information|");
    EXPECT_FALSE(has("I2"));
    form.cmdNew.click();
    addSpecific("3");
    EXPECT_EQ(prompter.prompts().size(), 1U);
    EXPECT_EQ(form.lstValues.count(), 3);
}

TEST_F(EditListTest, OnlyOkWritesTheListInDisplayTextOrderAndCommitsOnce) {
    auto field = open(1100, {{"1", "Red"}, {"2", "blue"}});
    form.cmdNew.click();
    form.lstValues.editLabel(*form.lstValues.selectedItem(), "Amber");
    deleteRow("I2");
    EXPECT_EQ(form.lblValue.caption(), "Value: 2");
    form.cmdCancel.click();
    EXPECT_EQ(writes, 0);

    field = open(1100, {{"1", "Red"}, {"2", "blue"}});
    form.cmdNew.click();
    form.lstValues.editLabel(*form.lstValues.selectedItem(), "Amber");
    testkit::ScriptedModalHost host;
    host.setScript([&](view::Form&) { form.cmdOK.click(); });
    host.showModal(form);
    EXPECT_EQ(storeText(field->ListValues()), "3=Amber; 2=blue; 1=Red");
    EXPECT_EQ(commits, 1);
    EXPECT_FALSE(form.isOpen());

    for (const char* key : {"I1", "I2", "I3"})
        deleteRow(key);
    form.cmdOK_Click();
    EXPECT_EQ(field->ListValues().Count(), 0);
    EXPECT_EQ(commits, 2);
}

TEST_F(EditListTest, ResizeKeepsButtonsInTheCornerAndSkipsWhatDoesNotFit) {
    form.setGeometry({0, 0, 9000, 7000});
    EXPECT_EQ(form.cmdOK.geometry().right(), form.scaleWidth() - 120);
    EXPECT_EQ(form.cmdOK.geometry().bottom(), form.scaleHeight() - 120);
    EXPECT_EQ(form.cmdCancel.geometry().right(), form.cmdOK.left() - 120);
    EXPECT_LT(form.cmdAddSpecific.geometry().right(), form.cmdCancel.left());
    EXPECT_LT(form.lblValue.geometry().bottom(), form.cmdOK.top());
    form.setGeometry({0, 0, 300, 600}); // too small for the list: that step alone is skipped
    EXPECT_EQ(form.lblValue.top(), form.scaleHeight() - 855);
}

} // namespace
} // namespace morvel::testing
