// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace morvel {

// Names one FieldDef for the life of the object, whatever its name or position: what a history,
// a change set or a view keys a field by. Every field gets a fresh identity when it is made; a
// load may give it back the one it had when it was saved (FieldDef::restoreId), nothing else
// copies it. The zero identity names no field.
class FieldId {
public:
    constexpr FieldId() = default;
    constexpr explicit FieldId(std::uint64_t value)
        : m_value(value) {}

    constexpr std::uint64_t value() const { return m_value; }
    constexpr explicit operator bool() const { return m_value != 0; }
    friend constexpr bool operator==(FieldId, FieldId) = default;
    friend constexpr auto operator<=>(FieldId, FieldId) = default;

    // An identity that no field of this process has had yet.
    static FieldId fresh();
    // Makes sure that fresh() never gives id (one that a load brought back).
    static void reserve(FieldId id);

private:
    std::uint64_t m_value = 0;
};

} // namespace morvel

template <> struct std::hash<morvel::FieldId> {
    std::size_t operator()(morvel::FieldId id) const noexcept {
        return std::hash<std::uint64_t>()(id.value());
    }
};
