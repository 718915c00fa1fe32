// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "fields/property_store.h"

#include "base/error.h"

#include <algorithm>
#include <functional>
#include <string>
#include <unordered_set>
#include <utility>

namespace morvel {

namespace {

constexpr std::size_t kIndexedFrom = 12;

// Positions in the entries, hashed and compared by the key of the entry there, so that the index
// holds no copy of a key and can be searched with any string_view.
struct PositionHash {
    using is_transparent = void;
    const std::vector<ListEntry>* entries;
    // Not noexcept: the table then caches each hash, so a rehash never reads the entries again.
    std::size_t operator()(std::string_view key) const {
        return std::hash<std::string_view>()(key);
    }
    std::size_t operator()(std::size_t at) const { return (*this)((*entries)[at].Key); }
};

struct PositionEqual {
    using is_transparent = void;
    const std::vector<ListEntry>* entries;
    std::string_view keyOf(std::string_view key) const { return key; }
    std::string_view keyOf(std::size_t at) const { return (*entries)[at].Key; }
    template <typename A, typename B> bool operator()(const A& a, const B& b) const {
        return keyOf(a) == keyOf(b);
    }
};

} // namespace

struct PropertyStore::Index {
    explicit Index(const std::vector<ListEntry>& entries)
        : positions(entries.size() * 2, PositionHash{&entries}, PositionEqual{&entries}) {}

    std::unordered_set<std::size_t, PositionHash, PositionEqual> positions;
    // Holes left by removals, by position.
    std::vector<bool> removed;
    std::size_t removedCount = 0;
};

PropertyStore::PropertyStore() = default;
PropertyStore::~PropertyStore() = default;

std::int32_t PropertyStore::Count() const {
    const std::size_t holes = m_index ? m_index->removedCount : 0;
    return static_cast<std::int32_t>(m_entries.size() - holes);
}

std::size_t PropertyStore::find(std::string_view key) const {
    if (m_index) {
        auto found = m_index->positions.find(key);
        return found == m_index->positions.end() ? m_entries.size() : *found;
    }
    for (std::size_t at = 0; at < m_entries.size(); ++at)
        if (m_entries[at].Key == key)
            return at;
    return m_entries.size();
}

std::size_t PropertyStore::nextLive(std::size_t at) const {
    if (!m_index || m_index->removedCount == 0)
        return at;
    while (at < m_entries.size() && m_index->removed[at])
        ++at;
    return at;
}

bool PropertyStore::SetValue(std::string_view key, Value value, bool addIfMissing) {
    if (const std::size_t at = find(key); at != m_entries.size()) {
        Value& stored = m_entries[at].Value;
        if (stored == value)
            return true;
        Value old = std::exchange(stored, std::move(value));
        notify({StoreChange::Action::Changed, std::string(key), std::move(old), stored});
        return true;
    }
    if (!addIfMissing && !m_rewriting)
        return false;
    const std::size_t at = m_entries.size();
    m_entries.push_back(ListEntry{std::string(key), std::move(value)});
    if (m_index) {
        m_index->removed.push_back(false);
        m_index->positions.insert(at);
    } else if (m_entries.size() >= kIndexedFrom) {
        buildIndex();
    }
    const ListEntry& entry = m_entries[at];
    notify({StoreChange::Action::Added, entry.Key, Value(), entry.Value, Count()});
    return true;
}

void PropertyStore::Insert(std::int32_t position, std::string_view key, Value value) {
    if (find(key) != m_entries.size())
        throw InvalidOperationError("The key \"" + std::string(key) + "\" is stored already.");
    if (position < 1 || position > Count() + 1)
        throw NotFoundError("There is no position " + std::to_string(position) + " to insert at.");
    // Without holes a slot is its position less one; the index is rebuilt over the moved slots.
    if (m_index && m_index->removedCount != 0)
        compact();
    const auto at = static_cast<std::size_t>(position - 1);
    m_entries.insert(m_entries.begin() + static_cast<std::ptrdiff_t>(at),
                     ListEntry{std::string(key), std::move(value)});
    m_index.reset();
    if (m_entries.size() >= kIndexedFrom)
        buildIndex();
    const ListEntry& entry = m_entries[at];
    notify({StoreChange::Action::Added, entry.Key, Value(), entry.Value, position});
}

Value PropertyStore::GetValue(std::string_view key, Value defaultValue) const {
    if (const ListEntry* entry = Lookup(key))
        return entry->Value;
    return defaultValue;
}

const ListEntry* PropertyStore::Lookup(std::string_view key) const {
    const std::size_t at = find(key);
    return at == m_entries.size() ? nullptr : &m_entries[at];
}

void PropertyStore::Remove(std::string_view key) {
    const std::size_t at = find(key);
    if (at == m_entries.size())
        return;
    // Out of the index while the entry still holds the key it was hashed by.
    if (m_index)
        m_index->positions.erase(at);
    const std::int32_t position = positionOf(at);
    ListEntry& entry = m_entries[at];
    StoreChange change{StoreChange::Action::Removed, std::move(entry.Key), std::move(entry.Value),
                       Value(), position};
    if (m_index) {
        m_index->removed[at] = true;
        ++m_index->removedCount;
        if (m_index->removedCount * 2 > m_entries.size())
            compact();
    } else {
        m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(at));
    }
    notify(change);
}

void PropertyStore::Clear() {
    m_rewriting = true;
    if (Count() == 0)
        return;
    if (m_index && m_index->removedCount != 0)
        compact();
    m_index.reset();
    auto cleared = std::make_shared<const std::vector<ListEntry>>(std::exchange(m_entries, {}));
    notify({StoreChange::Action::Cleared, {}, Value(), Value(), 0, std::move(cleared)});
}

std::int32_t PropertyStore::positionOf(std::size_t at) const {
    std::size_t holes = 0;
    if (m_index && m_index->removedCount != 0)
        holes = static_cast<std::size_t>(
            std::count(m_index->removed.begin(),
                       m_index->removed.begin() + static_cast<std::ptrdiff_t>(at), true));
    return static_cast<std::int32_t>(at - holes) + 1;
}

void PropertyStore::buildIndex() {
    m_index = std::make_unique<Index>(m_entries);
    m_index->removed.assign(m_entries.size(), false);
    for (std::size_t at = 0; at < m_entries.size(); ++at)
        m_index->positions.insert(at);
}

void PropertyStore::compact() {
    std::vector<ListEntry> kept;
    kept.reserve(m_entries.size() - m_index->removedCount);
    for (std::size_t at = 0; at < m_entries.size(); ++at)
        if (!m_index->removed[at])
            kept.push_back(std::move(m_entries[at]));
    m_index.reset();
    m_entries = std::move(kept);
    if (m_entries.size() >= kIndexedFrom)
        buildIndex();
}

void PropertyStore::notify(const StoreChange& change) const {
    if (m_observer)
        m_observer->storeChanged(*this, change);
}

} // namespace morvel
