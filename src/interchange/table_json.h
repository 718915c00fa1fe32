// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/table_document.h"

#include <string>
#include <string_view>

namespace morvel::interchange {

// The definition as UTF-8 JSON written for diffs and review: a fixed order of keys, one object
// per field with every member, the three stores as ordered arrays of {key, kind, value} (so that
// a whole number 1 and a text "1" stay apart), two-space indentation and a trailing newline.
// Reading it back gives a collection whose export is the same bytes. Throws Error when a text
// is not valid UTF-8.
std::string writeTableJson(const TableDocument& table);

// Reads what writeTableJson writes, and nothing looser: every member present, no unknown one,
// each of its kind, known type codes, distinct field names, a format version this program knows.
// Anything else throws ImportError with the place and the field; nothing is half read.
TableDocument readTableJson(std::string_view text);

} // namespace morvel::interchange
