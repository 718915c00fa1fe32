#pragma once

#include "fields/value.h"

#include <cstdint>
#include <string>

namespace morvel {

class PropertyStore;

// What one write did to a PropertyStore. For Cleared the key is empty and the values are empty.
struct StoreChange {
    enum class Action : std::uint8_t { Added, Changed, Removed, Cleared };
    Action action;
    std::string key;
    Value oldValue;
    Value newValue;
};

// Told of every change of a store; a FieldDef is the observer of its three stores.
class StoreObserver {
public:
    virtual void storeChanged(const PropertyStore& store, const StoreChange& change) = 0;

protected:
    virtual ~StoreObserver() = default;
};

} // namespace morvel
