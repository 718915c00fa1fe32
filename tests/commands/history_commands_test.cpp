// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "commands/history_commands.h"
#include "control/designer_fixture.h"
#include "history/history.h"

#include <functional>
#include <optional>

namespace morvel::testing {
namespace {

// Undo and redo as the window runs them: the edit in progress ends first, and afterwards the
// field the step changed is shown on the page of what changed, with the keyboard on the list.
class HistoryCommandsTest : public DesignerTest {
protected:
    // Also run again by a table's cases: the history goes before the collection it watches.
    void SetUp() override {
        history.reset();
        fields = give({{"A", 200}, {"B", 1000}, {"C", 200}, {"D", 200}});
        designer.SetCanModifyExisting(true);
        history.emplace(*fields);
    }
    void TearDown() override { history.reset(); }

    // The rows, the field shown, the page and what has the keyboard: "A B C D|B|2|lst".
    std::string where() const {
        std::string out;
        for (std::int32_t i = 1; i <= designer.lst.count(); ++i)
            out += std::string(i > 1 ? " " : "") + std::string(designer.lst.item(i).key());
        const auto& shown = designer.SelectedFieldDef();
        const view::Control* focused = designer.focused();
        return out + "|" + (shown ? shown->Name() : "-") + "|" +
               std::to_string(designer.TabStrip.selectedIndex()) + "|" +
               (focused ? std::string(focused->name()) : "-");
    }
    void hostStep(const char* text, const std::function<void()>& write) {
        const auto step = fields->beginStep(text, ChangeOrigin::Host);
        write();
    }

    std::shared_ptr<FieldDefs> fields;
    std::optional<History> history;
    commands::HistoryCommands commands{designer};
};

TEST_F(HistoryCommandsTest, UndoAndRedoShowTheFieldAndPageTheStepChanged) {
    struct Case {
        const char* what;
        std::function<void()> act;
        const char* undone;
        const char* redone;
    };
    const Case cases[] = {
        {"a typed display name, while another field is shown",
         [&] {
             clickRow("C");
             typeInto(designer.txtDisplayName, "Cee");
             clickRow("A");
         },
         "A B C D|C|1|lst", "A B C D|C|1|lst"},
        {"a type setting, undone from the first page of another field",
         [&] {
             clickRow("B");
             designer.TabStrip.setSelectedIndex(2);
             typeInto(designer.txtLinkIDField, "Id");
             designer.TabStrip.setSelectedIndex(1);
             clickRow("D");
         },
         "A B C D|B|2|lst", "A B C D|B|2|lst"},
        {"a member of the link field, undone from its type page",
         [&] {
             clickRow("B");
             typeInto(designer.txtDescription, "Owner");
             designer.TabStrip.setSelectedIndex(2);
         },
         "A B C D|B|1|lst", "A B C D|B|1|lst"},
        {"a name typed and not yet applied",
         [&] {
             clickRow("D");
             typeInto(designer.txtName, "2");
         },
         "A B C D|D|1|lst", "A B C D2|D2|1|lst"},
        {"the removal of the field shown",
         [&] {
             clickRow("C");
             hostStep("Remove field C", [&] { fields->Remove("C"); });
         },
         "A B C D|C|1|lst", "A B D|D|1|lst"},
        {"the removal of a field whose name the name box would store otherwise",
         [&] {
             fields->Item("C")->SetName("3C");
             history->clear();
             clickRow("3C");
             hostStep("Remove field 3C", [&] { fields->Remove("3C"); });
         },
         "A B 3C D|3C|1|lst", "A B D|D|1|lst"},
        {"the removal of another field",
         [&] {
             clickRow("A");
             hostStep("Remove field B", [&] { fields->Remove("B"); });
         },
         "A B C D|B|1|lst", "A C D|C|1|lst"},
        {"an added field", [&] { hostStep("Add field E", [&] { fields->Add("E", 200); }); },
         "A B C D|D|1|lst", "A B C D E|E|1|lst"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        SetUp();
        c.act();
        ASSERT_TRUE(commands.undo(*history));
        EXPECT_EQ(where(), c.undone);
        EXPECT_FALSE(history->canUndo()) << "one step, the edit in progress included";
        ASSERT_TRUE(commands.redo(*history));
        EXPECT_EQ(where(), c.redone);
    }
}

TEST_F(HistoryCommandsTest, JumpsGoToAnyStepAndRefuseThePresentOrBeyond) {
    for (const char* name : {"E", "F", "G"})
        hostStep("Add", [&] { fields->Add(name, 200); });
    EXPECT_FALSE(commands.jumpTo(*history, 3)) << "the present state";
    EXPECT_FALSE(commands.jumpTo(*history, 4));
    EXPECT_TRUE(commands.jumpTo(*history, 0));
    EXPECT_EQ(where(), "A B C D|D|1|lst");
    EXPECT_TRUE(commands.jumpTo(*history, 2));
    EXPECT_EQ(where(), "A B C D E F|F|1|lst");
    EXPECT_TRUE(commands.redo(*history));
    EXPECT_FALSE(commands.redo(*history));
    EXPECT_EQ(history->index(), 3u);
}

} // namespace
} // namespace morvel::testing
