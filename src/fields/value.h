// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace morvel {

// The variant that field settings are stored as: empty, a 32-bit whole number ("Long"), text or a
// Boolean. It keeps which one it holds; nothing converts silently, so a Long stays a Long and True
// stays a Boolean through every store and every save.
class Value {
public:
    enum class Kind : std::uint8_t { Empty, Long, Text, Boolean };

    Value() = default;
    Value(std::int32_t number)
        : m_data(number) {}
    Value(std::string text)
        : m_data(std::move(text)) {}
    Value(const char* text)
        : m_data(std::string(text)) {}
    Value(bool flag)
        : m_data(flag) {}
    // Other arithmetic types would pick a surprising alternative; say which kind is meant.
    Value(long) = delete;
    Value(unsigned) = delete;
    Value(double) = delete;

    Kind kind() const { return static_cast<Kind>(m_data.index()); }
    bool isEmpty() const { return kind() == Kind::Empty; }

    // The held value of that kind; TypeMismatchError when another kind is held.
    std::int32_t asLong() const;
    const std::string& asText() const;
    bool asBoolean() const;

    // The value as a person reads it: "" for empty, decimal digits, the text, "True" / "False".
    std::string toText() const;

    friend bool operator==(const Value&, const Value&) = default;

private:
    std::variant<std::monostate, std::int32_t, std::string, bool> m_data;
};

const char* kindName(Value::Kind kind);

} // namespace morvel
