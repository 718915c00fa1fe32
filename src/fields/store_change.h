// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/list_entry.h"
#include "fields/value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace morvel {

class PropertyStore;

// What one write did to a PropertyStore. For Cleared the key is empty and the values are empty.
// position is the entry's 1-based place in enumeration order (where it was, for Removed), so a
// listener can put a removed entry back where it stood; it is 0 for Cleared. cleared holds the
// entries a Clear took away, in order: moved out of the store, shared by every listener.
struct StoreChange {
    enum class Action : std::uint8_t { Added, Changed, Removed, Cleared };
    Action action;
    std::string key;
    Value oldValue;
    Value newValue;
    std::int32_t position = 0;
    std::shared_ptr<const std::vector<ListEntry>> cleared = {};
};

// Told of every change of a store; a FieldDef is the observer of its three stores.
class StoreObserver {
public:
    virtual void storeChanged(const PropertyStore& store, const StoreChange& change) = 0;

protected:
    virtual ~StoreObserver() = default;
};

} // namespace morvel
