// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/validation.h"

#include <array>

namespace morvel::catalogue {

namespace {
constexpr std::array<Choice, 3> kLevels{{
    {"Not Required", 0},
    {"Required", 1},
    {"Required Enforced", 2},
}};
} // namespace

std::span<const Choice> validationLevels() {
    return kLevels;
}

std::string_view validationName(std::int32_t code) {
    for (const Choice& level : kLevels)
        if (level.itemData == code)
            return level.text;
    return "Unknown";
}

} // namespace morvel::catalogue
