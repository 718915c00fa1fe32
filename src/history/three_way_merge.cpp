// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "history/three_way_merge.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <unordered_map>
#include <unordered_set>

namespace morvel {

namespace {

constexpr std::array<FieldMember, 11> kMembers = {
    FieldMember::Name,       FieldMember::Description,   FieldMember::DisplayName,
    FieldMember::FieldType,  FieldMember::Size,          FieldMember::DefaultValue,
    FieldMember::CtrlEdit,   FieldMember::CtrlReadOnly,  FieldMember::CtrlList,
    FieldMember::Validation, FieldMember::CreateOnDemand};

constexpr std::array<StoreName, 3> kStores = {StoreName::Properties, StoreName::ListValues,
                                              StoreName::Locales};

std::vector<ListEntry> entriesOf(const PropertyStore& store) {
    return {store.begin(), store.end()};
}

bool sameEntries(const std::vector<ListEntry>& a, const std::vector<ListEntry>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const ListEntry& x, const ListEntry& y) {
                          return x.Key == y.Key && x.Value == y.Value;
                      });
}

std::optional<Value> lookup(const std::vector<ListEntry>& entries, const std::string& key) {
    for (const ListEntry& entry : entries)
        if (entry.Key == key)
            return entry.Value;
    return std::nullopt;
}

void writeStore(FieldDef& field, StoreName name, const std::vector<ListEntry>& entries) {
    PropertyStore& store = storeOf(field, name);
    if (sameEntries(entriesOf(store), entries))
        return;
    store.Clear();
    for (const ListEntry& entry : entries)
        store.SetValue(entry.Key, entry.Value, true);
    if (name == StoreName::ListValues)
        field.CommitListValues();
}

// Every member and store of from, written into to where they differ; the name too.
void copyContent(const FieldDef& from, FieldDef& to) {
    for (FieldMember member : kMembers) {
        const Value value = memberValue(from, member);
        if (!(memberValue(to, member) == value))
            writeMember(to, member, value);
    }
    for (StoreName store : kStores)
        writeStore(to, store, entriesOf(storeOf(from, store)));
}

std::string folded(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// What a side changed in a field, against the field as it was: for a conflict's one line.
std::string changedItems(const ChangeSet& changes, const FieldDef& base, const FieldDef& now) {
    std::string text;
    for (FieldMember member : kMembers)
        if (!(changes.baselineMember(base, member) == memberValue(now, member)))
            text += std::string(text.empty() ? "" : ", ") + memberName(member);
    for (StoreName store : kStores)
        if (!sameEntries(changes.baselineStore(base, store), entriesOf(storeOf(now, store))))
            text += std::string(text.empty() ? "" : ", ") + storeLabel(store);
    return text.empty() ? "Unchanged" : "Changed: " + text;
}

} // namespace

void writeMember(FieldDef& field, FieldMember member, const Value& value) {
    switch (member) {
    case FieldMember::Name:
        return field.SetName(value.asText());
    case FieldMember::Description:
        return field.SetDescription(value.asText());
    case FieldMember::DisplayName:
        return field.SetDisplayName(value.asText());
    case FieldMember::FieldType:
        return field.SetFieldType(value.asLong());
    case FieldMember::Size:
        return field.SetSize(value.asLong());
    case FieldMember::DefaultValue:
        return field.SetDefaultValue(value.asText());
    case FieldMember::CtrlEdit:
        return field.SetCtrlEdit(value.asText());
    case FieldMember::CtrlReadOnly:
        return field.SetCtrlReadOnly(value.asText());
    case FieldMember::CtrlList:
        return field.SetCtrlList(value.asText());
    case FieldMember::Validation:
        return field.SetValidation(value.asLong());
    case FieldMember::CreateOnDemand:
        return field.SetCreateOnDemand(value.asBoolean());
    case FieldMember::Properties:
    case FieldMember::ListValues:
    case FieldMember::ListValuesCommitted:
    case FieldMember::Locales:
        return;
    }
}

