// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace morvel {

// Text helpers shared by the layers. Case folding is ASCII only: bytes of other (UTF-8) letters
// are compared as they stand, so no text is ever corrupted by a fold.

char foldAscii(char c);
std::string foldedCopy(std::string_view text);
bool equalsIgnoringCase(std::string_view a, std::string_view b);
// Whether needle occurs anywhere in haystack, ignoring ASCII case; an empty needle always does.
bool containsIgnoringCase(std::string_view haystack, std::string_view needle);
// Negative, zero or positive as a sorts before, with or after b, ignoring ASCII case.
int compareIgnoringCase(std::string_view a, std::string_view b);
std::string_view trimBlanks(std::string_view text);

} // namespace morvel
