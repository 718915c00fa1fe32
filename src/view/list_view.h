// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/control.h"
#include "view/list_item.h"
#include "view/row_index.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace morvel::view {

struct ColumnHeader {
    std::string key;
    std::string text;
    // In the list view's own unit, hundredths of a millimetre.
    std::int32_t width;
};

// What changed in a list's rows, for a front end: rows inserted or removed at a 0-based row,
// one cell changed, the selection moved, everything replaced.
struct ListChange {
    enum class Kind : std::uint8_t {
        Reset,
        Inserted,
        Removed,
        CellChanged,
        SelectionChanged,
        EnsureVisible,
        LabelEditStarted,
    };
    Kind kind;
    std::int32_t row = -1;
    std::int32_t column = -1;
    std::int32_t count = 0;
};

// A report-style list view with keyed rows. Look-up by key and by position is O(1) on average at
// any size; adding at the end is O(1); removing renumbers positions lazily, on the next position
// asked for, and never rebuilds the key index. Keys are case-exact and unique (DuplicateKeyError).
class ListView : public Control {
public:
    using Control::Control;
    ~ListView() override;

    void addColumn(std::string key, std::string text, std::int32_t width);
    std::int32_t columnCount() const { return static_cast<std::int32_t>(m_columns.size()); }
    // 1-based.
    const ColumnHeader& column(std::int32_t index) const;
    // Width in hundredths of a millimetre; tells observers that the columns changed.
    void setColumnWidth(std::int32_t index, std::int32_t width);
    // The 1-based index of the column with that key; throws NotFoundError when there is none.
    std::int32_t columnIndex(std::string_view key) const;

    // Adds a row at the end, or at its sorted place when the list is sorted.
    ListItem& add(std::string_view key, std::string_view text);
    // Removes the row with that key; throws NotFoundError when there is none.
    void remove(std::string_view key);
    // Moves the row to the 1-based position, told to observers as a removal and an insertion.
    // Throws NotFoundError outside the list and InvalidOperationError for a sorted list, whose
    // order is its sort's.
    void moveItem(ListItem& item, std::int32_t index);
    void clear();
    // Room for that many rows in the rows and the key index, so that a refill does not regrow.
    void reserve(std::size_t rows);

    // Between beginUpdate and the matching endUpdate (they nest) observers are told nothing; the
    // outermost endUpdate then sends one Reset if anything changed, the selection included. A
    // refill of many rows costs one notification instead of one per row and per cell.
    void beginUpdate() { ++m_updating; }
    void endUpdate();
    // beginUpdate for a scope.
    class Batch {
    public:
        explicit Batch(ListView& list)
            : m_list(list) {
            m_list.beginUpdate();
        }
        ~Batch() { m_list.endUpdate(); }
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        ListView& m_list;
    };

    std::int32_t count() const { return static_cast<std::int32_t>(m_rows.size()); }
    // The row with that key, or null.
    ListItem* find(std::string_view key) const;
    // Throws NotFoundError when there is none.
    ListItem& item(std::string_view key) const;
    // 1-based; throws NotFoundError outside the list.
    ListItem& item(std::int32_t index) const;

    ListItem* selectedItem() const { return m_selected; }
    // Selects a row (null clears the selection) without raising ItemClick.
    void setSelectedItem(ListItem* item);
    void ensureVisible(const ListItem& item);
    void startLabelEdit(const ListItem& item);

    // Sorting by the text of one column (0 = the row text), ascending or not, ignoring case.
    bool sorted() const { return m_sorted; }
    void setSorted(bool sorted);
    std::int32_t sortKey() const { return m_sortKey; }
    void setSortKey(std::int32_t column) { m_sortKey = column; }
    bool sortAscending() const { return m_sortAscending; }
    void setSortAscending(bool ascending) { m_sortAscending = ascending; }
    bool labelEditable() const { return m_labelEditable; }
    void setLabelEditable(bool editable) { m_labelEditable = editable; }

    // The user's actions.
    bool clickItem(ListItem& item);
    bool keyDown(std::int32_t keyCode, std::int32_t shift = 0);
    // Ends an in-place edit of the row's text: AfterLabelEdit may cancel it.
    bool editLabel(ListItem& item, const std::string& text);

    Signal<ListItem&> ItemClick;
    Signal<> Click;
    Signal<std::int32_t, std::int32_t> KeyDown;
    // (item, new text, cancel): set cancel to keep the old text.
    Signal<ListItem&, const std::string&, bool&> AfterLabelEdit;

    Signal<const ListChange&> rowsChanged;

private:
    friend class ListItem;

    void rekey(ListItem& item, std::string key);
    void cellChanged(const ListItem& item, std::int32_t column);
    void renumber() const;
    std::int32_t positionOf(const ListItem& item) const;
    std::size_t sortedPlace(const ListItem& item) const;
    std::string_view sortText(const ListItem& item) const;
    void emitRows(ListChange::Kind kind, std::int32_t row, std::int32_t count = 1);
    void emitChange(const ListChange& change);

    std::vector<ColumnHeader> m_columns;
    std::vector<std::unique_ptr<ListItem>> m_rows;
    RowIndex m_byKey;
    ListItem* m_selected = nullptr;
    // Rows before this 0-based position carry their right position.
    mutable std::size_t m_numberedUpTo = 0;
    std::int32_t m_sortKey = 0;
    bool m_sorted = false;
    bool m_sortAscending = true;
    bool m_labelEditable = false;
    // Nesting depth of beginUpdate, and whether a change was held back meanwhile.
    std::int32_t m_updating = 0;
    bool m_heldBack = false;
};

} // namespace morvel::view