std::shared_ptr<FieldDef> copyWithId(const FieldDef& from, FieldId id) {
    auto copy = from.Clone();
    copy->restoreId(id);
    return copy;
}

std::shared_ptr<FieldDef> baselineCopy(const ChangeSet& changes, const FieldDef& field) {
    auto copy = copyWithId(field, field.id());
    for (FieldMember member : kMembers)
        writeMember(*copy, member, changes.baselineMember(field, member));
    for (StoreName store : kStores)
        writeStore(*copy, store, changes.baselineStore(field, store));
    return copy;
}

void assignFields(FieldDefs& fields, const std::vector<std::shared_ptr<FieldDef>>& target) {
    std::unordered_map<FieldId, const FieldDef*> wanted;
    for (const auto& field : target)
        wanted.emplace(field->id(), field.get());
    std::vector<std::string> gone;
    std::vector<std::pair<FieldDef*, const FieldDef*>> kept;
    for (const auto& field : fields) {
        const auto found = wanted.find(field->id());
        if (found == wanted.end())
            gone.push_back(field->Name());
        else if (found->second != field.get())
            kept.emplace_back(field.get(), found->second);
    }
    for (const std::string& name : gone)
        fields.Remove(name);
    // Renames first to names no field has, so that two fields may trade names.
    for (auto [field, from] : kept)
        if (field->Name() != from->Name())
            field->SetName("\x7F" + std::to_string(field->id().value()));
    for (auto [field, from] : kept)
        copyContent(*from, *field);
    std::unordered_set<FieldId> present;
    for (const auto& field : fields)
        present.insert(field->id());
    for (const auto& field : target)
        if (!present.count(field->id()))
            fields.Add(field->collection() ? copyWithId(*field, field->id()) : field);
    for (std::int32_t at = 1; at <= static_cast<std::int32_t>(target.size()); ++at) {
        const FieldId id = target[static_cast<std::size_t>(at - 1)]->id();
        if (fields.Item(at)->id() == id)
            continue;
        std::int32_t from = at + 1;
        while (fields.Item(from)->id() != id)
            ++from;
        fields.Move(from, at);
    }
}

ThreeWayMerge::ThreeWayMerge(FieldDefs& mine, ChangeSet& changes, const FieldDefs& theirs)
    : m_mine(mine)
    , m_changes(changes)
    , m_theirs(theirs) {
    compare();
}

void ThreeWayMerge::compare() {
    std::unordered_map<FieldId, const FieldDef*> theirsById;
    for (const auto& field : m_theirs)
        theirsById.emplace(field->id(), field.get());
    for (const auto& field : m_mine) {
        const FieldId id = field->id();
        if (m_changes.isAdded(id) || !m_changes.differs(id))
            continue;
        const auto theirs = theirsById.find(id);
        if (theirs != theirsById.end()) {
            compareField(*field, *theirs->second);
            continue;
        }
        MergeConflict conflict;
        conflict.kind = MergeConflict::Kind::RemovedByTheirs;
        conflict.id = id;
        conflict.field = field->Name();
        conflict.mineText = describe(m_changes.difference(id));
        conflict.theirsText = "Removed";
        m_conflicts.push_back(std::move(conflict));
    }
    for (FieldId id : m_changes.differingFields()) {
        const auto theirs = theirsById.find(id);
        if (!m_changes.isRemoved(id) || theirs == theirsById.end())
            continue;
        const std::string changed =
            changedItems(m_changes, *m_changes.fieldOf(id), *theirs->second);
        if (changed == "Unchanged")
            continue;
        MergeConflict conflict;
        conflict.kind = MergeConflict::Kind::RemovedByMine;
        conflict.id = id;
        conflict.field = theirs->second->Name();
        conflict.mineText = "Removed";
        conflict.theirsText = changed;
        m_conflicts.push_back(std::move(conflict));
    }
}

