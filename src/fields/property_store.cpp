#include "fields/property_store.h"

#include <unordered_map>
#include <utility>

namespace morvel {

struct PropertyStore::Entries {
    std::list<ListEntry> list;
    // Keys view the key strings of the entries, which list nodes keep in place.
    std::unordered_map<std::string_view, std::list<ListEntry>::iterator> index;
};

namespace {
const std::list<ListEntry> kNoEntries;
}

PropertyStore::PropertyStore() = default;
PropertyStore::~PropertyStore() = default;

std::int32_t PropertyStore::Count() const {
    return m_entries ? static_cast<std::int32_t>(m_entries->list.size()) : 0;
}

PropertyStore::const_iterator PropertyStore::begin() const {
    return m_entries ? m_entries->list.cbegin() : kNoEntries.cbegin();
}

PropertyStore::const_iterator PropertyStore::end() const {
    return m_entries ? m_entries->list.cend() : kNoEntries.cend();
}

bool PropertyStore::SetValue(std::string_view key, Value value, bool addIfMissing) {
    if (!m_entries) {
        if (!addIfMissing && !m_rewriting)
            return false;
        m_entries = std::make_unique<Entries>();
    }
    auto& index = m_entries->index;
    if (auto found = index.find(key); found != index.end()) {
        Value& stored = found->second->Value;
        if (stored == value)
            return true;
        Value old = std::exchange(stored, std::move(value));
        notify({StoreChange::Action::Changed, std::string(key), std::move(old), stored});
        return true;
    }
    if (!addIfMissing && !m_rewriting)
        return false;
    auto& list = m_entries->list;
    auto entry = list.insert(list.end(), ListEntry{std::string(key), std::move(value)});
    index.emplace(entry->Key, entry);
    notify({StoreChange::Action::Added, entry->Key, Value(), entry->Value});
    return true;
}

Value PropertyStore::GetValue(std::string_view key, Value defaultValue) const {
    if (const ListEntry* entry = Lookup(key))
        return entry->Value;
    return defaultValue;
}

const ListEntry* PropertyStore::Lookup(std::string_view key) const {
    if (!m_entries)
        return nullptr;
    auto found = m_entries->index.find(key);
    return found == m_entries->index.end() ? nullptr : &*found->second;
}

void PropertyStore::Remove(std::string_view key) {
    if (!m_entries)
        return;
    auto found = m_entries->index.find(key);
    if (found == m_entries->index.end())
        return;
    auto entry = found->second;
    m_entries->index.erase(found);
    StoreChange change{StoreChange::Action::Removed, std::move(entry->Key), std::move(entry->Value),
                       Value()};
    m_entries->list.erase(entry);
    notify(std::move(change));
}

void PropertyStore::Clear() {
    m_rewriting = true;
    if (!m_entries || m_entries->list.empty())
        return;
    m_entries.reset();
    notify({StoreChange::Action::Cleared, {}, Value(), Value()});
}

void PropertyStore::notify(StoreChange change) const {
    if (m_observer)
        m_observer->storeChanged(*this, change);
}

} // namespace morvel
