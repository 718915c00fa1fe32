// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/value.h"

#include <string>

namespace morvel {

// One entry of a PropertyStore, as its enumeration yields it.
struct ListEntry {
    std::string Key;
    morvel::Value Value;
};

} // namespace morvel
