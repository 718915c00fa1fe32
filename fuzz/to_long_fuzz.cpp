// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// ToLong runs on every keystroke of a numeric box, so it must take any text a person can type and
// give the number the rule promises, never fail. The fuzzer checks it against a second, simpler
// reading of the same rule.

#include "fields/field_utility.h"
#include "fields/value.h"
#include "fuzz_check.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace {

using morvel::FieldUtility;
using morvel::fuzz::require;

// Blanks and tabs, a sign, then the digits up to the first other character; clamped to 32 bits.
std::int32_t referenceToLong(std::string_view text) {
    const auto start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos)
        return 0;
    text.remove_prefix(start);
    bool negative = false;
    if (text.front() == '+' || text.front() == '-') {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    const auto digitsEnd = text.find_first_not_of("0123456789");
    std::string_view digits = text.substr(0, digitsEnd);
    const auto firstNonZero = digits.find_first_not_of('0');
    digits =
        firstNonZero == std::string_view::npos ? std::string_view() : digits.substr(firstNonZero);
    constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    if (digits.size() > 10)
        return negative ? kMin : kMax;
    std::int64_t magnitude = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
    const std::int64_t number = negative ? -magnitude : magnitude;
    if (number > kMax)
        return kMax;
    if (number < kMin)
        return kMin;
    return static_cast<std::int32_t>(number);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);

    const std::int32_t number = FieldUtility::ToLong(text);
    require(number == referenceToLong(text), "ToLong follows the rule for typed text");
    require(FieldUtility::ToLong(morvel::Value(text)) == number,
            "a text Value converts like the text");
    require(FieldUtility::ToLong(std::to_string(number)) == number,
            "the decimal text of a result converts back to it");
    require(FieldUtility::ToLong(morvel::Value(number)) == number, "a Long converts to itself");

    // A whole number that IsNumeric accepts and that fits gives exactly its value.
    if (FieldUtility::IsNumeric(text) && text.find('.') == std::string::npos) {
        const auto start = text.find_first_not_of(" \t");
        const auto end = text.find_last_not_of(" \t") + 1;
        std::string digits = text.substr(start, end - start);
        if (digits.front() == '+')
            digits.erase(0, 1);
        std::int32_t exact = 0;
        const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), exact);
        if (parsed.ec == std::errc() && parsed.ptr == digits.data() + digits.size())
            require(number == exact, "a numeric text in range converts exactly");
    }
    return 0;
}
