// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "history/change_review.h"
#include "history/history.h"
#include "history/three_way_merge.h"
#include "testing/snapshot.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace morvel {
namespace {

// Two designers' copies of one table, loaded alike (same identities): mine with its change set
// and history, theirs as they saved it.
class MergeTest : public ::testing::Test {
protected:
    MergeTest() {
        fill(mine, true);
        fill(theirs, false);
        changes.rebase();
        history.clear();
    }

    void fill(FieldDefs& fields, bool first) {
        int n = 0;
        for (const char* name : {"Id", "Name", "Kind", "Note"}) {
            auto field = std::make_shared<FieldDef>(name, 200);
            if (first)
                ids.push_back(field->id());
            else
                field->restoreId(ids[static_cast<std::size_t>(n)]);
            ++n;
            field->Properties().SetValue("Min", 1, true);
            field->ListValues().SetValue("1", "One", true);
            fields.Add(field);
        }
    }

    std::vector<std::string> conflictsOf(ThreeWayMerge& merge) const {
        std::vector<std::string> seen;
        for (const MergeConflict& c : merge.conflicts())
            seen.push_back(c.field + " " + (c.kind == MergeConflict::Kind::Key ? c.key : "") +
                           (c.kind == MergeConflict::Kind::Member ? memberName(c.member) : "") +
                           ": " + c.mineText + " | " + c.theirsText);
        return seen;
    }

