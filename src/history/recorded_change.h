// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/field_change.h"
#include "fields/field_def.h"
#include "fields/field_defs.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace morvel {

// One change as the history keeps it: enough to write it backwards (undo) and forwards again
// (redo) through the library. It holds the field itself, so that an undone removal puts the very
// same object back and a change of a field that was removed later still finds its field.
struct RecordedChange {
    enum class Kind : std::uint8_t { Member, Store, Insert, Remove, Move };

    Kind kind = Kind::Member;
    FieldMember member = FieldMember::Name;
    StoreChange::Action action = StoreChange::Action::Changed;
    std::shared_ptr<FieldDef> field;
    std::string key;
    Value oldValue;
    Value newValue;
    // Insert and Remove: the field's position; Move: from and to; Store: the entry's position.
    std::int32_t from = 0;
    std::int32_t to = 0;
    std::shared_ptr<const std::vector<ListEntry>> cleared;

    static RecordedChange of(std::shared_ptr<FieldDef> field, const FieldChange& change);

    void undo(FieldDefs& fields) const;
    void redo(FieldDefs& fields) const;

    // Whether later keystrokes of the same box may fold into this change: a member write, or a
    // stored value added or changed.
    bool mergeable() const;
    bool sameTarget(const RecordedChange& other) const;
    // Folds a later change of the same target into this one: the first old value, the last new.
    void absorb(RecordedChange&& later);

    // What a person reads for a change made outside any step: "Remove field Notes".
    std::string text() const;
    // Heap and inline bytes held by this change, the field object of a removal included.
    std::size_t bytes() const;
};

} // namespace morvel
