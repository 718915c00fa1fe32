// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "fields/field_utility.h"

#include <limits>

namespace morvel {

namespace {
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isBlank(char c) {
    return c == ' ' || c == '\t';
}
} // namespace

std::int32_t FieldUtility::ToLong(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && isBlank(text[i]))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        negative = text[i++] == '-';
    constexpr std::int64_t kLimit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
    std::int64_t magnitude = 0;
    for (; i < text.size() && isDigit(text[i]); ++i)
        magnitude = std::min(kLimit, magnitude * 10 + (text[i] - '0'));
    const std::int64_t number = negative ? -magnitude : magnitude;
    if (number > std::numeric_limits<std::int32_t>::max())
        return std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(number);
}

std::int32_t FieldUtility::ToLong(const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Empty:
        return 0;
    case Value::Kind::Long:
        return value.asLong();
    case Value::Kind::Text:
        return ToLong(std::string_view(value.asText()));
    case Value::Kind::Boolean:
        return value.asBoolean() ? -1 : 0;
    }
    return 0;
}

bool FieldUtility::IsNumeric(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && isBlank(text[i]))
        ++i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    bool digits = false;
    bool point = false;
    for (; i < text.size(); ++i) {
        if (isDigit(text[i]))
            digits = true;
        else if (text[i] == '.' && !point)
            point = true;
        else
            break;
    }
    while (i < text.size() && isBlank(text[i]))
        ++i;
    return digits && i == text.size();
}

} // namespace morvel
