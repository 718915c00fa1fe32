// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/field_id.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace morvel::checks {

enum class Severity : std::uint8_t { Error, Warning };

// The rules a field's definition is checked against; one problem names one rule.
enum class Rule : std::uint8_t {
    NameBlank,
    NameCharacters,
    NameTooLong,
    NameCaseOnly,
    ReservedPrefix,
    LinkWithoutTarget,
    UnknownTable,
    SubLinkField,
    SignatureFields,
    ListWithoutValues,
    BitMaskValues,
    DefaultValue,
    EditTemplate,
    ReadOnlyTemplate,
    Size,
};

// The place a person mends a problem: the designer's box and the tab it is on (1 the general
// page, 2 the type's own page).
struct ProblemBox {
    std::string_view control;
    std::int32_t tab = 1;
};

// One thing wrong with one field: what is wrong and what would mend it, in a person's words.
struct Problem {
    FieldId field;
    Rule rule;
    Severity severity;
    std::string what;
    std::string fix;
    ProblemBox box;
};

const char* severityName(Severity severity);

} // namespace morvel::checks
