// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace morvel::checks {

// Names are UTF-8. The field library tells names apart ignoring ASCII letter case only; these
// helpers also know the letters of the Latin, Greek and Cyrillic alphabets and the CJK ideographs,
// so that "Änderung" and "änderung" are seen as one name spelt two ways.

// The number of characters (code points) of text.
std::size_t characterCount(std::string_view text);
// Whether every character is a letter, a digit or '_'.
bool isIdentifier(std::string_view text);
// text with every letter the helpers know in lower case; other bytes unchanged.
std::string foldCase(std::string_view text);

} // namespace morvel::checks
