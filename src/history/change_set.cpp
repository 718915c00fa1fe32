// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "history/change_set.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace morvel {

namespace {

constexpr std::array<StoreName, 3> kStores = {StoreName::Properties, StoreName::ListValues,
                                              StoreName::Locales};

std::optional<StoreName> storeNameOf(FieldMember member) {
    switch (member) {
    case FieldMember::Properties:
        return StoreName::Properties;
    case FieldMember::ListValues:
    case FieldMember::ListValuesCommitted:
        return StoreName::ListValues;
    case FieldMember::Locales:
        return StoreName::Locales;
    default:
        return std::nullopt;
    }
}

std::vector<ListEntry> entriesOf(const PropertyStore& store) {
    return {store.begin(), store.end()};
}

bool sameEntries(const PropertyStore& store, const std::vector<ListEntry>& entries) {
    // A refill grows entry by entry: the count tells most of its steps apart at once.
    if (static_cast<std::size_t>(store.Count()) != entries.size())
        return false;
    auto entry = entries.begin();
    for (const ListEntry& present : store) {
        if (present.Key != entry->Key || !(present.Value == entry->Value))
            return false;
        ++entry;
    }
    return true;
}

// The store's entries before its first change, from the store as it is now and that change.
std::vector<ListEntry> entriesBefore(const PropertyStore& store, const FieldChange& change) {
    using Action = StoreChange::Action;
    if (change.storeAction == Action::Cleared)
        return change.cleared ? *change.cleared : std::vector<ListEntry>();
    std::vector<ListEntry> entries = entriesOf(store);
    const auto at = static_cast<std::size_t>(std::max(change.position, 1) - 1);
    switch (change.storeAction) {
    case Action::Added:
        if (at < entries.size())
            entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(at));
        break;
    case Action::Changed:
        for (ListEntry& entry : entries)
            if (entry.Key == change.key)
                entry.Value = change.oldValue;
        break;
    case Action::Removed:
        entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(std::min(at, entries.size())),
                       ListEntry{change.key, change.oldValue});
        break;
    case Action::Cleared:
        break;
    }
    return entries;
}

} // namespace

const char* storeLabel(StoreName store) {
    switch (store) {
    case StoreName::Properties:
        return "Properties";
    case StoreName::ListValues:
        return "List values";
    case StoreName::Locales:
        return "Locales";
    }
    return "";
}

PropertyStore& storeOf(FieldDef& field, StoreName store) {
    if (store == StoreName::Properties)
        return field.Properties();
    if (store == StoreName::ListValues)
        return field.ListValues();
    return field.Locales();
}

const PropertyStore& storeOf(const FieldDef& field, StoreName store) {
    return storeOf(const_cast<FieldDef&>(field), store);
}

Value memberValue(const FieldDef& field, FieldMember member) {
    switch (member) {
    case FieldMember::Name:
        return field.Name();
    case FieldMember::Description:
        return field.Description();
    case FieldMember::DisplayName:
        return field.DisplayName();
    case FieldMember::FieldType:
        return field.FieldType();
    case FieldMember::Size:
        return field.Size();
    case FieldMember::DefaultValue:
        return field.DefaultValue();
    case FieldMember::CtrlEdit:
        return field.CtrlEdit();
    case FieldMember::CtrlReadOnly:
        return field.CtrlReadOnly();
    case FieldMember::CtrlList:
        return field.CtrlList();
    case FieldMember::Validation:
        return field.Validation();
    case FieldMember::CreateOnDemand:
        return field.CreateOnDemand();
    case FieldMember::Properties:
    case FieldMember::ListValues:
    case FieldMember::ListValuesCommitted:
    case FieldMember::Locales:
        break;
    }
    return {};
}

// What the change set knows of one field that differs, or did until a moment ago.
struct ChangeSet::Tracked {
    std::shared_ptr<FieldDef> field;
    bool inBaseline = true;
    bool present = true;
    bool moved = false;
    // The baseline value of each member that differs, in the order of their first change.
    std::vector<std::pair<FieldMember, Value>> members;
    // A store's baseline entries, kept from its first change until it equals them again.
    std::array<std::unique_ptr<std::vector<ListEntry>>, 3> stores;

