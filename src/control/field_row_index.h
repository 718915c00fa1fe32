// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/probe_table.h"
#include "fields/field_id.h"

#include <cstddef>
#include <cstdint>

namespace morvel::view {
class ListItem;
}

namespace morvel::control {

// The field list's rows by field identity, in a ProbeTable of {identity, row}, so that indexing
// a refill of 100,000 fields allocates once, not once a row.
class FieldRowIndex {
public:
    // The row of the field, or null.
    view::ListItem* find(FieldId id) const;
    // Gives the field that row, whether it had one or not.
    void set(FieldId id, view::ListItem& row);
    // Forgetting a field that has no row does nothing.
    void erase(FieldId id);
    void clear() { m_table.clear(); }
    void reserve(std::size_t rows) { m_table.reserve(rows); }

private:
    struct Slot {
        std::uint64_t id = 0; // 0: empty
        view::ListItem* row = nullptr;
    };
    struct SlotTraits {
        static bool isEmpty(const Slot& slot) { return slot.id == 0; }
        static std::size_t hashOf(const Slot& slot) { return hash(slot.id); }
    };
    // Identities are handed out in sequence: a multiplicative hash spreads neighbours apart.
    static std::size_t hash(std::uint64_t id) {
        return static_cast<std::size_t>((id * 0x9E3779B97F4A7C15ull) >> 16);
    }

    ProbeTable<Slot, SlotTraits> m_table;
};

} // namespace morvel::control
