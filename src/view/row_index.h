// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/probe_table.h"

#include <cstddef>
#include <string_view>

namespace morvel::view {

class ListItem;

// A list's rows by key, in a ProbeTable of row pointers and their keys' hashes. The rows own
// their keys, so nothing here moves when a cell is rewritten.
class RowIndex {
public:
    ListItem* find(std::string_view key) const;
    // False, and nothing inserted, when a row has that key already.
    bool insert(ListItem& row);
    // The row must be in the index under its current key.
    void erase(const ListItem& row);
    void clear() { m_table.clear(); }
    void reserve(std::size_t rows) { m_table.reserve(rows); }

private:
    struct Slot {
        ListItem* row = nullptr;
        std::size_t hash = 0;
    };
    struct SlotTraits {
        static bool isEmpty(const Slot& slot) { return !slot.row; }
        static std::size_t hashOf(const Slot& slot) { return slot.hash; }
    };

    ProbeTable<Slot, SlotTraits> m_table;
};

} // namespace morvel::view
