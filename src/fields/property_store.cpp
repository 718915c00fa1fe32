#include "fields/property_store.h"

#include <utility>

namespace morvel {

bool PropertyStore::SetValue(std::string_view key, Value value, bool addIfMissing) {
    if (auto found = m_index.find(key); found != m_index.end()) {
        Value& stored = found->second->Value;
        if (stored == value)
            return true;
        Value old = std::exchange(stored, std::move(value));
        notify({StoreChange::Action::Changed, std::string(key), std::move(old), stored});
        return true;
    }
    if (!addIfMissing && !m_rewriting)
        return false;
    auto entry = m_entries.insert(m_entries.end(), ListEntry{std::string(key), std::move(value)});
    m_index.emplace(entry->Key, entry);
    notify({StoreChange::Action::Added, entry->Key, Value(), entry->Value});
    return true;
}

Value PropertyStore::GetValue(std::string_view key, Value defaultValue) const {
    if (auto found = m_index.find(key); found != m_index.end())
        return found->second->Value;
    return defaultValue;
}

const ListEntry* PropertyStore::Lookup(std::string_view key) const {
    auto found = m_index.find(key);
    return found == m_index.end() ? nullptr : &*found->second;
}

void PropertyStore::Remove(std::string_view key) {
    auto found = m_index.find(key);
    if (found == m_index.end())
        return;
    auto entry = found->second;
    m_index.erase(found);
    StoreChange change{StoreChange::Action::Removed, std::move(entry->Key), std::move(entry->Value),
                       Value()};
    m_entries.erase(entry);
    notify(std::move(change));
}

void PropertyStore::Clear() {
    m_rewriting = true;
    if (m_entries.empty())
        return;
    m_index.clear();
    m_entries.clear();
    notify({StoreChange::Action::Cleared, {}, Value(), Value()});
}

void PropertyStore::notify(StoreChange change) const {
    if (m_observer)
        m_observer->storeChanged(*this, change);
}

} // namespace morvel
