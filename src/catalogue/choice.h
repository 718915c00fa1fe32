// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace morvel::catalogue {

// One entry of a choice list: the text shown and the number stored (the entry's item data).
struct Choice {
    std::string_view text;
    std::int32_t itemData;
};

} // namespace morvel::catalogue
