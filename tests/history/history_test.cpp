// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "history/history.h"
#include "reliability/random_collection.h"
#include "testing/snapshot.h"

#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace morvel {
namespace {

class HistoryTest : public ::testing::Test {
protected:
    HistoryTest() {
        for (const char* name : {"Id", "Name", "Kind"})
            fields.Add(name, 200);
        history.clear();
    }

    // What one person did, as the control wraps each handler.
    void personStep(const std::function<void()>& write) {
        const auto step = fields.beginStep("Edit", ChangeOrigin::Person);
        write();
    }

    FieldDefs fields;
    History history{fields};
};

TEST_F(HistoryTest, UndoneRemovalPutsTheSameFieldBackAndEveryoneHearsIt) {
    const auto removed = fields.Item("Name");
    fields.Remove("Name");
    std::vector<std::string> heard;
    auto inserted = fields.inserted.connect([&](const FieldPlaced& placed) {
        heard.push_back(std::string(originName(placed.step.origin)) + " " +
                        std::to_string(placed.position));
    });
    history.undo();
    EXPECT_EQ(fields.Item(2), removed);
    EXPECT_EQ(heard, std::vector<std::string>{"Undo 2"});
    EXPECT_EQ(history.count(), 1u); // nothing recorded while undo applies
    EXPECT_EQ(history.redoText(), "Remove field Name");
}

TEST_F(HistoryTest, StepsGroupAsTheLibrarySays) {
    {
        const auto step = fields.beginStep("Change type of Id", ChangeOrigin::Person);
        fields.Item("Id")->SetFieldType(3);
        const auto inner = fields.beginStep("ignored", ChangeOrigin::Host);
        fields.Item("Id")->SetSize(0);
        fields.Item("Id")->SetSize(4);
    }
    fields.Item("Kind")->SetDescription("Host write");
    { const auto empty = fields.beginStep("Nothing", ChangeOrigin::Person); }
    ASSERT_EQ(history.count(), 2u);
    EXPECT_EQ(history.text(0), "Change type of Id");
    EXPECT_EQ(history.text(1), "Change Description of Kind");
    const std::string edited = testkit::fieldsSnapshot(fields);
    history.setIndex(0);
    EXPECT_EQ(fields.Item("Id")->FieldType(), 200);
    EXPECT_EQ(fields.Item("Id")->Size(), 0);
    history.setIndex(2);
    EXPECT_EQ(testkit::fieldsSnapshot(fields), edited);
}

TEST_F(HistoryTest, KeystrokesInOneBoxMergeUntilTheFocusLeavesOrAnotherBoxIsUsed) {
    auto& id = *fields.Item("Id");
    const std::string loaded = testkit::fieldsSnapshot(fields);
    for (const char* typed : {"C", "Co", "Cod", "Code"})
        personStep([&] { id.SetDisplayName(typed); });
    for (const char* typed : {"A", "Ab"}) // a locale key added, then changed
        personStep([&] { id.SetLocaleDisplayName("1036", typed); });
    personStep([&] { id.SetLocaleDisplayName("1036", "Abc"); });
    history.breakMerge();
    personStep([&] { id.SetLocaleDisplayName("1036", "Abcd"); });
    fields.Item("Kind")->SetDisplayName("K"); // a host write is its own step
    personStep([&] { fields.Item("Kind")->SetDisplayName("Ki"); });
    ASSERT_EQ(history.count(), 5u);
    const std::size_t bytes = history.memoryUse();
    for (std::size_t i = 0; i < 50; ++i)
        personStep([&] { fields.Item("Kind")->SetDisplayName("Ki" + std::string(i, 'x')); });
    EXPECT_EQ(history.count(), 5u);
    EXPECT_LT(history.memoryUse(), bytes + 100); // grows with the text, not the keystrokes
    history.undo();
    EXPECT_EQ(fields.Item("Kind")->DisplayName(), "K");
    history.undo();
    history.undo();
    EXPECT_EQ(id.LocaleDisplayName("1036"), "Abc");
    history.undo();
    EXPECT_EQ(id.LocaleDisplayName("1036"), "");
    history.undo();
    EXPECT_EQ(testkit::fieldsSnapshot(fields), loaded);
    history.setIndex(2);
    EXPECT_EQ(id.DisplayName(), "Code");
    EXPECT_EQ(id.LocaleDisplayName("1036"), "Abc");
}

TEST_F(HistoryTest, CleanPointFollowsUndoAndRedo) {
    std::vector<std::string> states;
    auto watch = history.stateChanged.connect([&] {
        states.push_back(std::to_string(history.index()) + (history.isClean() ? "c" : ""));
    });
    personStep([&] { fields.Item(1)->SetDisplayName("A"); });
    history.setClean();
    personStep([&] { fields.Item(1)->SetDisplayName("AB"); }); // no merge across the save
    history.undo();
    history.undo();
    history.redo();
    EXPECT_EQ(states, (std::vector<std::string>{"1", "1c", "2", "1c", "0", "1c"}));
    history.undo();
    personStep([&] { fields.Item(1)->SetDescription("other"); }); // the saved state is gone
    EXPECT_FALSE(history.cleanIndex().has_value());
    EXPECT_FALSE(history.canRedo());
}

TEST_F(HistoryTest, LimitDropsTheOldestSteps) {
    history.setLimit(3);
    for (int i = 1; i <= 5; ++i)
        fields.Item(1)->SetSize(i);
    ASSERT_EQ(history.count(), 3u);
    EXPECT_FALSE(history.cleanIndex().has_value());
    history.setIndex(0);
    EXPECT_EQ(fields.Item(1)->Size(), 2);
    history.setLimit(2); // one step more than the new limit: it goes at once
    EXPECT_EQ(history.count(), 2u);
}

// A copy of the list of steps kept by stepsChanged alone reads as the history does through new
// steps, a merge, a new step after undoing, the limit from both ends and a clear.
TEST_F(HistoryTest, StepsChangedKeepsACopyOfTheStepsExact) {
    auto texts = [&](std::size_t first, std::size_t count) {
        std::vector<std::string> out;
        for (std::size_t i = first; i < first + count; ++i)
            out.emplace_back(history.text(i));
        return out;
    };
    std::vector<std::string> copy;
    auto watch = history.stepsChanged.connect([&](const StepsChange& change) {
        const auto at = copy.begin() + static_cast<std::ptrdiff_t>(change.first);
        if (change.kind == StepsChange::Kind::Inserted) {
            const std::vector<std::string> inserted = texts(change.first, change.count);
            copy.insert(at, inserted.begin(), inserted.end());
        } else if (change.kind == StepsChange::Kind::Removed)
            copy.erase(at, at + static_cast<std::ptrdiff_t>(change.count));
        else
            copy = texts(0, history.count());
    });
    int size = 0;
    auto step = [&](const std::string& text) {
        const auto scope = fields.beginStep(text, ChangeOrigin::Host);
        fields.Item(1)->SetSize(++size);
    };
    const std::function<void()> actions[] = {
        [&] { step("a"), step("b"); },
        [&] {
            personStep([&] { fields.Item(2)->SetDisplayName("K"); });
            personStep([&] { fields.Item(2)->SetDisplayName("Ki"); });
        },
        [&] { history.undo(), history.undo(), step("c"); },
        [&] { history.setLimit(3), step("d"), step("e"); },
        [&] { history.setIndex(0), history.setLimit(1); },
        [&] { step("f"); },
        [&] { history.clear(), step("g"); },
    };
    for (std::size_t i = 0; i < std::size(actions); ++i) {
        SCOPED_TRACE(i);
        actions[i]();
        EXPECT_EQ(copy, texts(0, history.count()));
    }
}

TEST_F(HistoryTest, UndoWaitsForTheActionUnderWay) {
    fields.Item(1)->SetSize(3);
    const auto step = fields.beginStep("Edit", ChangeOrigin::Person);
    EXPECT_THROW(history.undo(), InvalidOperationError);
    EXPECT_THROW(History(fields).undo(), InvalidOperationError);
}

// Random writes of every kind through the library, some grouped in steps; undoing everything
// gives back the loaded collection exactly, redoing everything the edited one.
TEST_F(HistoryTest, RandomWritesUndoToTheLoadedAndRedoToTheEdited) {
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        reliability::RandomSource random(seed);
        const auto defs = reliability::randomCollection(seed, 8);
        History randomHistory(*defs);
        const std::string loaded = testkit::fieldsSnapshot(*defs);
        for (int action = 0; action < 60; ++action) {
            std::optional<FieldDefs::Step> step;
            if (random.chance(0.5))
                step.emplace(defs->beginStep("Edit", ChangeOrigin::Person));
            for (int write = random.between(1, 3); write > 0 && defs->Count() > 1; --write) {
                auto& field = *defs->Item(random.between(1, defs->Count()));
                try {
                    switch (random.between(0, 9)) {
                    case 0:
                        defs->Remove(field.Name());
                        break;
                    case 1:
                        defs->Insert(random.between(1, defs->Count() + 1),
                                     reliability::randomField(random));
                        break;
                    case 2:
                        defs->Move(random.between(1, defs->Count()),
                                   random.between(1, defs->Count()));
                        break;
                    case 3:
                        field.ListValues().Clear();
                        field.ListValues().SetValue(random.word(4), random.word(4), false);
                        field.CommitListValues();
                        break;
                    case 4:
                        if (field.ListValues().Count() != 0)
                            field.ListValues().Remove(field.ListValues().begin()->Key);
                        break;
                    case 5:
                        field.SetName(field.Name() + "x");
                        break;
                    default:
                        reliability::randomWrite(random, field);
                    }
                } catch (const Error&) {
                    // A refused write (a taken name) changes nothing.
                }
            }
        }
        const std::string edited = testkit::fieldsSnapshot(*defs);
        randomHistory.setIndex(0);
        EXPECT_EQ(testkit::fieldsSnapshot(*defs), loaded);
        randomHistory.setIndex(randomHistory.count());
        EXPECT_EQ(testkit::fieldsSnapshot(*defs), edited);
    }
}

} // namespace
} // namespace morvel
