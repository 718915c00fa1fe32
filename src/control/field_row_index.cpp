#include "control/field_row_index.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace morvel::control {

namespace {

// Entries per 10 slots at most: probes stay short, and 100,000 rows take 131,072 slots.
constexpr std::size_t kMaxLoad = 8;

std::size_t slotsFor(std::size_t rows) {
    return std::bit_ceil(std::max<std::size_t>(8, rows * 10 / kMaxLoad + 1));
}

} // namespace

std::size_t FieldRowIndex::home(std::uint64_t id) const {
    // Identities are handed out in sequence: a multiplicative hash spreads neighbours apart.
    return static_cast<std::size_t>((id * 0x9E3779B97F4A7C15ull) >> 16) & mask();
}

view::ListItem* FieldRowIndex::find(FieldId id) const {
    if (m_slots.empty() || !id)
        return nullptr;
    for (std::size_t at = home(id.value());; at = (at + 1) & mask()) {
        const Slot& slot = m_slots[at];
        if (slot.id == id.value())
            return slot.row;
        if (slot.id == 0)
            return nullptr;
    }
}

void FieldRowIndex::set(FieldId id, view::ListItem& row) {
    if (!id)
        return;
    if ((m_count + 1) * 10 > m_slots.size() * kMaxLoad)
        rehash(slotsFor(m_count + 1) * 2);
    std::size_t at = home(id.value());
    for (; m_slots[at].id != 0; at = (at + 1) & mask()) {
        if (m_slots[at].id == id.value()) {
            m_slots[at].row = &row;
            return;
        }
    }
    m_slots[at] = {id.value(), &row};
    ++m_count;
}

void FieldRowIndex::erase(FieldId id) {
    if (m_slots.empty() || !id)
        return;
    std::size_t hole = home(id.value());
    for (; m_slots[hole].id != id.value(); hole = (hole + 1) & mask())
        if (m_slots[hole].id == 0)
            return;
    // Move back every following entry whose home does not lie between the hole and it, so that
    // each entry stays reachable from its home without a gap.
    for (std::size_t next = (hole + 1) & mask(); m_slots[next].id != 0;
         next = (next + 1) & mask()) {
        const std::size_t from = home(m_slots[next].id);
        const bool reachable =
            hole <= next ? (hole < from && from <= next) : (hole < from || from <= next);
        if (reachable)
            continue;
        m_slots[hole] = m_slots[next];
        hole = next;
    }
    m_slots[hole] = {};
    --m_count;
}

void FieldRowIndex::clear() {
    m_slots.clear();
    m_count = 0;
}

void FieldRowIndex::reserve(std::size_t rows) {
    if (slotsFor(rows) > m_slots.size())
        rehash(slotsFor(rows));
}

void FieldRowIndex::rehash(std::size_t slots) {
    std::vector<Slot> old = std::exchange(m_slots, std::vector<Slot>(slots));
    m_count = 0;
    for (const Slot& slot : old)
        if (slot.id != 0)
            set(FieldId(slot.id), *slot.row);
}

} // namespace morvel::control
