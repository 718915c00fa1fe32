// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/field_row_index.h"

namespace morvel::control {

view::ListItem* FieldRowIndex::find(FieldId id) const {
    if (!id)
        return nullptr;
    const Slot* slot =
        m_table.find(hash(id.value()), [&](const Slot& each) { return each.id == id.value(); });
    return slot ? slot->row : nullptr;
}

void FieldRowIndex::set(FieldId id, view::ListItem& row) {
    if (!id)
        return;
    // Found or new, the slot now names this row.
    Slot* slot =
        m_table.place(hash(id.value()), [&](const Slot& each) { return each.id == id.value(); })
            .first;
    *slot = {id.value(), &row};
}

void FieldRowIndex::erase(FieldId id) {
    if (id)
        m_table.erase(hash(id.value()), [&](const Slot& each) { return each.id == id.value(); });
}

} // namespace morvel::control
