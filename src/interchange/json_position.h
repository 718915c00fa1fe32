// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace morvel::interchange {

// A place in a JSON document: the member names and array indexes from the top down.
using JsonPath = std::vector<std::variant<std::string, std::size_t>>;

// Where something is in a text, 1-based; the column counts characters.
struct TextPosition {
    std::size_t line = 1;
    std::size_t column = 1;
};

TextPosition positionAt(std::string_view text, std::size_t offset);

// Where the value at path starts in text, which must be valid JSON. Reading a document keeps no
// positions (it would cost every import for the sake of the rare bad one), so an error goes back
// to the text once to find its place.
TextPosition locate(std::string_view text, const JsonPath& path);

// The "name" of the last field object that text had begun before offset: the field a syntax
// error at offset is in, or "" when it is in none.
std::string fieldBefore(std::string_view text, std::size_t offset);

} // namespace morvel::interchange
