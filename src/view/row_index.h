#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace morvel::view {

class ListItem;

// A list's rows by key: open addressing with linear probing over one array of row pointers and
// their keys' hashes. The rows own their keys, so nothing here moves when a cell is rewritten; a
// look-up or an insertion reads one or two neighbouring cache lines instead of a chain of nodes.
// Removal shifts the following entries back, so there are no tombstones to sweep.
class RowIndex {
public:
    ListItem* find(std::string_view key) const;
    // False, and nothing inserted, when a row has that key already.
    bool insert(ListItem& row);
    // The row must be in the index under its current key.
    void erase(const ListItem& row);
    void clear();
    void reserve(std::size_t rows);

private:
    struct Slot {
        ListItem* row = nullptr;
        std::size_t hash = 0;
    };

    std::size_t mask() const { return m_slots.size() - 1; }
    void rehash(std::size_t slots);

    // A power of two in size, or empty; at most kMaxLoad full.
    std::vector<Slot> m_slots;
    std::size_t m_count = 0;
};

} // namespace morvel::view
