// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "fields/field_defs.h"
#include "testing/snapshot.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace morvel {
namespace {

std::string tagOf(const StepTag& tag) {
    return " #" + std::to_string(tag.sequence) + originName(tag.origin);
}

// Everything a collection tells, as one line: the count is read during each notification, so the
// line also shows whether the field was still in the collection when it was told.
class Recorder {
public:
    explicit Recorder(FieldDefs& defs) {
        auto add = [&](const std::string& text) { log += (log.empty() ? "" : ", ") + text; };
        auto count = [&defs] { return "/" + std::to_string(defs.Count()); };
        auto placed = [=](const char* what, const FieldPlaced& p) {
            add(what + p.field->Name() + "@" + std::to_string(p.position) + count() +
                tagOf(p.step));
        };
        m_wiring += defs.AfterAdd.connect([=](const auto& field) { add("+" + field->Name()); });
        m_wiring += defs.AfterRemove.connect([=](const auto& field) { add("-" + field->Name()); });
        m_wiring += defs.inserted.connect([=](const auto& p) { placed("inserted ", p); });
        m_wiring += defs.aboutToRemove.connect([=](const auto& p) { placed("leaving ", p); });
        m_wiring += defs.removed.connect([=](const auto& p) { placed("removed ", p); });
        m_wiring += defs.moved.connect([=](const FieldMoved& m) {
            add("moved " + m.field->Name() + " " + std::to_string(m.from) + ">" +
                std::to_string(m.to) + tagOf(m.step));
        });
        m_wiring += defs.changed.connect([=](const FieldChange& c) {
            add(c.field.Name() + "." + memberName(c.member) + tagOf(c.step));
        });
        m_wiring += defs.stepBegan.connect(
            [=](const StepInfo& s) { add("[" + std::string(s.text) + tagOf(s.tag)); });
        m_wiring += defs.stepEnded.connect([=](const StepInfo& s) { add("]" + tagOf(s.tag)); });
    }

