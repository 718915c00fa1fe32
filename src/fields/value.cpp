// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "fields/value.h"

#include "base/error.h"

namespace morvel {

namespace {
[[noreturn]] void mismatch(Value::Kind held, Value::Kind wanted) {
    throw TypeMismatchError(std::string("A ") + kindName(held) + " value was read as " +
                            kindName(wanted) + ".");
}
} // namespace

std::int32_t Value::asLong() const {
    if (const auto* number = std::get_if<std::int32_t>(&m_data))
        return *number;
    mismatch(kind(), Kind::Long);
}

const std::string& Value::asText() const {
    if (const auto* text = std::get_if<std::string>(&m_data))
        return *text;
    mismatch(kind(), Kind::Text);
}

bool Value::asBoolean() const {
    if (const auto* flag = std::get_if<bool>(&m_data))
        return *flag;
    mismatch(kind(), Kind::Boolean);
}

std::string Value::toText() const {
    switch (kind()) {
    case Kind::Empty:
        return {};
    case Kind::Long:
        return std::to_string(std::get<std::int32_t>(m_data));
    case Kind::Text:
        return std::get<std::string>(m_data);
    case Kind::Boolean:
        return std::get<bool>(m_data) ? "True" : "False";
    }
    return {};
}

const char* kindName(Value::Kind kind) {
    switch (kind) {
    case Value::Kind::Empty:
        return "empty";
    case Value::Kind::Long:
        return "whole number";
    case Value::Kind::Text:
        return "text";
    case Value::Kind::Boolean:
        return "Boolean";
    }
    return "unknown";
}

} // namespace morvel
