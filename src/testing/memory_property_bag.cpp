// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "testing/memory_property_bag.h"

namespace morvel::testkit {

Value MemoryPropertyBag::ReadProperty(std::string_view name, const Value& defaultValue) const {
    auto found = m_values.find(name);
    return found == m_values.end() ? defaultValue : found->second;
}

void MemoryPropertyBag::WriteProperty(std::string_view name, const Value& value,
                                      const Value& defaultValue) {
    // A value equal to its default is not kept: reading it back gives the default anyway.
    if (value == defaultValue) {
        if (auto found = m_values.find(name); found != m_values.end())
            m_values.erase(found);
        return;
    }
    m_values.insert_or_assign(std::string(name), value);
}

} // namespace morvel::testkit
