// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "view/form.h"
#include "view/list_view.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace morvel::view {
namespace {

class ListViewTest : public ::testing::Test {
protected:
    ListViewTest() {
        list.addColumn("Name", "Field Name", 2540);
        list.addColumn("Type", "Field Type", 2540);
        changes = list.rowsChanged.connect([this](const ListChange& c) { seen.push_back(c); });
    }
    // What the observers heard, "kind:row:column" per change.
    std::string told() const {
        std::string out;
        for (const ListChange& c : seen)
            out += std::to_string(static_cast<int>(c.kind)) + ":" + std::to_string(c.row) + ":" +
                   std::to_string(c.column) + " ";
        return out;
    }
    std::string keys() const {
        std::string out;
        for (int i = 1; i <= list.count(); ++i)
            out +=
                std::string(list.item(i).key()) + "@" + std::to_string(list.item(i).index()) + " ";
        return out;
    }

    Form form{"f"};
    ListView list{&form, "lst"};
    std::vector<ListChange> seen;
    Connection changes;
};

TEST_F(ListViewTest, KeysAreUniqueCaseExactAndKeptThroughTextChangesAndRekeying) {
    ListItem& row = list.add("Name", "Name");
    list.add("name", "name");
    EXPECT_THROW(list.add("Name", "again"), DuplicateKeyError);
    EXPECT_EQ(list.find("NAME"), nullptr);
    EXPECT_THROW(list.item("NAME"), NotFoundError);
    row.setText("Renamed"); // a key taken from the text stays
    EXPECT_EQ(list.find("Name"), &row);
    EXPECT_EQ(list.find("Renamed"), nullptr);
    // Short keys live inside the string object, long ones on the heap.
    for (const char* key : {"a key that is far longer than any small buffer", "s"}) {
        row.setKey(key);
        EXPECT_EQ(list.find(key), &row);
    }
    EXPECT_EQ(list.find("Name"), nullptr);
    EXPECT_THROW(row.setKey("name"), DuplicateKeyError);
    EXPECT_EQ(std::string(row.key()) + "|" + std::string(row.text()), "s|Renamed");
}

TEST_F(ListViewTest, PositionsStayRightAfterRemovalsAnywhere) {
    for (const char* key : {"a", "b", "c", "d", "e"})
        list.add(key, key);
    list.remove("b");
    list.remove("e");
    list.add("f", "f");
    EXPECT_EQ(keys(), "a@1 c@2 d@3 f@4 ");
    EXPECT_EQ(list.find("d")->index(), 3);
}

TEST_F(ListViewTest, CellsOfAnyLengthReadBackWhateverOrderTheyAreWrittenIn) {
    ListView wide{&form, "wide"};
    for (const char* key : {"A", "B", "C", "D"})
        wide.addColumn(key, key, 100);
    ListItem& row = wide.add("k", "text");
    const std::string longText(300, 'x');
    row.setSubItem(3, "third");
    row.setTag(":NOMODIFY:");
    row.setSubItem(1, longText);
    EXPECT_EQ(row.subItem(2), "");
    row.setSubItem(2, "second");
    row.setText(longText + "!");
    row.setSubItem(1, "first");
    EXPECT_EQ(std::string(row.text()) + "|" + std::string(row.subItem(1)) + "|" +
                  std::string(row.subItem(2)) + "|" + std::string(row.subItem(3)) + "|" +
                  std::string(row.tag()),
              longText + "!|first|second|third|:NOMODIFY:");
    EXPECT_EQ(row.key(), "k");
    // A row's own cell copied into another cell, across a growth of the row.
    row.setSubItem(3, row.text());
    row.setSubItem(2, row.subItem(3));
    EXPECT_EQ(row.subItem(2), longText + "!");
    EXPECT_EQ(row.subItem(3), longText + "!");
}

TEST_F(ListViewTest, EveryRowIsFoundByKeyAfterScatteredRemovalsAndReinsertions) {
    constexpr int kRows = 3000;
    const auto key = [](int i) { return "k" + std::to_string(i); };
    for (int i = 0; i < kRows; ++i)
        list.add(key(i), key(i));
    std::set<int> removed;
    for (int i = 0; i < kRows; i += 3)
        removed.insert((i * 13) % kRows);
    for (const int i : removed)
        list.remove(key(i));
    int found = 0;
    for (int i = 0; i < kRows; ++i) {
        ListItem* row = list.find(key(i));
        ASSERT_EQ(row == nullptr, removed.contains(i)) << key(i);
        found += row && row->key() == key(i) ? 1 : 0;
    }
    EXPECT_EQ(found, list.count());
    for (const int i : removed)
        list.add(key(i), key(i));
    for (int i = 0; i < kRows; ++i)
        ASSERT_NE(list.find(key(i)), nullptr) << key(i);
}

TEST_F(ListViewTest, AMovedRowIsToldAsRemovedAndInsertedAndKeepsPositionsRight) {
    for (const char* key : {"a", "b", "c", "d"})
        list.add(key, key);
    list.setSelectedItem(list.find("a"));
    seen.clear();
    list.moveItem(*list.find("a"), 3);
    EXPECT_EQ(keys(), "b@1 c@2 a@3 d@4 ");
    list.moveItem(*list.find("d"), 1);
    EXPECT_EQ(keys(), "d@1 b@2 c@3 a@4 ");
    // Removed at 0, inserted at 2, the selection now at 2; then removed 3, inserted 0.
    EXPECT_EQ(told(), "2:0:-1 1:2:-1 4:2:-1 2:3:-1 1:0:-1 ");
    EXPECT_THROW(list.moveItem(*list.find("a"), 5), NotFoundError);
    list.setSorted(true);
    EXPECT_THROW(list.moveItem(*list.find("a"), 1), InvalidOperationError);
}

TEST_F(ListViewTest, ObserversHearWhichRowAndCellChanged) {
    list.add("a", "a");
    ListItem& b = list.add("b", "b");
    seen.clear();
    b.setSubItem(1, "Link");
    b.setSubItem(1, "Link");
    list.setSelectedItem(&b);
    list.remove("a");
    list.remove("b"); // the selected row: the selection goes with it
    EXPECT_EQ(list.selectedItem(), nullptr);
    EXPECT_EQ(told(), "3:1:1 4:1:-1 2:0:-1 4:-1:-1 2:0:-1 ");
    EXPECT_THROW(list.add("c", "c").setSubItem(2, "x"), NotFoundError)
        << "only one column beyond the text";
}

TEST_F(ListViewTest, ABatchIsToldAsOneResetAndOnlyWhenSomethingChanged) {
    list.add("old", "old");
    seen.clear();
    {
        const ListView::Batch outer(list);
        {
            const ListView::Batch inner(list);
            list.clear();
            list.reserve(2);
        }
        EXPECT_TRUE(seen.empty()) << "an inner batch ends nothing";
        list.setSelectedItem(&list.add("a", "a"));
        list.add("b", "b").setSubItem(1, "Text");
    }
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].kind, ListChange::Kind::Reset);
    EXPECT_EQ(keys(), "a@1 b@2 ");
    EXPECT_EQ(list.selectedItem(), list.find("a"));
    seen.clear();
    { const ListView::Batch idle(list); }
    EXPECT_TRUE(seen.empty());
    list.item(2).setSubItem(1, "Date");
    ASSERT_EQ(seen.size(), 1u) << "fine-grained again after the batch";
    EXPECT_EQ(seen[0].kind, ListChange::Kind::CellChanged);
}

TEST_F(ListViewTest, SortedListPlacesRowsByTheSortColumnIgnoringCase) {
    list.setSortKey(0);
    list.add("I3", "banana");
    list.add("I1", "Apple");
    list.setSorted(true);
    EXPECT_EQ(list.item(1).key(), "I1");
    list.add("I2", "apricot");
    EXPECT_EQ(keys(), "I1@1 I2@2 I3@3 ");
}

TEST_F(ListViewTest, LabelEditCanBeCancelledByTheHandler) {
    ListItem& row = list.add("I1", "New Item");
    auto veto = list.AfterLabelEdit.connect(
        [](ListItem&, const std::string& text, bool& cancel) { cancel = text.empty(); });
    EXPECT_FALSE(list.editLabel(row, ""));
    EXPECT_TRUE(list.editLabel(row, "Red"));
    EXPECT_EQ(row.text(), "Red");
}

} // namespace
} // namespace morvel::view
