// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "control/property_bag.h"

#include <map>
#include <string>
#include <string_view>

namespace morvel::testkit {

// A property bag in memory, for tests and for hosts that persist it themselves.
class MemoryPropertyBag : public control::PropertyBag {
public:
    Value ReadProperty(std::string_view name, const Value& defaultValue) const override;
    void WriteProperty(std::string_view name, const Value& value,
                       const Value& defaultValue) override;
    const std::map<std::string, Value, std::less<>>& values() const { return m_values; }

private:
    std::map<std::string, Value, std::less<>> m_values;
};

} // namespace morvel::testkit
