// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/choice.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace morvel::catalogue {

// "Not Required" 0, "Required" 1, "Required Enforced" 2, in that order.
std::span<const Choice> validationLevels();
// The name of a level; "Unknown" for any other number.
std::string_view validationName(std::int32_t code);

} // namespace morvel::catalogue
