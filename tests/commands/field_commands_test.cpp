// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "commands/field_commands.h"
#include "control/designer_fixture.h"

namespace morvel::testing {
namespace {

class FieldCommandsTest : public DesignerTest {
protected:
    FieldCommandsTest()
        : commands(designer, prompter) {
        fields = give({{"A", 200}, {"B", 200}, {"C", 200}, {"D", 200}, {"E", 200}});
    }

    // The rows, then the field shown and the row selected: "A B D E|D|D".
    std::string snapshot() const {
        std::string rows;
        for (std::int32_t i = 1; i <= designer.lst.count(); ++i)
            rows += std::string(i > 1 ? " " : "") + std::string(designer.lst.item(i).text());
        const auto& shown = designer.SelectedFieldDef();
        const auto* selected = designer.lst.selectedItem();
        return rows + "|" + (shown ? shown->Name() : "-") + "|" +
               (selected ? std::string(selected->text()) : "-");
    }

    commands::FieldCommands commands;
    std::shared_ptr<FieldDefs> fields;
};

TEST_F(FieldCommandsTest, RemovingAsksFirstThenShowsTheRowThatTookItsPlace) {
    struct Case {
        const char* shown;
        view::MsgBoxResult answer;
        const char* after;
    };
    for (const Case& c : {Case{"C", view::MsgBoxResult::Yes, "A B D E|D|D"},
                          Case{"E", view::MsgBoxResult::Yes, "A B C D|D|D"},
                          Case{"A", view::MsgBoxResult::Yes, "B C D E|B|B"},
                          Case{"C", view::MsgBoxResult::No, "A B C D E|C|C"}}) {
        SCOPED_TRACE(c.shown);
        fields = give({{"A", 200}, {"B", 200}, {"C", 200}, {"D", 200}, {"E", 200}});
        prompter.reset();
        clickRow(c.shown);
        prompter.answer(c.answer);
        EXPECT_EQ(commands.removeCurrentField(), c.answer == view::MsgBoxResult::Yes);
        EXPECT_EQ(snapshot(), c.after);
        EXPECT_EQ(prompter.promptTexts(),
                  std::vector<std::string>{"Remove the field \"" + std::string(c.shown) + "\"?"});
    }
}

TEST_F(FieldCommandsTest, RemovingTheOnlyFieldLeavesNothingShown) {
    give({{"Only", 200}});
    prompter.answer(view::MsgBoxResult::Yes);
    EXPECT_TRUE(commands.removeCurrentField());
    EXPECT_EQ(snapshot(), "|-|-");
    EXPECT_FALSE(commands.removeCurrentField()) << "nothing is shown, nothing is asked";
    EXPECT_EQ(prompter.prompts().size(), 1u);
}

TEST_F(FieldCommandsTest, NewFieldsTakeTheFirstFreeNameAndAreShown) {
    fields->Add("newfield2", 200);
    EXPECT_EQ(commands.newField()->Name(), "NewField");
    EXPECT_EQ(commands.newField()->Name(), "NewField3");
    EXPECT_EQ(snapshot(), "A B C D E newfield2 NewField NewField3|NewField3|NewField3");
}

TEST_F(FieldCommandsTest, MakingAFieldCurrentByNameIsAClickOnItsRow) {
    ASSERT_TRUE(designer.txtDisplayName.setFocus());
    EXPECT_TRUE(commands.makeCurrent("d"));
    EXPECT_EQ(snapshot(), "A B C D E|D|D");
    EXPECT_EQ(designer.focused(), &designer.lst) << "the keyboard stays on the list";
    EXPECT_FALSE(commands.makeCurrent("Z"));
    EXPECT_EQ(snapshot(), "A B C D E|D|D");
}

} // namespace
} // namespace morvel::testing
