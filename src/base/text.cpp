// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <algorithm>

namespace morvel {

char foldAscii(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string foldedCopy(std::string_view text) {
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(), foldAscii);
    return folded;
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return foldAscii(x) == foldAscii(y);
           });
}

// Runs on every row of a list in a search, so it neither copies nor calls out per character: it
// looks for the needle's first letter in either case and compares the rest only there.
bool containsIgnoringCase(std::string_view haystack, std::string_view needle) {
    if (needle.empty())
        return true;
    if (needle.size() > haystack.size())
        return false;
    const char lower = foldAscii(needle.front());
    const char upper =
        (lower >= 'a' && lower <= 'z') ? static_cast<char>(lower - 'a' + 'A') : lower;
    const std::string_view rest = needle.substr(1);
    const std::size_t lastStart = haystack.size() - needle.size();
    for (std::size_t i = 0; i <= lastStart; ++i) {
        const char c = haystack[i];
        if ((c == lower || c == upper) &&
            equalsIgnoringCase(haystack.substr(i + 1, rest.size()), rest))
            return true;
    }
    return false;
}

int compareIgnoringCase(std::string_view a, std::string_view b) {
    const std::size_t n = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < n; ++i) {
        auto x = static_cast<unsigned char>(foldAscii(a[i]));
        auto y = static_cast<unsigned char>(foldAscii(b[i]));
        if (x != y)
            return x < y ? -1 : 1;
    }
    if (a.size() == b.size())
        return 0;
    return a.size() < b.size() ? -1 : 1;
}

std::string_view trimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    const auto last = text.find_last_not_of(' ');
    return text.substr(first, last - first + 1);
}

} // namespace morvel
