// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/field_defs.h"

#include <cstdint>
#include <memory>
#include <string>

namespace morvel {

// Table types that the designer's look-ups ask for, and the one the sample's main table has.
namespace table_type {
inline constexpr std::int32_t kMain = 1;
inline constexpr std::int32_t kLinkable = 2; // offered as link targets ("TableType=2")
inline constexpr std::int32_t kSub = 4;      // offered as sub tables ("TableType=4")
} // namespace table_type

// One entry of the database's table catalogue. revision counts the saves of the table's
// definition; a definition remembers the revision it was loaded at.
struct TableInfo {
    std::int32_t id = 0;
    std::string name;
    std::string displayName;
    std::int32_t tableType = table_type::kMain;
    std::int64_t revision = 0;
};

// A table's field definitions as loaded for editing, with the catalogue entry (and so the
// revision) they were loaded at. A successful save moves info.revision on.
struct TableDefinition {
    TableInfo info;
    std::shared_ptr<FieldDefs> fields = std::make_shared<FieldDefs>();
};

} // namespace morvel