    bool differs() const {
        if (!inBaseline || !present)
            return inBaseline || present;
        return moved || !members.empty() ||
               std::any_of(stores.begin(), stores.end(), [](const auto& s) { return !!s; });
    }
    // Nothing worth remembering: the field is as in the baseline, or came and went.
    bool forgettable() const { return !differs(); }
};

ChangeSet::ChangeSet(FieldDefs& fields)
    : m_fields(fields) {
    m_connections += fields.changed.connect([this](const FieldChange& change) {
        if (storeNameOf(change.member))
            storeChanged(change);
        else
            memberChanged(change);
    });
    m_connections += fields.inserted.connect([this](const FieldPlaced& p) { inserted(p); });
    m_connections += fields.removed.connect([this](const FieldPlaced& p) { removed(p); });
    m_connections += fields.moved.connect([this](const FieldMoved& m) { moved(m); });
    rebase();
}

ChangeSet::~ChangeSet() = default;

void ChangeSet::rebase() {
    std::vector<std::shared_ptr<FieldDef>> told;
    told.reserve(m_tracked.size());
    for (const auto& [id, tracked] : m_tracked)
        told.push_back(tracked.field);
    const bool wasEmpty = empty();
    // The walk over every field is needed only when the order is not the baseline's any more; a
    // save of edits in place stays flat in the size of the table.
    bool sameOrder =
        !m_orderDiffers && m_baselineOrder.size() == static_cast<std::size_t>(m_fields.Count());
    for (const auto& [id, tracked] : m_tracked)
        sameOrder = sameOrder && tracked.inBaseline && tracked.present;
    m_tracked.clear();
    m_differing = 0;
    m_orderDiffers = false;
    if (!sameOrder) {
        m_baselineOrder.clear();
        m_baselineOrder.reserve(static_cast<std::size_t>(m_fields.Count()));
        for (const auto& field : m_fields)
            m_baselineOrder.push_back(field->id());
    }
    for (const auto& field : told)
        tell(field);
    if (!wasEmpty)
        emptyChanged.notify();
}

ChangeSet::Tracked* ChangeSet::find(FieldId id) {
    const auto found = m_tracked.find(id);
    return found == m_tracked.end() ? nullptr : &found->second;
}

const ChangeSet::Tracked* ChangeSet::find(FieldId id) const {
    const auto found = m_tracked.find(id);
    return found == m_tracked.end() ? nullptr : &found->second;
}

ChangeSet::Tracked& ChangeSet::track(const std::shared_ptr<FieldDef>& field, bool inBaseline) {
    auto [entry, made] = m_tracked.try_emplace(field->id());
    if (made) {
        entry->second.field = field;
        entry->second.inBaseline = inBaseline;
    }
    return entry->second;
}

bool ChangeSet::isAdded(FieldId id) const {
    const Tracked* tracked = find(id);
    return tracked && !tracked->inBaseline && tracked->present;
}

bool ChangeSet::isRemoved(FieldId id) const {
    const Tracked* tracked = find(id);
    return tracked && tracked->inBaseline && !tracked->present;
}

bool ChangeSet::isMoved(FieldId id) const {
    const Tracked* tracked = find(id);
    return tracked && tracked->inBaseline && tracked->present && tracked->moved;
}

bool ChangeSet::isChanged(FieldId id) const {
    const Tracked* tracked = find(id);
    return tracked && tracked->inBaseline &&
           (!tracked->members.empty() || std::any_of(tracked->stores.begin(), tracked->stores.end(),
                                                     [](const auto& s) { return !!s; }));
}

bool ChangeSet::differs(FieldId id) const {
    const Tracked* tracked = find(id);
    return tracked && tracked->differs();
}

bool ChangeSet::membersDiffer(FieldId id) const {
    const Tracked* tracked = find(id);
    return tracked && tracked->inBaseline && !tracked->members.empty();
}

bool ChangeSet::storeDiffers(FieldId id, StoreName store) const {
    const Tracked* tracked = find(id);
    return tracked && tracked->inBaseline &&
           tracked->stores[static_cast<std::size_t>(store)] != nullptr;
}

