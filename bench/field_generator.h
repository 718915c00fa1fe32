// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/field_defs.h"

#include <cstdint>
#include <memory>
#include <string>

namespace morvel::bench {

// Builds a table's worth of field definitions as a generated schema would hold them: names such as
// "CustomerName" or "OrderDate2", a realistic mix of types, display names, templates, validation
// levels, and the stored settings each type family carries (link tables and order fields,
// connection strings, list values, encryption and signature settings, a few locale texts).
// Deterministic: the same count gives the same fields. The first field is "ID"; the field in the
// middle is named kFindTarget, a name no other field's name or type name contains.
std::shared_ptr<FieldDefs> makeFieldDefs(std::int32_t count);

inline constexpr const char* kFindTarget = "LegacyImportChecksum";

// One more field of the same kind, named so that it clashes with no generated name.
std::shared_ptr<FieldDef> makeExtraField(std::int32_t serial);

// The generated name of the field at a 0-based position.
std::string generatedName(std::int32_t index);

} // namespace morvel::bench
