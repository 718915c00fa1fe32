// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/list_entry.h"
#include "fields/store_change.h"
#include "fields/value.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string_view>
#include <vector>

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
    // Enumerates the entries in order, passing over the places of removed ones.
    class const_iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = ListEntry;
        using difference_type = std::ptrdiff_t;
        using pointer = const ListEntry*;
        using reference = const ListEntry&;

        const_iterator() = default;
        reference operator*() const { return m_store->m_entries[m_at]; }
        pointer operator->() const { return &m_store->m_entries[m_at]; }
        const_iterator& operator++() {
            m_at = m_store->nextLive(m_at + 1);
            return *this;
        }
        const_iterator operator++(int) {
            const_iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const const_iterator& other) const { return m_at == other.m_at; }

    private:
        friend class PropertyStore;
        const_iterator(const PropertyStore& store, std::size_t at)
            : m_store(&store)
            , m_at(at) {}

        const PropertyStore* m_store = nullptr;
        std::size_t m_at = 0;
    };

    PropertyStore();
    ~PropertyStore();

    PropertyStore(const PropertyStore&) = delete;
    PropertyStore& operator=(const PropertyStore&) = delete;

    // Returns whether the value is now stored under key.
    bool SetValue(std::string_view key, Value value, bool addIfMissing);
    Value GetValue(std::string_view key, Value defaultValue) const;
    // Valid until the next change of the store.
    const ListEntry* Lookup(std::string_view key) const;
    // Puts an absent key at the 1-based position in enumeration order (Count() + 1 appends), as
    // undo puts a removed entry back. Linear in the entries. Throws InvalidOperationError when the
    // key is stored already, NotFoundError when the position is outside 1..Count() + 1.
    void Insert(std::int32_t position, std::string_view key, Value value);
    // Removing an absent key does nothing.
    void Remove(std::string_view key);
    void Clear();
    std::int32_t Count() const;

    const_iterator begin() const { return {*this, nextLive(0)}; }
    const_iterator end() const { return {*this, m_entries.size()}; }

    bool rewriting() const { return m_rewriting; }
    void endRewrite() { m_rewriting = false; }

    // The observer is told of every change; one at most (the owning FieldDef).
    void setObserver(StoreObserver* observer) { m_observer = observer; }

private:
    struct Index;

    void notify(const StoreChange& change) const;
    // The position of key in m_entries, or m_entries.size().
    std::size_t find(std::string_view key) const;
    // The first position from at on that holds an entry.
    std::size_t nextLive(std::size_t at) const;
    void buildIndex();
    void compact();
    // The 1-based enumeration position of the entry at slot at.
    std::int32_t positionOf(std::size_t at) const;

    // A store holds one or two entries for most fields: they sit in one small vector, in order,
    // searched linearly. From kIndexedFrom entries on a hash index of their positions keeps
    // look-ups O(1); removed entries then leave a hole (so that no position moves) until holes
    // outnumber entries and the vector is compacted, which keeps removal O(1) amortised.
    std::vector<ListEntry> m_entries;
    std::unique_ptr<Index> m_index;
    StoreObserver* m_observer = nullptr;
    bool m_rewriting = false;
};

} // namespace morvel
