// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/value.h"

#include <map>
#include <string>
#include <string_view>

namespace morvel::control {

// Where the host keeps the control's persisted settings between sessions.
class PropertyBag {
public:
    virtual ~PropertyBag() = default;
    virtual Value ReadProperty(std::string_view name, const Value& defaultValue) const = 0;
    virtual void WriteProperty(std::string_view name, const Value& value,
                               const Value& defaultValue) = 0;
};

} // namespace morvel::control
