#pragma once

#include "fields/list_entry.h"
#include "fields/store_change.h"
#include "fields/value.h"

#include <cstdint>
#include <list>
#include <memory>
#include <string_view>

namespace morvel {

// Values under case-exact text keys, enumerated in the order the keys were first stored.
// Look-up, insertion and removal are O(1) on average at any size.
//
// The addIfMissing flag of SetValue: an existing key always takes the new value in place. An
// absent key is appended when addIfMissing is True. When it is False the absent key is appended
// only while the store is being rewritten, that is after Clear and until endRewrite() (which
// FieldDef::CommitListValues calls for its list values); otherwise the store is left as it was and
// SetValue returns false. So a caller that clears and refills a store may pass False throughout,
// and a caller that only means to update existing keys cannot add stray ones by mistake.
class PropertyStore {
public:
    using const_iterator = std::list<ListEntry>::const_iterator;

    PropertyStore();
    ~PropertyStore();

    PropertyStore(const PropertyStore&) = delete;
    PropertyStore& operator=(const PropertyStore&) = delete;

    // Returns whether the value is now stored under key.
    bool SetValue(std::string_view key, Value value, bool addIfMissing);
    Value GetValue(std::string_view key, Value defaultValue) const;
    const ListEntry* Lookup(std::string_view key) const;
    // Removing an absent key does nothing.
    void Remove(std::string_view key);
    void Clear();
    std::int32_t Count() const;

    const_iterator begin() const;
    const_iterator end() const;

    bool rewriting() const { return m_rewriting; }
    void endRewrite() { m_rewriting = false; }

    // The observer is told of every change; one at most (the owning FieldDef).
    void setObserver(StoreObserver* observer) { m_observer = observer; }

private:
    void notify(StoreChange change) const;

    // Most fields leave most of their three stores empty: the entries are made on the first write.
    struct Entries;
    std::unique_ptr<Entries> m_entries;
    StoreObserver* m_observer = nullptr;
    bool m_rewriting = false;
};

} // namespace morvel