    std::vector<FieldId> ids;
    FieldDefs mine;
    FieldDefs theirs;
    ChangeSet changes{mine};
    History history{mine};
};

TEST_F(MergeTest, EachSidesOwnChangesAreAllKeptAndTheMergeIsOneUndoStep) {
    mine.Item("Id")->SetDisplayName("Key");
    mine.Item("Name")->Properties().SetValue("Max", 5, true);
    mine.Add("MyNew", 3);
    mine.Remove("Note");
    mine.Move(1, 2); // Id after Name
    theirs.Item("Kind")->SetSize(9);
    theirs.Item("Name")->ListValues().SetValue("2", "Two", true);
    theirs.Item("Id")->SetDescription("Their text");
    theirs.Insert(1, std::make_shared<FieldDef>("TheirNew", 7));
    const std::string before = testkit::fieldsSnapshot(mine);
    const std::size_t steps = history.count();

    ThreeWayMerge merge(mine, changes, theirs);
    EXPECT_TRUE(merge.conflicts().empty());
    merge.apply();
    EXPECT_EQ(testkit::fieldNames(mine), "TheirNew|Name|Id|Kind|MyNew");
    EXPECT_EQ(mine.Item("Id")->DisplayName(), "Key");
    EXPECT_EQ(mine.Item("Id")->Description(), "Their text");
    EXPECT_EQ(testkit::storeSnapshot(mine.Item("Name")->Properties()), "Min=1;Max=5");
    EXPECT_EQ(testkit::storeSnapshot(mine.Item("Name")->ListValues()), "1=\"One\";2=\"Two\"");
    EXPECT_EQ(mine.Item("Kind")->Size(), 9);
    // What is left to save over their version is mine alone.
    std::vector<std::string> left;
    for (const FieldDifference& d : changes.differences())
        left.push_back(d.field->Name());
    std::sort(left.begin(), left.end());
    EXPECT_EQ(left, (std::vector<std::string>{"Id", "MyNew", "Name", "Note"}));

    EXPECT_EQ(history.count(), steps + 1);
    history.undo();
    EXPECT_EQ(testkit::fieldsSnapshot(mine), before);
}

struct ConflictCase {
    const char* what;
    std::function<void(FieldDefs& mine, FieldDefs& theirs)> write;
    const char* conflict;
    // The field's snapshot line part that shows who won, mine then theirs.
    std::function<std::string(FieldDefs&)> result;
    const char* mineWins;
    const char* theirsWin;
};

TEST_F(MergeTest, EachKindOfConflictIsOfferedAndResolvedEitherWay) {
    const std::vector<ConflictCase> cases = {
        {"member",
         [](FieldDefs& m, FieldDefs& t) {
             m.Item("Id")->SetSize(1);
             t.Item("Id")->SetSize(2);
         },
         "Id Size: 1 | 2", [](FieldDefs& f) { return std::to_string(f.Item("Id")->Size()); }, "1",
         "2"},
        {"stored key",
         [](FieldDefs& m, FieldDefs& t) {
             m.Item("Id")->Properties().SetValue("Min", "m", true);
             t.Item("Id")->Properties().Remove("Min");
         },
         "Id Min: \"m\" | (none)",
         [](FieldDefs& f) { return testkit::storeSnapshot(f.Item("Id")->Properties()); },
         "Min=\"m\"", ""},
        {"removed by mine, changed by theirs",
         [](FieldDefs& m, FieldDefs& t) {
             m.Remove("Kind");
             t.Item("Kind")->SetDisplayName("Sort");
         },
         "Kind : Removed | Changed: DisplayName",
         [](FieldDefs& f) { return f.find("Kind") ? f.Item("Kind")->DisplayName() : "gone"; },
         "gone", "Sort"},
        {"changed by mine, removed by theirs",
         [](FieldDefs& m, FieldDefs& t) {
             m.Item("Kind")->ListValues().SetValue("1", "Uno", true);
             t.Remove("Kind");
         },
         "Kind : List values 1: \"One\" -> \"Uno\" | Removed",
         [](FieldDefs& f) { return f.find("Kind") ? testkit::fieldNames(f) : "gone"; },
         "Id|Name|Kind|Note", "gone"},
    };
    for (const ConflictCase& c : cases) {
        for (const bool takeMine : {true, false}) {
            SCOPED_TRACE(std::string(c.what) + (takeMine ? ", mine" : ", theirs"));
            FieldDefs m;
            FieldDefs t;
            fill(m, false);
            fill(t, false);
            ChangeSet set(m);
            c.write(m, t);
            ThreeWayMerge merge(m, set, t);
            ASSERT_EQ(conflictsOf(merge), std::vector<std::string>{c.conflict});
            merge.conflicts().front().takeMine = takeMine;
            merge.apply();
            EXPECT_EQ(c.result(m), takeMine ? c.mineWins : c.theirsWin);
        }
    }
}

TEST_F(MergeTest, NewFieldsOfOneIdentityOrOneNameOnBothSidesAreBothKept) {
    auto my = std::make_shared<FieldDef>("Extra", 3);
    auto their = std::make_shared<FieldDef>("extra", 7);
    their->restoreId(my->id()); // two processes handed out the same next identity
    mine.Add(my);
    theirs.Add(their);
    ThreeWayMerge merge(mine, changes, theirs);
    merge.apply();
    EXPECT_EQ(testkit::fieldNames(mine), "Id|Name|Kind|Note|Extra|extra2");
    EXPECT_NE(mine.Item("Extra")->id(), mine.Item("extra2")->id());
}

TEST_F(MergeTest, ReviewListsEveryChangeAndRevertsFieldByFieldOrAll) {
    mine.Item("Id")->SetDisplayName("Key");
    mine.Add("MyNew", 3);
    mine.Remove("Kind");
    mine.Move(1, 3); // Id to the end: Name|Note|Id|MyNew
    ChangeReview review(mine, changes);
    std::vector<std::string> rows;
    for (const ChangeReview::Row& row : review.rows())
        rows.push_back(row.field + " " + row.item + ": " + row.oldText + " -> " + row.newText);
    EXPECT_EQ(rows,
              (std::vector<std::string>{"Id Moved:  -> ", "Id DisplayName: \"\" -> \"Key\"",
                                        "MyNew New field:  -> MyNew", "Kind Removed: Kind -> "}));
    const std::size_t steps = history.count();
    review.revertField(ids[2]); // Kind back in its place
    EXPECT_EQ(testkit::fieldNames(mine), "Name|Kind|Note|Id|MyNew");
    review.revertField(ids[0]);
    EXPECT_EQ(testkit::fieldNames(mine), "Id|Name|Kind|Note|MyNew");
    EXPECT_EQ(mine.Item("Id")->DisplayName(), "");
    EXPECT_EQ(history.count(), steps + 2);
    history.undo();
    history.undo();
    review.revertAll();
    EXPECT_TRUE(changes.empty());
    EXPECT_EQ(testkit::fieldNames(mine), "Id|Name|Kind|Note");
    EXPECT_EQ(history.count(), steps + 1);
}

} // namespace
} // namespace morvel
