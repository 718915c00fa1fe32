// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/designer_fixture.h"

#include <variant>

namespace morvel::testing {
namespace {

constexpr const char* kQuestion =
    "Find has reached the end of the field list. Do you want to start from the top?";

class Find : public DesignerTest {
protected:
    Find() {
        give({{"Alpha", 200},
              {"Owner", 1000},
              {"Photo", 2100},
              {"Beta", 200},
              {"Gamma", 200},
              {"Delta", 3}});
    }
    std::string shown() const { return designer.SelectedFieldDef()->Name(); }
};

TEST_F(Find, AsksBeforeWrappingToTheTopAndGoesOnOnlyOnYes) {
    clickRow("Gamma");
    prompter.answer("PHOTO");
    prompter.answer(view::MsgBoxResult::No);
    designer.cmdFind.click();
    EXPECT_EQ(shown(), "Gamma");
    prompter.answer(view::MsgBoxResult::Yes);
    designer.cmdFindNext.click();
    EXPECT_EQ(std::string(designer.lst.selectedItem()->text()) + shown(), "PhotoPhoto");

    EXPECT_EQ(
        prompter.promptTexts(),
        (std::vector<std::string>{"Enter the characters to find a field", kQuestion, kQuestion}));
    const auto& input = std::get<view::InputBoxRequest>(prompter.prompts().at(0));
    const auto& question = std::get<view::MessageBoxRequest>(prompter.prompts().at(2));
    EXPECT_TRUE(input.title == "Find a Field" && input.defaultText.empty());
    EXPECT_TRUE(question.buttons == view::MsgBoxButtons::YesNo &&
                question.icon == view::MsgBoxIcon::Question && question.title.empty());
}

TEST_F(Find, MatchesNamesAndTypeNamesButNeverTheSelectedRowItself) {
    prompter.answer("LINK");
    designer.cmdFind.click();
    EXPECT_EQ(shown(), "Owner"); // type "Link"
    designer.cmdFindNext.click();
    EXPECT_EQ(shown(), "Photo"); // type "File Link - Picture"
    clickRow("Alpha");
    prompter.answer("alpha");
    designer.cmdFind.click(); // nothing below the top row, and no question
    EXPECT_EQ(shown(), "Alpha");
    EXPECT_EQ(prompter.prompts().size(), 2u);
}

// Only the first row lies above the second, and the search still wraps to it.
TEST_F(Find, FromTheSecondRowTheSearchWrapsToTheFirst) {
    clickRow("Owner");
    prompter.answer("alpha");
    prompter.answer(view::MsgBoxResult::Yes);
    designer.cmdFind.click();
    EXPECT_EQ(shown(), "Alpha");
}

TEST_F(Find, AnEmptySearchTextMatchesTheNextRow) {
    designer.cmdFindNext.click();
    EXPECT_EQ(shown(), "Owner");
    prompter.answer("eta");
    designer.cmdFind.click();
    designer.cmdFind.click(); // cancelled: clears the search text and moves nothing
    EXPECT_EQ(shown(), "Beta");
    designer.cmdFindNext.click();
    EXPECT_EQ(shown(), "Gamma");
    designer.lst.setSelectedItem(nullptr);
    designer.cmdFindNext.click(); // no selected row: ends quietly
    EXPECT_EQ(designer.lst.selectedItem(), nullptr);
}

} // namespace
} // namespace morvel::testing
