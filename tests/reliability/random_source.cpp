// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "reliability/random_source.h"

#include <array>
#include <string_view>

namespace morvel::reliability {

namespace {

constexpr std::array<std::string_view, 12> kForeignLetters{
    "\xC3\xA4", "\xC3\x9F", "\xC3\xA9",     "\xC3\xB8",     "\xCE\xA9",     "\xCE\xBB",
    "\xD0\x96", "\xD1\x8F", "\xE6\x97\xA5", "\xE6\x9C\xAC", "\xE2\x82\xAC", "\xC5\x81"};
constexpr std::string_view kAsciiLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_";
constexpr std::array<std::string_view, 8> kOddNumbers{
    "2147483647",           "2147483648", "-2147483648", "-2147483649",
    "99999999999999999999", "-0",         "+",           " 12 "};

} // namespace

std::string RandomSource::word(std::size_t maxLength) {
    std::string out;
    const auto length = static_cast<std::size_t>(between(1, static_cast<std::int32_t>(maxLength)));
    for (std::size_t i = 0; i < length; ++i) {
        const std::int32_t kind = between(0, 19);
        if (kind < 13)
            out += kAsciiLetters[index(kAsciiLetters.size())];
        else if (kind < 16)
            out += static_cast<char>('0' + between(0, 9));
        else if (kind < 18)
            out += kForeignLetters[index(kForeignLetters.size())];
        else
            out += ' ';
    }
    return out;
}

std::string RandomSource::fieldName() {
    const std::int32_t kind = between(0, 39);
    if (kind == 0)
        return chance(0.5) ? "zrTenant" : "zrSignature";
    if (kind == 1)
        return std::to_string(between(0, 999)) + word(6);
    if (kind == 2)
        return " " + word(8) + (chance(0.5) ? " " : "");
    return word(10);
}

std::string RandomSource::numberish() {
    switch (between(0, 9)) {
    case 0:
        return "";
    case 1:
        return std::string(kOddNumbers[index(kOddNumbers.size())]);
    case 2:
        return word(4);
    case 3:
        return std::to_string(between(-5, 5)) + word(3);
    case 4:
        return "\t" + std::to_string(between(-1000, 1000));
    default:
        return std::to_string(between(-100, 5000));
    }
}

std::string RandomSource::text() {
    switch (between(0, 7)) {
    case 0:
        return "";
    case 1:
        return numberish();
    case 2:
        return word(30) + " " + word(30);
    default:
        return word(12);
    }
}

} // namespace morvel::reliability
