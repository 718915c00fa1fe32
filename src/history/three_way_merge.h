// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "history/change_set.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace morvel {

// One thing both sides changed, each its own way: a member or a stored key set to different
// values, or a field removed on one side and changed on the other. takeMine is the person's
// answer (mine by default); for a removal, mine or theirs is the side that removed or changed.
struct MergeConflict {
    enum class Kind : std::uint8_t { Member, Key, RemovedByMine, RemovedByTheirs };
    Kind kind = Kind::Member;
    FieldId id;
    // The field's name as the person sees it (mine, or theirs for a field only they have).
    std::string field;
    FieldMember member = FieldMember::Name;
    StoreName store = StoreName::Properties;
    std::string key;
    // Member and Key: each side's value (absent: the key is not stored). For a removal, what
    // the side that changed the field changed, as text.
    std::optional<Value> base;
    std::optional<Value> mine;
    std::optional<Value> theirs;
    std::string mineText;
    std::string theirsText;
    bool takeMine = true;
};

// A three-way merge of one table: base is the change set's baseline, mine the collection it
// watches, theirs the table as someone else stored it since. What only one side changed is taken;
// what both changed alike is taken once; what both changed differently is a conflict, answered
// item by item. apply() then makes mine the merged table in one step of origin Merge, whose
// first half makes it equal theirs, so that the change set's new baseline is theirs: what is left
// in it afterwards is exactly what a save has to write over their version.
class ThreeWayMerge {
public:
    ThreeWayMerge(FieldDefs& mine, ChangeSet& changes, const FieldDefs& theirs);

    std::vector<MergeConflict>& conflicts() { return m_conflicts; }
    const std::vector<MergeConflict>& conflicts() const { return m_conflicts; }

    // Writes the merged table into mine, with the answers given in conflicts().
    void apply();

private:
    void compare();
    void compareField(const FieldDef& mine, const FieldDef& theirs);
    // The person's answer for that conflict; mine where there is none.
    bool mineWins(FieldId id, MergeConflict::Kind kind, FieldMember member, StoreName store,
                  const std::string& key) const;
    bool hasConflict(FieldId id, MergeConflict::Kind kind) const;
    // A field both sides have, as merged, with mine's identity.
    std::shared_ptr<FieldDef> merged(const FieldDef& mine, const FieldDef& theirs) const;
    std::vector<std::shared_ptr<FieldDef>> result() const;

    FieldDefs& m_mine;
    ChangeSet& m_changes;
    const FieldDefs& m_theirs;
    std::vector<MergeConflict> m_conflicts;
};

// Makes fields equal target, field by field by identity: removes what target lacks, writes the
// members and stores that differ, inserts copies of target's new fields, and puts every field
// in target's order. Writes only what differs, inside whatever step is open.
void assignFields(FieldDefs& fields, const std::vector<std::shared_ptr<FieldDef>>& target);

// A new field in no collection with every member and stored value of from and identity id.
std::shared_ptr<FieldDef> copyWithId(const FieldDef& from, FieldId id);
// A copy of field (same identity) as it was in the change set's baseline.
std::shared_ptr<FieldDef> baselineCopy(const ChangeSet& changes, const FieldDef& field);
// Sets a member from a Value of its kind (memberValue's inverse).
void writeMember(FieldDef& field, FieldMember member, const Value& value);

} // namespace morvel
