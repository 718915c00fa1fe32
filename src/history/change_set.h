// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "fields/field_defs.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace morvel {

// Which of a field's three keyed stores an entry belongs to.
enum class StoreName : std::uint8_t { Properties, ListValues, Locales };

const char* storeLabel(StoreName store);

// One member of a field that differs from the baseline, old and new with their kinds.
struct MemberDifference {
    FieldMember member;
    Value oldValue;
    Value newValue;
};

// One stored key that differs: added (no old value), removed (no new value) or changed.
struct KeyDifference {
    StoreName store;
    std::string key;
    std::optional<Value> oldValue;
    std::optional<Value> newValue;
};

// How one field differs from the baseline. A removed field keeps its object, as it was removed.
struct FieldDifference {
    FieldId id;
    std::shared_ptr<FieldDef> field;
    bool added = false;
    bool removed = false;
    bool moved = false;
    std::vector<MemberDifference> members;
    std::vector<KeyDifference> keys;
    // Same keys and values, in another stored order.
    std::vector<StoreName> reordered;
};

// The exact difference between a collection and its baseline (the table as loaded or last saved),
// kept current from the collection's notifications alone: fields added, removed and moved, and per
// changed field the members and stored keys that differ. It keeps the baseline of what changed
// only (a member's first old value, a store's entries before its first change) and the order of
// the baseline's field identities, never a copy of the table; a change costs what it touches. It
// is empty again as soon as the collection equals its baseline, however it got there.
//
// Moves are the one costly case: whether the order equals the baseline's again is checked by one
// walk over the identities, on a move or a field put back, never on a keystroke.
class ChangeSet {
public:
    explicit ChangeSet(FieldDefs& fields);
    ChangeSet(const ChangeSet&) = delete;
    ChangeSet& operator=(const ChangeSet&) = delete;
    ~ChangeSet();

    // The present state becomes the baseline (after a save).
    void rebase();

    bool empty() const { return m_differing == 0; }
    // The number of fields that differ.
    std::size_t size() const { return m_differing; }

    // The status of one field, O(1): whether it is new, removed, moved or changed.
    bool isAdded(FieldId id) const;
    bool isRemoved(FieldId id) const;
    bool isMoved(FieldId id) const;
    // Some member or stored key differs (for a field of the baseline).
    bool isChanged(FieldId id) const;
    bool differs(FieldId id) const;

    // Whether the fields' order may differ from the baseline's (then the moved fields say where).
    bool orderDiffers() const { return m_orderDiffers; }
    // Whether a field's members or a store's entries differ, for a save that writes only those.
    bool membersDiffer(FieldId id) const;
    bool storeDiffers(FieldId id, StoreName store) const;

    // The difference of one field (empty members and keys when it does not differ), and of all
    // the fields that differ, in no particular order. Linear in what changed.
    FieldDifference difference(FieldId id) const;
    std::vector<FieldDifference> differences() const;
    // The object of a field that differs (a removed one as it was removed), or null.
    std::shared_ptr<FieldDef> fieldOf(FieldId id) const;
    // The identities of every field that differs.
    std::vector<FieldId> differingFields() const;
    // The baseline value of a member (the present one when it did not change), and a field's
    // stored entries as they were in the baseline.
    Value baselineMember(const FieldDef& field, FieldMember member) const;
    std::vector<ListEntry> baselineStore(const FieldDef& field, StoreName store) const;
    // The baseline's fields in order, by identity.
    const std::vector<FieldId>& baselineOrder() const { return m_baselineOrder; }

    // Raised when a field's status may read differently (its marker).
    Signal<const FieldDef&> fieldChanged;
    // Raised when empty() changes.
    Signal<> emptyChanged;

private:
    struct Tracked;

    Tracked& track(const std::shared_ptr<FieldDef>& field, bool inBaseline);
    Tracked* find(FieldId id);
    const Tracked* find(FieldId id) const;
    void memberChanged(const FieldChange& change);
    void storeChanged(const FieldChange& change);
    void inserted(const FieldPlaced& placed);
    void removed(const FieldPlaced& placed);
    void moved(const FieldMoved& moved);
    // Recounts one field after a change of it, and forgets it when it equals its baseline.
    void settle(FieldId id, bool wasDiffering);
    void tell(const std::shared_ptr<FieldDef>& field);
    void checkOrder();

    FieldDefs& m_fields;
    std::unordered_map<FieldId, Tracked> m_tracked;
    std::vector<FieldId> m_baselineOrder;
    std::size_t m_differing = 0;
    bool m_orderDiffers = false;
    Connections m_connections;
};

// What changed, a line per item, as a tooltip or a log shows it: "New field", "Removed",
// "Moved", "DisplayName: \"Id\" -> \"Code\"", "Properties Max: (none) -> 9". Texts are quoted, so
// the text "9" and the number 9 read differently.
std::string describe(const FieldDifference& difference);
std::string describeValue(const std::optional<Value>& value);

// A member as a Value of its kind (text, whole number or Boolean); empty for the stores.
Value memberValue(const FieldDef& field, FieldMember member);
PropertyStore& storeOf(FieldDef& field, StoreName store);
const PropertyStore& storeOf(const FieldDef& field, StoreName store);

} // namespace morvel
