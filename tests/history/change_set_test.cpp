// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "history/change_set.h"
#include "history/history.h"
#include "reliability/random_collection.h"
#include "testing/snapshot.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace morvel {
namespace {

class ChangeSetTest : public ::testing::Test {
protected:
    ChangeSetTest() {
        for (const char* name : {"Id", "Name", "Kind"}) {
            auto field = fields.Add(name, 200);
            field->Properties().SetValue("Min", 1, true);
            field->ListValues().SetValue("1", "One", true);
            field->ListValues().SetValue("2", "Two", true);
        }
        changes.rebase();
        history.clear();
    }

    // Every differing field as "Name: what changed", sorted, one item a line.
    std::string described() const {
        std::vector<std::string> lines;
        for (const FieldDifference& difference : changes.differences())
            lines.push_back(difference.field->Name() + ": " + describe(difference));
        std::sort(lines.begin(), lines.end());
        std::string text;
        for (const std::string& line : lines)
            text += line + "\n";
        return text;
    }

    FieldDefs fields;
    ChangeSet changes{fields};
    History history{fields};
};

struct Case {
    const char* what;
    std::function<void(FieldDefs&)> write;
    const char* expected = "";
};

// Each kind of change is told exactly, and undoing it leaves nothing: the set is a difference,
// not a log.
TEST_F(ChangeSetTest, EachKindOfChangeIsToldExactlyAndUndoingItEmptiesTheSet) {
    const std::vector<Case> cases = {
        {"member", [](FieldDefs& f) { f.Item("Name")->SetDisplayName("Full"); },
         "Name: DisplayName: \"\" -> \"Full\"\n"},
        {"rename", [](FieldDefs& f) { f.Item("Name")->SetName("Title"); },
         "Title: Name: \"Name\" -> \"Title\"\n"},
        {"number and flag",
         [](FieldDefs& f) {
             f.Item(1)->SetSize(40);
             f.Item(1)->SetCreateOnDemand(true);
         },
         "Id: Size: 0 -> 40\nCreateOnDemand: False -> True\n"},
        {"store add, change of kind, remove",
         [](FieldDefs& f) {
             f.Item(2)->Properties().SetValue("Max", 9, true);
             f.Item(2)->Properties().SetValue("Min", "1", true);
             f.Item(3)->ListValues().Remove("1");
         },
         "Kind: List values 1: \"One\" -> (none)\n"
         "Name: Properties Min: 1 -> \"1\"\nProperties Max: (none) -> 9\n"},
        {"list editor refill in another order",
         [](FieldDefs& f) {
             auto& field = *f.Item(3);
             field.ListValues().Clear();
             field.ListValues().SetValue("2", "Two", false);
             field.ListValues().SetValue("1", "One", false);
             field.CommitListValues();
         },
         "Kind: List values: new order\n"},
        {"insertion", [](FieldDefs& f) { f.Insert(2, std::make_shared<FieldDef>("New", 3)); },
         "New: New field\n"},
        {"removal", [](FieldDefs& f) { f.Remove("Name"); }, "Name: Removed\n"},
        {"move", [](FieldDefs& f) { f.Move(1, 3); }, "Id: Moved\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        {
            const auto step = fields.beginStep(c.what, ChangeOrigin::Person);
            c.write(fields);
        }
        EXPECT_EQ(described(), c.expected);
        EXPECT_FALSE(changes.empty());
        history.undo();
        EXPECT_EQ(described(), "");
        EXPECT_TRUE(changes.empty());
        history.clear();
    }
}

// Getting back to the baseline by hand counts the same as undoing.
TEST_F(ChangeSetTest, WritingTheBaselineBackEmptiesTheSet) {
    const std::vector<Case> cases = {
        {"add then remove",
         [](FieldDefs& f) {
             f.Add("Temp", 200)->SetSize(3);
             f.Remove("Temp");
         }},
        {"type then retype",
         [](FieldDefs& f) {
             f.Item("Id")->SetDisplayName("I");
             f.Item("Id")->SetDisplayName("");
             f.Item("Id")->Properties().SetValue("Min", 2, true);
             f.Item("Id")->Properties().SetValue("Min", 1, true);
         }},
        {"same list written again",
         [](FieldDefs& f) {
             auto& field = *f.Item(1);
             field.ListValues().Clear();
             field.ListValues().SetValue("1", "One", false);
             field.ListValues().SetValue("2", "Two", false);
             field.CommitListValues();
         }},
        {"move there and back",
         [](FieldDefs& f) {
             f.Move(1, 3);
             f.Move(3, 1);
         }},
        {"remove and put back where it was",
         [](FieldDefs& f) {
             auto field = f.Item("Name");
             f.Remove("Name");
             f.Insert(2, field);
         }},
    };
    int emptied = 0;
    auto watch = changes.emptyChanged.connect([&] { emptied += changes.empty() ? 1 : 0; });
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        c.write(fields);
        EXPECT_EQ(described(), "");
    }
    EXPECT_EQ(emptied, 6); // type then retype empties it twice
}