void ChangeSet::memberChanged(const FieldChange& change) {
    const FieldId id = change.field.id();
    Tracked* tracked = find(id);
    if (tracked && !tracked->inBaseline)
        return; // a new field is new as a whole
    if (!tracked)
        tracked = &track(m_fields.find(change.field.Name()), true);
    const bool was = tracked->differs();
    auto& members = tracked->members;
    auto member = std::find_if(members.begin(), members.end(),
                               [&](const auto& m) { return m.first == change.member; });
    if (member == members.end())
        member = members.insert(members.end(), {change.member, change.oldValue});
    if (member->second == change.newValue)
        members.erase(member);
    settle(id, was);
}

void ChangeSet::storeChanged(const FieldChange& change) {
    const FieldId id = change.field.id();
    Tracked* tracked = find(id);
    if (tracked && !tracked->inBaseline)
        return;
    const StoreName name = *storeNameOf(change.member);
    const PropertyStore& store = storeOf(change.field, name);
    auto slot = static_cast<std::size_t>(name);
    if (!tracked) {
        if (change.member == FieldMember::ListValuesCommitted)
            return; // a commit of a list that never changed
        tracked = &track(m_fields.find(change.field.Name()), true);
    }
    const bool was = tracked->differs();
    auto& baseline = tracked->stores[slot];
    if (!baseline && change.member != FieldMember::ListValuesCommitted)
        baseline = std::make_unique<std::vector<ListEntry>>(entriesBefore(store, change));
    if (baseline && sameEntries(store, *baseline))
        baseline.reset();
    settle(id, was);
}

void ChangeSet::inserted(const FieldPlaced& placed) {
    const FieldId id = placed.field->id();
    Tracked* tracked = find(id);
    const bool was = tracked && tracked->differs();
    if (tracked && tracked->inBaseline) {
        // A baseline field put back (an undone removal): where it went decides whether it moved.
        tracked->present = true;
        tracked->moved = true;
        settle(id, was);
        checkOrder();
        return;
    }
    track(placed.field, false).present = true;
    settle(id, was);
}

void ChangeSet::removed(const FieldPlaced& placed) {
    const FieldId id = placed.field->id();
    Tracked& tracked = track(placed.field, true);
    const bool was = tracked.differs();
    tracked.present = false;
    tracked.moved = false;
    settle(id, was);
    if (m_orderDiffers)
        checkOrder();
}

void ChangeSet::moved(const FieldMoved& moved) {
    const FieldId id = moved.field->id();
    Tracked& tracked = track(moved.field, true);
    if (!tracked.inBaseline)
        return;
    const bool was = tracked.differs();
    tracked.moved = true;
    settle(id, was);
    checkOrder();
}

void ChangeSet::settle(FieldId id, bool wasDiffering) {
    Tracked* tracked = find(id);
    const bool now = tracked && tracked->differs();
    const std::shared_ptr<FieldDef> field = tracked ? tracked->field : nullptr;
    if (tracked && tracked->forgettable())
        m_tracked.erase(id);
    const bool wasEmpty = empty();
    if (now && !wasDiffering)
        ++m_differing;
    else if (!now && wasDiffering)
        --m_differing;
    tell(field);
    if (wasEmpty != empty())
        emptyChanged.notify();
}

void ChangeSet::tell(const std::shared_ptr<FieldDef>& field) {
    if (field)
        fieldChanged.notify(*field);
}

void ChangeSet::checkOrder() {
    // The baseline's fields that are still here must stand in the baseline's order; fields added
    // since may stand anywhere. A look-up is needed only where the two walks disagree.
    auto base = m_baselineOrder.begin();
    auto present = m_fields.begin();
    bool same = true;
    while (same && (base != m_baselineOrder.end() || present != m_fields.end())) {
        if (base != m_baselineOrder.end() && present != m_fields.end() &&
            *base == (*present)->id()) {
            ++base;
            ++present;
        } else if (base != m_baselineOrder.end() && isRemoved(*base)) {
            ++base;
        } else if (present != m_fields.end() && isAdded((*present)->id())) {
            ++present;
        } else {
            same = false;
        }
    }
    m_orderDiffers = !same;
    if (!same)
        return;
    std::vector<FieldId> wereMoved;
    for (const auto& [id, tracked] : m_tracked)
        if (tracked.moved)
            wereMoved.push_back(id);
    for (FieldId id : wereMoved) {
        Tracked& tracked = m_tracked.at(id);
        const bool was = tracked.differs();
        tracked.moved = false;
        settle(id, was);
    }
}

