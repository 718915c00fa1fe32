// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/field_defs.h"

#include <cstdint>
#include <memory>
#include <string>

namespace morvel::interchange {

// A table's definition as the text format carries it: the table's own entry and its fields. The
// storage layer has its own catalogue entry; this one holds only what travels between databases.
struct TableDocument {
    std::string name;
    std::string displayName;
    std::int32_t tableType = 1;
    std::shared_ptr<FieldDefs> fields = std::make_shared<FieldDefs>();
};

// The version that writeTableJson writes and the only one readTableJson reads.
inline constexpr std::int32_t kFormatVersion = 1;

} // namespace morvel::interchange
