#include "dialogs/dialog_support.h"
#include "dialogs/frm_edit_list.h"
#include "view/modal_host.h"

#include <gtest/gtest.h>

namespace morvel::testing {
namespace {

using view::MsgBoxButtons;
using view::MsgBoxIcon;
using view::MsgBoxResult;

class EditListTest : public ::testing::Test {
protected:
    // A field of the type with the given (value, display text) entries, loaded into the form.
    std::shared_ptr<FieldDef>
    open(int type, std::initializer_list<std::pair<const char*, const char*>> values) {
        auto field = std::make_shared<FieldDef>("Colour", type);
        for (const auto& [key, text] : values)
            field->ListValues().SetValue(key, text, true);
        form.SetFieldDef(field);
        form.LoadData();
        changes = field->onChanged([this](const FieldChange& change) {
            ++changeCount;
            if (change.member == FieldMember::ListValuesCommitted)
                ++commits;
        });
        return field;
    }
    // Runs the steps while the dialog is shown modally, as the designer shows it.
    void drive(std::function<void()> steps) {
        host.setScript([&](view::Form&) { steps(); });
        host.showModal(form);
        host.setScript({});
    }
    // Answers the input box, and the question that may follow it.
    void addSpecific(std::string answer, MsgBoxResult question = MsgBoxResult::No) {
        prompter.reset();
        prompter.answer(std::move(answer));
        prompter.answer(question);
        form.cmdAddSpecific.click();
    }