FieldDifference ChangeSet::difference(FieldId id) const {
    FieldDifference result;
    result.id = id;
    const Tracked* tracked = find(id);
    if (!tracked)
        return result;
    result.field = tracked->field;
    result.added = !tracked->inBaseline && tracked->present;
    result.removed = tracked->inBaseline && !tracked->present;
    result.moved = tracked->inBaseline && tracked->present && tracked->moved;
    if (!tracked->inBaseline)
        return result;
    for (const auto& [member, old] : tracked->members)
        result.members.push_back({member, old, memberValue(*tracked->field, member)});
    for (StoreName name : kStores) {
        const auto& baseline = tracked->stores[static_cast<std::size_t>(name)];
        if (!baseline)
            continue;
        const PropertyStore& store = storeOf(*tracked->field, name);
        const std::size_t before = result.keys.size();
        std::unordered_map<std::string_view, const Value*> old;
        for (const ListEntry& entry : *baseline)
            old.emplace(entry.Key, &entry.Value);
        for (const ListEntry& entry : store) {
            const auto was = old.find(entry.Key);
            if (was == old.end())
                result.keys.push_back({name, entry.Key, std::nullopt, entry.Value});
            else if (!(*was->second == entry.Value))
                result.keys.push_back({name, entry.Key, *was->second, entry.Value});
        }
        for (const ListEntry& entry : *baseline)
            if (!store.Lookup(entry.Key))
                result.keys.push_back({name, entry.Key, entry.Value, std::nullopt});
        if (result.keys.size() == before)
            result.reordered.push_back(name);
    }
    return result;
}

std::vector<FieldDifference> ChangeSet::differences() const {
    std::vector<FieldDifference> result;
    result.reserve(m_tracked.size());
    for (const auto& [id, tracked] : m_tracked)
        if (tracked.differs())
            result.push_back(difference(id));
    return result;
}

std::shared_ptr<FieldDef> ChangeSet::fieldOf(FieldId id) const {
    const Tracked* tracked = find(id);
    return tracked ? tracked->field : nullptr;
}

std::vector<FieldId> ChangeSet::differingFields() const {
    std::vector<FieldId> result;
    result.reserve(m_tracked.size());
    for (const auto& [id, tracked] : m_tracked)
        if (tracked.differs())
            result.push_back(id);
    return result;
}

Value ChangeSet::baselineMember(const FieldDef& field, FieldMember member) const {
    if (const Tracked* tracked = find(field.id()))
        for (const auto& [which, old] : tracked->members)
            if (which == member)
                return old;
    return memberValue(field, member);
}

std::vector<ListEntry> ChangeSet::baselineStore(const FieldDef& field, StoreName store) const {
    if (const Tracked* tracked = find(field.id()))
        if (const auto& baseline = tracked->stores[static_cast<std::size_t>(store)])
            return *baseline;
    return entriesOf(storeOf(field, store));
}

std::string describeValue(const std::optional<Value>& value) {
    if (!value)
        return "(none)";
    switch (value->kind()) {
    case Value::Kind::Empty:
        return "(empty)";
    case Value::Kind::Text:
        return "\"" + value->asText() + "\"";
    case Value::Kind::Long:
    case Value::Kind::Boolean:
        break;
    }
    return value->toText();
}

std::string describe(const FieldDifference& difference) {
    std::string text;
    auto line = [&](const std::string& item) {
        if (!text.empty())
            text += '\n';
        text += item;
    };
    if (difference.added)
        line("New field");
    if (difference.removed)
        line("Removed");
    if (difference.moved)
        line("Moved");
    for (const MemberDifference& member : difference.members)
        line(std::string(memberName(member.member)) + ": " + describeValue(member.oldValue) +
             " -> " + describeValue(member.newValue));
    for (const KeyDifference& key : difference.keys)
        line(std::string(storeLabel(key.store)) + " " + key.key + ": " +
             describeValue(key.oldValue) + " -> " + describeValue(key.newValue));
    for (StoreName store : difference.reordered)
        line(std::string(storeLabel(store)) + ": new order");
    return text;
}

} // namespace morvel
