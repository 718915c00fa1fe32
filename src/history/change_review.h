// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "history/change_set.h"

#include <string>
#include <vector>

namespace morvel {

// The changes of a table for a person to review before saving: one row per changed item, field
// by field in the table's order (removed fields last), old and new side by side; and the way
// back: Revert field and Revert all, each one step (origin Host), written through the library
// so that undo takes it back like any other step.
class ChangeReview {
public:
    struct Row {
        FieldId id;
        std::string field;
        // "New field", "Removed", "Moved", a member's name, or a store and key.
        std::string item;
        std::string oldText;
        std::string newText;
    };

    ChangeReview(FieldDefs& fields, const ChangeSet& changes);

    // Computed now, in time linear in what changed (and the table's order for sorting).
    std::vector<Row> rows() const;

    // Puts the field back as it was in the baseline: removes a new field, puts a removed one back
    // at its place, writes back what changed, moves a moved one back.
    void revertField(FieldId id);
    void revertAll();

private:
    // The fields as they stand, with each of ids as in the baseline (in its baseline place when
    // it was removed or moved).
    std::vector<std::shared_ptr<FieldDef>> withBaselineOf(const std::vector<FieldId>& ids) const;

    FieldDefs& m_fields;
    const ChangeSet& m_changes;
};

} // namespace morvel