TEST_F(ChangeSetTest, MovesAmongAddedAndRemovedFieldsCountOnlyTheOrderOfTheBaseline) {
    fields.Add("Tail", 200);
    fields.Move(4, 1); // an added field moved: still only new
    fields.Remove("Name");
    EXPECT_EQ(described(), "Name: Removed\nTail: New field\n");
    fields.Move(2, 3); // Id after Kind
    EXPECT_TRUE(changes.orderDiffers());
    fields.Move(3, 2);
    EXPECT_EQ(described(), "Name: Removed\nTail: New field\n");
    EXPECT_FALSE(changes.orderDiffers());
}

TEST_F(ChangeSetTest, BaselineReadsGiveTheLoadedStateAndRebaseStartsAgain) {
    auto& id = *fields.Item("Id");
    id.SetFieldType(3);
    id.ListValues().SetValue("3", "Three", true);
    EXPECT_EQ(changes.baselineMember(id, FieldMember::FieldType), Value(200));
    EXPECT_EQ(changes.baselineMember(id, FieldMember::Size), Value(0));
    EXPECT_EQ(changes.baselineStore(id, StoreName::ListValues).size(), 2u);
    EXPECT_TRUE(changes.storeDiffers(id.id(), StoreName::ListValues));
    EXPECT_FALSE(changes.storeDiffers(id.id(), StoreName::Properties));
    changes.rebase();
    EXPECT_TRUE(changes.empty());
    history.undo();
    history.undo();
    EXPECT_EQ(described(), "Id: FieldType: 3 -> 200\nList values 3: \"Three\" -> (none)\n");
}

// Random writes of every kind, then every step undone: whatever the mix, the set ends empty, and
// at every step it is empty exactly when the collection equals the baseline.
TEST(ChangeSetRandomTest, EmptyExactlyWhenTheCollectionEqualsItsBaseline) {
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        auto fields = reliability::randomCollection(seed, 6);
        ChangeSet changes(*fields);
        History history(*fields);
        const std::string baseline = testkit::fieldsSnapshot(*fields);
        reliability::RandomSource random(seed);
        for (int i = 0; i < 40; ++i) {
            const auto which = random.between(0, 9);
            if (which == 0 && fields->Count() > 1)
                fields->Move(random.between(1, fields->Count()),
                             random.between(1, fields->Count()));
            else if (which == 1)
                fields->Add("F" + std::to_string(i), 200);
            else if (which == 2 && fields->Count() > 1)
                fields->Remove(fields->Item(random.between(1, fields->Count()))->Name());
            else
                reliability::randomWrite(random, *fields->Item(random.between(1, fields->Count())));
            history.breakMerge();
            ASSERT_EQ(changes.empty(), testkit::fieldsSnapshot(*fields) == baseline);
        }
        while (history.canUndo()) {
            history.undo();
            ASSERT_EQ(changes.empty(), testkit::fieldsSnapshot(*fields) == baseline);
        }
        EXPECT_TRUE(changes.empty());
    }
}

} // namespace
} // namespace morvel
