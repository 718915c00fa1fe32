// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "checks/problem.h"
#include "fields/field_defs.h"

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

namespace morvel::checks {

// The tables a database has, by name (ignoring ASCII letter case, as the catalogue does) and id.
struct KnownTables {
    std::unordered_set<std::string> foldedNames;
    std::unordered_set<std::int32_t> ids;
};

// What a field's rules may look at besides the field: the other fields by name, the database's
// tables (null: not checked) and the field that shares this one's name but for letter case.
struct CheckContext {
    const FieldDefs& fields;
    const KnownTables* tables = nullptr;
    std::function<const FieldDef*(const FieldDef&)> caseTwin = {};
};

// Every problem of one field, in the order of the rules. Reads only the field, the fields it
// names and the context's indexes: constant time in the size of the table.
std::vector<Problem> checkField(const FieldDef& field, const CheckContext& context);

// The names of other fields that the field's settings refer to (a sub link's link field, the
// fields a signature covers), as written: what a rename or removal of those fields re-checks.
std::vector<std::string> referencedNames(const FieldDef& field);

// Longest name the rules accept, in characters.
inline constexpr std::size_t kMaxNameLength = 64;
// The size range of the types that have one.
inline constexpr std::int32_t kMinSize = 1;
inline constexpr std::int32_t kMaxSize = 4000;

} // namespace morvel::checks
