#pragma once

#include "fields/property_store.h"

#include <string>

namespace morvel::testing {

// A property store as one string in stored order: key=value joined by ';', texts quoted so that
// a Long 0 and the text "0" differ.
inline std::string storeSnapshot(const PropertyStore& store) {
    std::string out;
    for (const ListEntry& entry : store) {
        const bool text = entry.Value.kind() == Value::Kind::Text;
        out += (out.empty() ? "" : ";") + entry.Key + "=" + (text ? "\"" : "") +
               entry.Value.toText() + (text ? "\"" : "");
    }
    return out;
}

} // namespace morvel::testing