    view::ScriptedPrompter prompter;
    view::ScriptedModalHost host;
    dialogs::frmEditList form{prompter};
    Connection changes;
    int changeCount = 0;
    int commits = 0;
};

TEST_F(EditListTest, AddItemCountsOnFromTheLargestStoredValueAndStartsEditing) {
    open(1100, {{"1", "One"}, {"5", "Five"}, {"2", "Two"}});
    EXPECT_EQ(form.largestValue(), 5);
    form.cmdNew.click();
    view::ListItem* added = form.lstValues.find("I6");
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->text(), "New Item");
    EXPECT_EQ(added->subItem(1), "6");
    EXPECT_TRUE(added->selected());
    EXPECT_TRUE(form.lstValues.hasFocus());
    form.cmdNew.click();
    EXPECT_NE(form.lstValues.find("I7"), nullptr);
}

TEST_F(EditListTest, BitMaskValuesDoubleUntilTheHighestBit) {
    open(1105, {{"1", "A"}, {"2", "B"}, {"8", "C"}});
    addSpecific(""); // cancelled: only the proposal matters here
    const auto& box = std::get<view::InputBoxRequest>(prompter.prompts().front());
    EXPECT_EQ(box.prompt, "Enter the value for the new item");
    EXPECT_EQ(box.title, "New Item Value");
    EXPECT_EQ(box.defaultText, "16");
    form.cmdNew.click();
    EXPECT_NE(form.lstValues.find("I16"), nullptr);

    open(1106, {{"1073741824", "Top"}});
    prompter.reset();
    form.cmdNew.click();
    form.cmdAddSpecific.click();
    EXPECT_EQ(form.lstValues.count(), 1);
    EXPECT_TRUE(prompter.prompts().empty());
}

TEST_F(EditListTest, EmptyBitMaskFieldAddsOneButAddSpecificDoesNothing) {
    open(1105, {});
    form.cmdAddSpecific.click();
    EXPECT_TRUE(prompter.prompts().empty());
    EXPECT_EQ(form.lstValues.count(), 0);
    form.cmdNew.click();
    EXPECT_EQ(rowsText(form.lstValues), "New Item|1");
}

TEST_F(EditListTest, BitTestIsLooseAndRefusesOnlyValuesWithoutLowBits) {
    open(1105, {{"1", "A"}});
    addSpecific("3");
    EXPECT_NE(form.lstValues.find("I3"), nullptr);
    addSpecific("-2147483648");
    expectMessage(prompter, "The value must be a valid bit value (eg. 1, 2, 4, 8, 16, 32, 64, etc)",
                  MsgBoxButtons::OK, MsgBoxIcon::Information, "");
    EXPECT_EQ(form.lstValues.find("I-2147483648"), nullptr);
}

TEST_F(EditListTest, ZeroIsRefusedForMultipleBitMasksAndQuestionedElsewhere) {
    open(1106, {{"1", "A"}});
    addSpecific("0");
    expectMessage(prompter, "Muliple Bit Mask fields can't have a zero (0) value in the list.",
                  MsgBoxButtons::OK, MsgBoxIcon::Information, "");
    EXPECT_EQ(form.lstValues.find("I0"), nullptr);

    const std::string question =
        "You have entered a zero (0) value. Are you sure this is the correct value?";
    open(1105, {{"1", "A"}});
    prompter.answer("0");
    form.cmdAddSpecific.click();
    expectMessage(prompter, question, MsgBoxButtons::YesNo, MsgBoxIcon::None, "");
    EXPECT_EQ(form.lstValues.find("I0"), nullptr); // unanswered: No

    open(1100, {{"1", "A"}});
    addSpecific("0", MsgBoxResult::Yes);
    EXPECT_NE(form.lstValues.find("I0"), nullptr);
    EXPECT_EQ(form.largestValue(), 1);
}

TEST_F(EditListTest, DuplicateTestLooksAtTheStoredListOnly) {
    open(1100, {{"1", "A"}, {"2", "B"}, {"5", "C"}});
    form.lstValues.clickItem(form.lstValues.item("I2"));
    EXPECT_EQ(form.lblValue.caption(), "Value: 2");
    form.lstValues.keyDown(46);
    EXPECT_EQ(form.lstValues.find("I2"), nullptr);
    EXPECT_EQ(form.lstValues.selectedItem(), nullptr);

    // Deleted here but still stored: refused as a duplicate.
    addSpecific("2");
    expectMessage(prompter, "The value already exists in the list", MsgBoxButtons::OK,
                  MsgBoxIcon::Information, "");
    EXPECT_EQ(form.lstValues.find("I2"), nullptr);

    // Added here but not stored: passes the test, then fails quietly on the taken row key.
    form.cmdNew.click();
    addSpecific("6");
    EXPECT_EQ(prompter.prompts().size(), 1U);
    EXPECT_EQ(form.lstValues.count(), 3);
}

TEST_F(EditListTest, OkWritesTheListSortedByDisplayTextAndCommitsOnce) {
    auto field = open(1100, {{"1", "Red"}, {"2", "blue"}});
    drive([&] {
        form.cmdNew.click();
        form.lstValues.editLabel(*form.lstValues.selectedItem(), "Amber");
        form.cmdOK.click();
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(storeText(field->ListValues()), "3=Amber; 2=blue; 1=Red");
    EXPECT_EQ(commits, 1);
    EXPECT_FALSE(field->ListValues().rewriting());
}

TEST_F(EditListTest, CancelLeavesTheFieldExactlyAsItWas) {
    auto field = open(1100, {{"1", "Red"}, {"2", "Blue"}});
    drive([&] {
        form.cmdNew.click();
        form.lstValues.editLabel(form.lstValues.item("I1"), "Crimson");
        form.lstValues.clickItem(form.lstValues.item("I2"));
        form.lstValues.keyDown(46);
        form.cmdCancel.click();
    });
    EXPECT_EQ(storeText(field->ListValues()), "1=Red; 2=Blue");
    EXPECT_EQ(changeCount, 0);
}

TEST_F(EditListTest, OkOnAnEmptiedListLeavesTheFieldEmpty) {
    auto field = open(1101, {{"1", "Red"}});
    form.lstValues.clickItem(form.lstValues.item("I1"));
    form.lstValues.keyDown(46);
    form.cmdOK_Click();
    EXPECT_EQ(field->ListValues().Count(), 0);
    EXPECT_EQ(commits, 1);
}

TEST_F(EditListTest, ResizeKeepsButtonsInTheCornerAndToleratesTinySizes) {
    form.setGeometry({0, 0, 9000, 7000});
    const std::int32_t w = form.scaleWidth();
    const std::int32_t h = form.scaleHeight();
    EXPECT_EQ(form.lstValues.geometry(), (view::Rect{120, 120, w - 240, h - 1080}));
    EXPECT_EQ(form.cmdOK.geometry().right(), w - 120);
    EXPECT_EQ(form.cmdOK.geometry().bottom(), h - 120);
    EXPECT_EQ(form.cmdCancel.geometry().right(), form.cmdOK.left() - 120);
    EXPECT_EQ(form.cmdAddSpecific.top(), form.cmdOK.top());
    EXPECT_LT(form.cmdAddSpecific.geometry().right(), form.cmdCancel.left());
    EXPECT_LT(form.lblValue.geometry().bottom(), form.cmdOK.top());

    form.setGeometry({0, 0, 300, 600}); // the list cannot shrink below nothing: skipped
    EXPECT_EQ(form.lblValue.top(), form.scaleHeight() - 855);
}

} // namespace
} // namespace morvel::testing
