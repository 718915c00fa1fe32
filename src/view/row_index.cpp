// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "view/row_index.h"

#include "view/list_item.h"

#include <functional>

namespace morvel::view {

namespace {

std::size_t hashOf(std::string_view key) {
    return std::hash<std::string_view>{}(key);
}

} // namespace

ListItem* RowIndex::find(std::string_view key) const {
    const std::size_t hash = hashOf(key);
    const Slot* slot = m_table.find(
        hash, [&](const Slot& each) { return each.hash == hash && each.row->key() == key; });
    return slot ? slot->row : nullptr;
}

bool RowIndex::insert(ListItem& row) {
    const std::string_view key = row.key();
    const std::size_t hash = hashOf(key);
    auto [slot, found] = m_table.place(
        hash, [&](const Slot& each) { return each.hash == hash && each.row->key() == key; });
    if (found)
        return false;
    *slot = {&row, hash};
    return true;
}

void RowIndex::erase(const ListItem& row) {
    m_table.erase(hashOf(row.key()), [&](const Slot& each) { return each.row == &row; });
}

} // namespace morvel::view
