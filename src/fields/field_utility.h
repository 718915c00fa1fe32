// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/value.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace morvel {

// The library's conversions of typed text to numbers. Stateless, so there is nothing to create.
class FieldUtility {
public:
    // Never fails. Text: leading blanks and tabs are skipped, then an optional sign and the
    // decimal digits that follow; the first other character ends the number. Text with no digits
    // there (empty, "abc", "-") gives 0; a number outside the 32-bit range is clamped to it.
    // A Long is itself, True is -1 and False 0, empty is 0.
    static std::int32_t ToLong(const Value& value);
    static std::int32_t ToLong(std::string_view text);
    // Text usually arrives as a std::string or a literal, which convert to a Value as readily as
    // to a view; these overloads keep such calls unambiguous.
    static std::int32_t ToLong(const std::string& text) { return ToLong(std::string_view(text)); }
    static std::int32_t ToLong(const char* text) { return ToLong(std::string_view(text)); }

    // Whether text is a number as a person would type one: optional blanks, an optional sign,
    // digits with at most one decimal point among them, optional blanks.
    static bool IsNumeric(std::string_view text);
};

} // namespace morvel
