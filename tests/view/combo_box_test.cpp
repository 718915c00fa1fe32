// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "view/combo_box.h"
#include "view/form.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace morvel::view {
namespace {

std::vector<std::string> entries(const ComboBox& box) {
    std::vector<std::string> out;
    out.reserve(static_cast<std::size_t>(box.listCount()));
    for (int i = 0; i < box.listCount(); ++i)
        out.push_back(box.list(i) + "=" + std::to_string(box.itemData(i)));
    return out;
}

TEST(ComboBox, SortedBoxOrdersIgnoringCaseAndAnswersWhereTheEntryWent) {
    Form form("f");
    ComboBox box(&form, "cbo", ComboBox::Style::DropDownList, true);
    for (const char* text :
         {"Long", "boolean", "Currency", "Sub Link ", "Sub Link", "Àla", "a", "long"}) {
        const int at = box.addItem(text);
        box.setItemData(at, static_cast<int>(std::string(text).size()));
    }
    // Equal-ignoring-case texts keep their adding order; non-ASCII bytes sort after ASCII.
    EXPECT_EQ(entries(box),
              (std::vector<std::string>{"a=1", "boolean=7", "Currency=8", "Long=4", "long=4",
                                        "Sub Link=8", "Sub Link =9", "Àla=4"}));
}

TEST(ComboBox, SelectionFollowsItsEntryWhenEntriesAreAddedBefore) {
    Form form("f");
    ComboBox box(&form, "cbo", ComboBox::Style::DropDownList, true);
    box.addItem("m");
    box.setListIndex(0);
    box.addItem("a");
    EXPECT_EQ(box.listIndex(), 1);
    EXPECT_EQ(box.text(), "m");
}

TEST(ComboBox, ListIndexFromCodeRaisesClickOnlyWhenItMoves) {
    Form form("f");
    ComboBox box(&form, "cbo", ComboBox::Style::DropDownList);
    box.addItem("x");
    box.addItem("y");
    int clicks = 0;
    auto c = box.Click.connect([&] { ++clicks; });
    box.setListIndex(1);
    box.setListIndex(1);
    box.setListIndex(-1);
    EXPECT_EQ(clicks, 2);
    EXPECT_THROW(box.setListIndex(2), InvalidOperationError);
    // A person picking the selected entry again still clicks.
    box.pick(0);
    box.pick(0);
    EXPECT_EQ(clicks, 4);
}

TEST(ComboBox, EditableBoxPickTakesTextWithoutChangeAndTypingRaisesChange) {
    Form form("f");
    ComboBox box(&form, "cbo", ComboBox::Style::Editable);
    box.addItem("TEXTBOX");
    int clicks = 0;
    int changes = 0;
    auto c1 = box.Click.connect([&] { ++clicks; });
    auto c2 = box.Change.connect([&] { ++changes; });
    box.pick(0);
    EXPECT_EQ(box.text(), "TEXTBOX");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(changes, 0);
    box.type("TEXTBOXX");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(box.listIndex(), -1);
    // Clearing the suggestions leaves the typed text alone.
    box.clear();
    EXPECT_EQ(box.text(), "TEXTBOXX");
}

TEST(ComboBox, LockedOrDisabledBoxRefusesTheUser) {
    Form form("f");
    ComboBox box(&form, "cbo", ComboBox::Style::DropDownList);
    box.addItem("x");
    box.setLocked(true);
    EXPECT_FALSE(box.pick(0));
    box.setLocked(false);
    box.setEnabled(false);
    EXPECT_FALSE(box.pick(0));
    EXPECT_EQ(box.listIndex(), -1);
}

} // namespace
} // namespace morvel::view