    std::string log;

private:
    Connections m_wiring;
};

struct Case {
    const char* what;
    std::function<void(FieldDefs&)> action;
    const char* told;
    const char* namesAfter;
};

// Each case starts from A|B|C|D, whose additions took the sequence numbers 1 to 4.
const Case kCases[] = {
    {"an insertion tells its position after AfterAdd",
     [](FieldDefs& d) { d.Insert(2, std::make_shared<FieldDef>("X", 3)); },
     "+X, inserted X@2/5 #5Host", "A|X|B|C|D"},
    {"an addition is an insertion at the end", [](FieldDefs& d) { d.Add("X", 3); },
     "+X, inserted X@5/5 #5Host", "A|B|C|D|X"},
    {"a removal tells before and after, with the position", [](FieldDefs& d) { d.Remove("c"); },
     "leaving C@3/4 #5Host, -C, removed C@3/3 #5Host", "A|B|D"},
    {"a move forward", [](FieldDefs& d) { d.Move(1, 3); }, "moved A 1>3 #5Host", "B|C|A|D"},
    {"a move back", [](FieldDefs& d) { d.Move(4, 1); }, "moved D 4>1 #5Host", "D|A|B|C"},
    {"a move to where it is tells nothing", [](FieldDefs& d) { d.Move(2, 2); }, "", "A|B|C|D"},
    {"each call outside a step is a step of its own",
     [](FieldDefs& d) {
         d.Item(1)->SetSize(4);
         d.Item(2)->Properties().SetValue("Sign.Flds", "A", true);
     },
     "A.Size #5Host, B.Properties #6Host", "A|B|C|D"},
    {"a step groups everything and inner steps join it",
     [](FieldDefs& d) {
         auto step = d.beginStep("Paste 1 field", ChangeOrigin::Paste);
         d.Add("X", 3)->SetName("Y");
         {
             auto inner = d.beginStep("inner", ChangeOrigin::Undo);
             d.Move(5, 1);
         }
         d.Remove("B");
     },
     "[Paste 1 field #5Paste, +X, inserted X@5/5 #5Paste, Y.Name #5Paste, moved Y 5>1 #5Paste, "
     "leaving B@3/5 #5Paste, -B, removed B@3/4 #5Paste, ] #5Paste",
     "Y|A|C|D"},
    {"the next step takes the next number",
     [](FieldDefs& d) {
         { auto first = d.beginStep("one", ChangeOrigin::Person); }
         auto second = d.beginStep("two", ChangeOrigin::Merge);
         d.Item(1)->SetDisplayName("a");
     },
     "[one #5Person, ] #5Person, [two #6Merge, A.DisplayName #6Merge, ] #6Merge", "A|B|C|D"},
};

TEST(FieldDefsNotifications, TellPositionsOrderAndStep) {
    for (const Case& c : kCases) {
        FieldDefs defs;
        for (const char* name : {"A", "B", "C", "D"})
            defs.Add(name, 3);
        Recorder recorder(defs);
        c.action(defs);
        EXPECT_EQ(recorder.log, c.told) << c.what;
        EXPECT_EQ(testkit::fieldNames(defs), c.namesAfter) << c.what;
    }
}

TEST(FieldDefsNotifications, MoveRefusesPositionsOutsideTheCollection) {
    FieldDefs defs;
    defs.Add("A", 3);
    defs.Add("B", 3);
    for (auto [from, to] : {std::pair{0, 1}, {3, 1}, {1, 0}, {1, 3}})
        EXPECT_THROW(defs.Move(from, to), NotFoundError) << from << ">" << to;
    EXPECT_EQ(testkit::fieldNames(defs), "A|B");
}

TEST(FieldDefClone, CopiesEveryMemberAndEntryButNeitherIdentityNorCollection) {
    FieldDefs defs;
    auto field = defs.Add("Colour", 1100);
    field->SetDescription("d");
    field->SetDisplayName("Colour of it");
    field->SetSize(7);
    field->SetDefaultValue("1");
    field->SetCtrlEdit("E");
    field->SetCtrlReadOnly("R");
    field->SetCtrlList("L");
    field->SetValidation(2);
    field->SetCreateOnDemand(true);
    // Out of alphabetical order, and with a removal, so that order is really kept.
    field->Properties().SetValue("zrDirect.S", 3, true);
    field->Properties().SetValue("Lnk.Parent", true, true);
    field->Properties().SetValue("gone", "x", true);
    field->Properties().SetValue("ADO.Table", "T", true);
    field->Properties().Remove("gone");
    field->ListValues().SetValue("I2", "Blue", true);
    field->ListValues().SetValue("I1", "Red", true);
    field->SetLocaleDisplayName("1033", "Colour");

    const auto copy = field->Clone();
    EXPECT_NE(copy->id(), field->id());
    EXPECT_EQ(copy->collection(), nullptr);
    FieldDefs copies;
    copies.Add(copy);
    EXPECT_EQ(testkit::fieldsSnapshot(copies), testkit::fieldsSnapshot(defs));
}

TEST(FieldId, IsFreshPerFieldKeptForLifeAndRestoredOnlyOutsideACollection) {
    FieldDefs defs;
    auto a = defs.Add("A", 3);
    auto b = defs.Add("B", 3);
    const FieldId idA = a->id();
    EXPECT_TRUE(idA);
    EXPECT_NE(idA, b->id());
    a->SetName("Renamed");
    defs.Move(1, 2);
    EXPECT_EQ(a->id(), idA);
    EXPECT_THROW(a->restoreId(FieldId(7)), InvalidOperationError);
    defs.Remove("Renamed");

    // A load gives back a saved identity; a field made later never takes it.
    const FieldId saved(b->id().value() + 1000);
    a->restoreId(saved);
    EXPECT_EQ(a->id(), saved);
    EXPECT_GT(FieldDef("C").id(), saved);
}

} // namespace
} // namespace morvel
