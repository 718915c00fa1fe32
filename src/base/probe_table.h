// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <utility>
#include <vector>

namespace morvel {

// Open addressing with linear probing over one array of slots, for the keyed look-ups that run on
// every click and keystroke at any size: a look-up or an insertion reads one or two neighbouring
// cache lines instead of a chain of nodes, and a table of 100,000 entries allocates once. Removal
// shifts the following entries back, so there are no tombstones to sweep.
//
// Traits says what a slot holds: static bool isEmpty(const Slot&) (a value-initialised Slot is
// empty) and static std::size_t hashOf(const Slot&). Callers hash their key and pass a predicate
// that tells whether a full slot holds it.
template <typename Slot, typename Traits> class ProbeTable {
public:
    // The slot that holds the key, or null.
    template <typename Holds> const Slot* find(std::size_t hash, Holds holds) const {
        if (m_slots.empty())
            return nullptr;
        for (std::size_t at = hash & mask();; at = (at + 1) & mask()) {
            const Slot& slot = m_slots[at];
            if (Traits::isEmpty(slot))
                return nullptr;
            if (holds(slot))
                return &slot;
        }
    }

    // The slot that holds the key, or the empty slot where it goes (the caller fills it, which
    // counts it); the second member says whether it was found.
    template <typename Holds> std::pair<Slot*, bool> place(std::size_t hash, Holds holds) {
        if ((m_count + 1) * 10 > m_slots.size() * kMaxLoad)
            rehash(slotsFor(m_count + 1) * 2);
        std::size_t at = hash & mask();
        for (; !Traits::isEmpty(m_slots[at]); at = (at + 1) & mask())
            if (holds(m_slots[at]))
                return {&m_slots[at], true};
        ++m_count;
        return {&m_slots[at], false};
    }

    // Empties the slot that holds the key, if any.
    template <typename Holds> void erase(std::size_t hash, Holds holds) {
        if (m_slots.empty())
            return;
        std::size_t hole = hash & mask();
        for (; !holds(m_slots[hole]); hole = (hole + 1) & mask())
            if (Traits::isEmpty(m_slots[hole]))
                return;
        // Move back every following entry whose home slot does not lie between the hole and it,
        // so that each entry stays reachable from its home without a gap.
        for (std::size_t next = (hole + 1) & mask(); !Traits::isEmpty(m_slots[next]);
             next = (next + 1) & mask()) {
            const std::size_t home = Traits::hashOf(m_slots[next]) & mask();
            const bool reachable =
                hole <= next ? (hole < home && home <= next) : (hole < home || home <= next);
            if (reachable)
                continue;
            m_slots[hole] = m_slots[next];
            hole = next;
        }
        m_slots[hole] = Slot{};
        --m_count;
    }

    void clear() {
        m_slots.clear();
        m_count = 0;
    }

    void reserve(std::size_t entries) {
        if (entries * 10 > m_slots.size() * kMaxLoad)
            rehash(slotsFor(entries));
    }

private:
    // Entries per 10 slots at most: probes stay short, and 100,000 entries take 131,072 slots.
    static constexpr std::size_t kMaxLoad = 8;

    static std::size_t slotsFor(std::size_t entries) {
        return std::bit_ceil(std::max<std::size_t>(8, entries * 10 / kMaxLoad + 1));
    }
    std::size_t mask() const { return m_slots.size() - 1; }

    void rehash(std::size_t slotCount) {
        std::vector<Slot> old(slotCount);
        old.swap(m_slots);
        for (const Slot& slot : old) {
            if (Traits::isEmpty(slot))
                continue;
            std::size_t at = Traits::hashOf(slot) & mask();
            while (!Traits::isEmpty(m_slots[at]))
                at = (at + 1) & mask();
            m_slots[at] = slot;
        }
    }

    // A power of two in size, or empty.
    std::vector<Slot> m_slots;
    std::size_t m_count = 0;
};

} // namespace morvel