void ThreeWayMerge::compareField(const FieldDef& mine, const FieldDef& theirs) {
    for (FieldMember member : kMembers) {
        const Value base = m_changes.baselineMember(mine, member);
        const Value ours = memberValue(mine, member);
        const Value other = memberValue(theirs, member);
        if (ours == base || other == base || ours == other)
            continue;
        MergeConflict conflict;
        conflict.id = mine.id();
        conflict.field = mine.Name();
        conflict.member = member;
        conflict.base = base;
        conflict.mine = ours;
        conflict.theirs = other;
        conflict.mineText = describeValue(ours);
        conflict.theirsText = describeValue(other);
        m_conflicts.push_back(std::move(conflict));
    }
    for (StoreName store : kStores) {
        if (!m_changes.storeDiffers(mine.id(), store))
            continue;
        const auto base = m_changes.baselineStore(mine, store);
        const auto ours = entriesOf(storeOf(mine, store));
        const auto other = entriesOf(storeOf(theirs, store));
        if (sameEntries(base, other))
            continue;
        std::vector<std::string> keys;
        for (const auto* entries : {&base, &ours, &other})
            for (const ListEntry& entry : *entries)
                if (std::find(keys.begin(), keys.end(), entry.Key) == keys.end())
                    keys.push_back(entry.Key);
        for (const std::string& key : keys) {
            const auto b = lookup(base, key);
            const auto m = lookup(ours, key);
            const auto t = lookup(other, key);
            if (m == b || t == b || m == t)
                continue;
            MergeConflict conflict;
            conflict.kind = MergeConflict::Kind::Key;
            conflict.id = mine.id();
            conflict.field = mine.Name();
            conflict.store = store;
            conflict.key = key;
            conflict.base = b;
            conflict.mine = m;
            conflict.theirs = t;
            conflict.mineText = describeValue(m);
            conflict.theirsText = describeValue(t);
            m_conflicts.push_back(std::move(conflict));
        }
    }
}

bool ThreeWayMerge::mineWins(FieldId id, MergeConflict::Kind kind, FieldMember member,
                             StoreName store, const std::string& key) const {
    for (const MergeConflict& conflict : m_conflicts)
        if (conflict.id == id && conflict.kind == kind &&
            (kind != MergeConflict::Kind::Member || conflict.member == member) &&
            (kind != MergeConflict::Kind::Key || (conflict.store == store && conflict.key == key)))
            return conflict.takeMine;
    return true;
}

bool ThreeWayMerge::hasConflict(FieldId id, MergeConflict::Kind kind) const {
    return std::any_of(m_conflicts.begin(), m_conflicts.end(),
                       [&](const MergeConflict& c) { return c.id == id && c.kind == kind; });
}

std::shared_ptr<FieldDef> ThreeWayMerge::merged(const FieldDef& mine,
                                                const FieldDef& theirs) const {
    auto result = copyWithId(theirs, mine.id());
    if (!m_changes.differs(mine.id()))
        return result;
    for (FieldMember member : kMembers) {
        const Value base = m_changes.baselineMember(mine, member);
        const Value ours = memberValue(mine, member);
        if (ours == base)
            continue; // theirs, as copied
        const Value other = memberValue(theirs, member);
        if (other == base || other == ours ||
            mineWins(mine.id(), MergeConflict::Kind::Member, member, {}, {}))
            writeMember(*result, member, ours);
    }
    for (StoreName store : kStores) {
        if (!m_changes.storeDiffers(mine.id(), store))
            continue;
        const auto base = m_changes.baselineStore(mine, store);
        const auto ours = entriesOf(storeOf(mine, store));
        const auto other = entriesOf(storeOf(theirs, store));
        if (sameEntries(base, other)) {
            writeStore(*result, store, ours);
            continue;
        }
        // Mine's order, each key as the merge decides; then the keys only theirs has.
        std::vector<ListEntry> entries;
        auto decide = [&](const std::string& key) -> std::optional<Value> {
            const auto b = lookup(base, key);
            const auto m = lookup(ours, key);
            const auto t = lookup(other, key);
            if (m == b)
                return t;
            if (t == b || t == m)
                return m;
            return mineWins(mine.id(), MergeConflict::Kind::Key, {}, store, key) ? m : t;
        };
        for (const ListEntry& entry : ours)
            if (auto value = decide(entry.Key))
                entries.push_back({entry.Key, *value});
        for (const ListEntry& entry : other)
            if (!lookup(ours, entry.Key))
                if (auto value = decide(entry.Key))
                    entries.push_back({entry.Key, *value});
        writeStore(*result, store, entries);
    }
    return result;
}

