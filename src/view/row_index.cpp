#include "view/row_index.h"

#include "view/list_item.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace morvel::view {

namespace {

// Entries per 10 slots at most. Linear probing stays short below this; the array of a reserved
// list of 100,000 rows is 131,072 slots.
constexpr std::size_t kMaxLoad = 8;

std::size_t hashOf(std::string_view key) {
    return std::hash<std::string_view>{}(key);
}

std::size_t slotsFor(std::size_t rows) {
    return std::bit_ceil(std::max<std::size_t>(8, rows * 10 / kMaxLoad + 1));
}

} // namespace

ListItem* RowIndex::find(std::string_view key) const {
    if (m_slots.empty())
        return nullptr;
    const std::size_t hash = hashOf(key);
    for (std::size_t at = hash & mask();; at = (at + 1) & mask()) {
        const Slot& slot = m_slots[at];
        if (!slot.row)
            return nullptr;
        if (slot.hash == hash && slot.row->key() == key)
            return slot.row;
    }
}

bool RowIndex::insert(ListItem& row) {
    if ((m_count + 1) * 10 > m_slots.size() * kMaxLoad)
        rehash(slotsFor(m_count + 1) * 2);
    const std::string_view key = row.key();
    const std::size_t hash = hashOf(key);
    std::size_t at = hash & mask();
    for (; m_slots[at].row; at = (at + 1) & mask())
        if (m_slots[at].hash == hash && m_slots[at].row->key() == key)
            return false;
    m_slots[at] = {&row, hash};
    ++m_count;
    return true;
}

void RowIndex::erase(const ListItem& row) {
    if (m_slots.empty())
        return;
    std::size_t hole = hashOf(row.key()) & mask();
    for (; m_slots[hole].row != &row; hole = (hole + 1) & mask())
        if (!m_slots[hole].row)
            return;
    // Move back every following entry whose home slot does not lie between the hole and it, so
    // that each entry stays reachable from its home without a gap.
    for (std::size_t next = (hole + 1) & mask(); m_slots[next].row; next = (next + 1) & mask()) {
        const std::size_t home = m_slots[next].hash & mask();
        const bool reachable =
            hole <= next ? (hole < home && home <= next) : (hole < home || home <= next);
        if (reachable)
            continue;
        m_slots[hole] = m_slots[next];
        hole = next;
    }
    m_slots[hole] = {};
    --m_count;
}

void RowIndex::clear() {
    m_slots.clear();
    m_count = 0;
}

void RowIndex::reserve(std::size_t rows) {
    if (rows * 10 > m_slots.size() * kMaxLoad)
        rehash(slotsFor(rows));
}

void RowIndex::rehash(std::size_t slots) {
    std::vector<Slot> old(slots);
    old.swap(m_slots);
    for (const Slot& slot : old) {
        if (!slot.row)
            continue;
        std::size_t at = slot.hash & mask();
        while (m_slots[at].row)
            at = (at + 1) & mask();
        m_slots[at] = slot;
    }
}

} // namespace morvel::view
