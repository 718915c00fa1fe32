// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/field_types.h"
#include "control/designer_fixture.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace morvel::testing {
namespace {

// The designer follows what others write to its collection (the host, undo, a merge): rows and,
// for the field shown, the panel; it writes nothing back, and does not echo its own writes.
class Following : public DesignerTest {
protected:
    void SetUp() override {
        defs = give({{"A", 8}, {"B", 200}, {"C", 1000}});
        writes = defs->changed.connect([this](const FieldChange& change) {
            ++written;
            steps.push_back(change.step);
        });
    }

    // Each row as name:type:size:display name.
    std::string rows() const {
        std::string out;
        for (int i = 1; i <= designer.lst.count(); ++i) {
            const auto& row = designer.lst.item(i);
            out.append(i > 1 ? " " : "").append(row.key());
            for (int cell : {1, 2, 3})
                out.append(":").append(row.subItem(cell));
        }
        return out;
    }
    std::string panel() const {
        return designer.txtName.text() + "|" + designer.txtDisplayName.text() + "|" +
               std::to_string(selectedData(designer.cboType)) +
               (designer.TabStrip.count() == 2 ? "|" + designer.txtOrderField.text() : "");
    }

    std::shared_ptr<FieldDefs> defs;
    Connection writes;
    int written = 0;
    std::vector<StepTag> steps;
};

struct OutsideChange {
    const char* what;
    const char* shown; // the field shown when the change comes
    std::function<void(FieldDefs&)> change;
    int writes; // the change's own; the designer adds none
    const char* rows;
    const char* panel;
};

const OutsideChange kChanges[] = {
    {"rename of the shown field", "B", [](FieldDefs& d) { d.Item("B")->SetName("Beta"); }, 1,
     "A:VarChar:0: Beta:Text:: C:Link::", "Beta||200"},
    {"rename of another field", "B", [](FieldDefs& d) { d.Item("A")->SetName("Alpha"); }, 1,
     "Alpha:VarChar:0: B:Text:: C:Link::", "B||200"},
    {"member write to the shown field", "B",
     [](FieldDefs& d) { d.Item("B")->SetDisplayName("Bee"); }, 1,
     "A:VarChar:0: B:Text::Bee C:Link::", "B|Bee|200"},
    {"type write to another field", "B", [](FieldDefs& d) { d.Item("A")->SetFieldType(200); }, 1,
     "A:Text:: B:Text:: C:Link::", "B||200"},
    {"stored key of the shown field", "C",
     [](FieldDefs& d) { d.Item("C")->Properties().SetValue("zrDirect.OB", "Name", true); }, 1,
     "A:VarChar:0: B:Text:: C:Link::", "C||1000|Name"},
    {"move", "B", [](FieldDefs& d) { d.Move(3, 1); }, 0,
     "C:Link:: A:VarChar:0: B:Text::", "B||200"},
    {"insertion in the middle", "B",
     [](FieldDefs& d) { d.Insert(2, std::make_shared<FieldDef>("X", 200)); }, 0,
     "A:VarChar:0: X:Text:: B:Text:: C:Link::", "X||200"},
    {"removal in the middle", "C", [](FieldDefs& d) { d.Remove("B"); }, 0,
     "A:VarChar:0: C:Link::", "A||8"},
    {"removal of a field renamed behind the designer's back", "A",
     [](FieldDefs& d) {
         d.Item("B")->SetName("Gamma");
         d.Remove("Gamma");
     },
     1, "A:VarChar:0: C:Link::", "A||8"},
};

TEST_F(Following, EveryOutsideChangeShowsInTheRowsAndThePanelAndIsNotWrittenBack) {
    for (const OutsideChange& c : kChanges) {
        SetUp();
        clickRow(c.shown);
        written = 0;
        c.change(*defs);
        EXPECT_EQ(rows(), c.rows) << c.what;
        EXPECT_EQ(panel(), c.panel) << c.what;
        EXPECT_EQ(written, c.writes) << c.what;
        // The selection still maps back to the field shown.
        EXPECT_EQ(defs->find(designer.lst.selectedItem()->key()), designer.SelectedFieldDef())
            << c.what;
    }
}

TEST_F(Following, AClickAfterAHostRenameLoadsTheRenamedField) {
    defs->Item("B")->SetName("Gamma");
    clickRow("Gamma");
    EXPECT_EQ(designer.SelectedFieldDef(), defs->Item("Gamma"));
    EXPECT_EQ(designer.txtName.text(), "Gamma");
}

// Left after the removal, the box would rename the field to the removed one's name while that
// one's row still held it, leaving a row whose key is not its text.
TEST_F(Following, ANameTypedBeforeARemovalIsCheckedWhileTheRemovedFieldIsThere) {
    defs->Add("D", 200);
    designer.txtName.type("A");
    defs->Remove("A");
    EXPECT_EQ(defs->Item("D")->Name(), "D");
    EXPECT_EQ(rows(), "B:Text:: C:Link:: D:Text::");
}

TEST_F(Following, ThePersonsOwnWritesAreNotEchoedAndEachActionIsOneStep) {
    designer.SetCanModifyExisting(true);
    clickRow("A");
    typeInto(designer.txtSize, "2x");
    EXPECT_EQ(designer.txtSize.text(), "02x") << "no reload while the person types";
    EXPECT_EQ(defs->Item("A")->Size(), 2);

    steps.clear();
    pickByData(designer.cboType, catalogue::type::Signature);
    ASSERT_GE(steps.size(), 3u) << "the type, the reserved name and create-on-demand";
    for (const StepTag& tag : steps)
        EXPECT_EQ(tag, (StepTag{steps.front().sequence, ChangeOrigin::Person}));
}

TEST_F(Following, EachActionsStepIsNamedAfterTheBoxOrChoiceAndTheField) {
    designer.SetCanModifyExisting(true);
    std::vector<std::string> texts;
    const Connection named =
        defs->stepBegan.connect([&](const StepInfo& info) { texts.emplace_back(info.text); });
    const std::pair<std::function<void()>, const char*> cases[] = {
        {[&] { typeInto(designer.txtDisplayName, "xy"); },
         "Type in Display Name of A|Type in Display Name of A"},
        {[&] { typeInto(designer.txtName, "Z"); }, "Type in Name of A"},
        {[&] { designer.chkCreateOnDemand.click(); }, // the name box stores on leaving
         "Type in Name of A|Change Create on demand of AZ"},
        {[&] { pickByData(designer.cboType, catalogue::type::Signature); }, "Change type of AZ"},
    };
    clickRow("A");
    for (const auto& [act, expected] : cases) {
        texts.clear();
        act();
        std::string joined;
        for (const std::string& text : texts)
            joined.append(joined.empty() ? "" : "|").append(text);
        EXPECT_EQ(joined, expected);
    }
}

} // namespace
} // namespace morvel::testing