std::vector<std::shared_ptr<FieldDef>> ThreeWayMerge::result() const {
    using Kind = MergeConflict::Kind;
    std::unordered_map<FieldId, const FieldDef*> mineById;
    for (const auto& field : m_mine)
        if (!m_changes.isAdded(field->id()))
            mineById.emplace(field->id(), field.get());
    // Theirs' fields in their order, as merged; mine's moved fields are placed below.
    std::vector<std::shared_ptr<FieldDef>> order;
    std::unordered_set<FieldId> placed;
    for (const auto& theirs : m_theirs) {
        const FieldId id = theirs->id();
        const auto mine = mineById.find(id);
        if (mine != mineById.end()) {
            if (!m_changes.isMoved(id))
                order.push_back(merged(*mine->second, *theirs));
            continue;
        }
        if (m_changes.isRemoved(id) && (!hasConflict(id, Kind::RemovedByMine) ||
                                        mineWins(id, Kind::RemovedByMine, {}, {}, {})))
            continue;
        order.push_back(copyWithId(*theirs, id));
    }
    for (const auto& field : order)
        placed.insert(field->id());
    std::unordered_map<FieldId, const FieldDef*> theirsById;
    for (const auto& field : m_theirs)
        theirsById.emplace(field->id(), field.get());
    // Mine's own fields (new, moved, or kept against their removal) after the field that stands
    // before them in mine.
    FieldId lastOfMine;
    for (const auto& field : m_mine) {
        const FieldId id = field->id();
        const auto theirs = theirsById.find(id);
        std::shared_ptr<FieldDef> add;
        if (m_changes.isAdded(id)) {
            // Both sides may have given a new field the same identity: mine takes another.
            add = copyWithId(*field, theirs == theirsById.end() ? id : FieldId::fresh());
        } else if (placed.count(id) && !m_changes.isMoved(id)) {
            lastOfMine = id;
            continue;
        } else if (theirs != theirsById.end()) {
            add = merged(*field, *theirs->second); // moved by mine
        } else if (hasConflict(id, Kind::RemovedByTheirs) &&
                   mineWins(id, Kind::RemovedByTheirs, {}, {}, {})) {
            add = copyWithId(*field, id);
        }
        if (!add)
            continue;
        std::size_t at = 0;
        if (lastOfMine)
            for (std::size_t i = 0; i < order.size(); ++i)
                if (order[i]->id() == lastOfMine)
                    at = i + 1;
        order.insert(order.begin() + static_cast<std::ptrdiff_t>(at), add);
        lastOfMine = add->id();
    }
    // Names must stay unique: a field only one side made gives way with a number.
    std::unordered_set<std::string> names;
    for (const auto& field : order) {
        std::string name = field->Name();
        for (int n = 2; !names.insert(folded(name)).second; ++n)
            name = field->Name() + std::to_string(n);
        if (name != field->Name())
            field->SetName(name);
    }
    return order;
}

void ThreeWayMerge::apply() {
    const auto merged = result();
    std::vector<std::shared_ptr<FieldDef>> theirs;
    theirs.reserve(static_cast<std::size_t>(m_theirs.Count()));
    for (const auto& field : m_theirs)
        theirs.push_back(copyWithId(*field, field->id()));
    const auto step = m_mine.beginStep("Merge with the saved table", ChangeOrigin::Merge);
    assignFields(m_mine, theirs);
    m_changes.rebase();
    assignFields(m_mine, merged);
}

} // namespace morvel
