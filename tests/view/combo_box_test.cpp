// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "support/counter.h"
#include "view/combo_box.h"
#include "view/form.h"

#include <gtest/gtest.h>
#include <string>

namespace morvel::view {
namespace {

using testing::Counter;

// The entries as "text=item data", joined by '|'.
std::string entries(const ComboBox& box) {
    std::string out;
    for (int i = 0; i < box.listCount(); ++i)
        out += (i ? "|" : "") + box.list(i) + "=" + std::to_string(box.itemData(i));
    return out;
}

TEST(ComboBox, SortedBoxOrdersIgnoringCaseAndTheSelectionFollowsItsEntry) {
    Form form("f");
    ComboBox box(&form, "cbo", ComboBox::Style::DropDownList, true);
    for (const char* text :
         {"Long", "boolean", "Currency", "Sub Link ", "Sub Link", "Àla", "a", "long"})
        box.setItemData(box.addItem(text), static_cast<int>(std::string(text).size()));
    // Equal-ignoring-case texts keep their adding order; non-ASCII bytes sort after ASCII.
    EXPECT_EQ(entries(box), "a=1|boolean=7|Currency=8|Long=4|long=4|Sub Link=8|Sub Link =9|Àla=4");
    box.setListIndex(1);
    box.addItem("B");
    EXPECT_EQ(box.listIndex(), 2);
    EXPECT_EQ(box.text(), "boolean");
}

TEST(ComboBox, ListIndexFromCodeClicksOnlyWhenItMovesAndAPersonAlways) {
    Form form("f");
    ComboBox box(&form, "cbo", ComboBox::Style::DropDownList);
    box.addItem("x");
    box.addItem("y");
    Counter clicks(box.Click);
    for (int index : {1, 1, -1})
        box.setListIndex(index);
    EXPECT_EQ(clicks.count, 2);
    EXPECT_THROW(box.setListIndex(2), InvalidOperationError);
    box.pick(0);
    box.pick(0);
    EXPECT_EQ(clicks.count, 4);
    // Neither a locked nor a disabled box takes a person's pick.
    box.setLocked(true);
    EXPECT_FALSE(box.pick(1));
    box.setLocked(false);
    box.setEnabled(false);
    EXPECT_FALSE(box.pick(1));
    EXPECT_EQ(box.listIndex(), 0);
}

TEST(ComboBox, EditableBoxPickTakesTextWithoutChangeAndTypingRaisesChange) {
    Form form("f");
    ComboBox box(&form, "cbo", ComboBox::Style::Editable);
    box.addItem("TEXTBOX");
    Counter clicks(box.Click);
    Counter changes(box.Change);
    box.pick(0);
    EXPECT_EQ(box.text() + std::to_string(clicks.count) + std::to_string(changes.count),
              "TEXTBOX10");
    box.type("TEXTBOXX");
    EXPECT_EQ(changes.count, 1);
    EXPECT_EQ(box.listIndex(), -1);
    // Clearing the suggestions leaves the typed text alone.
    box.clear();
    EXPECT_EQ(box.text(), "TEXTBOXX");
}

} // namespace
} // namespace morvel::view
