#pragma once

#include "fields/field_id.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace morvel::view {
class ListItem;
}

namespace morvel::control {

// The field list's rows by field identity: open addressing with linear probing over one array of
// {identity, row}, so that indexing a refill of 100,000 fields allocates once, not once a row.
class FieldRowIndex {
public:
    // The row of the field, or null.
    view::ListItem* find(FieldId id) const;
    // Gives the field that row, whether it had one or not.
    void set(FieldId id, view::ListItem& row);
    // Forgetting a field that has no row does nothing.
    void erase(FieldId id);
    void clear();
    void reserve(std::size_t rows);

private:
    struct Slot {
        std::uint64_t id = 0; // 0: empty
        view::ListItem* row = nullptr;
    };

    std::size_t home(std::uint64_t id) const;
    std::size_t mask() const { return m_slots.size() - 1; }
    void rehash(std::size_t slots);

    // A power of two in size, or empty; at most 8 in 10 full.
    std::vector<Slot> m_slots;
    std::size_t m_count = 0;
};

} // namespace morvel::control
