// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "fields/database.h"

#include "base/error.h"
#include "base/text.h"

#include <charconv>

namespace morvel {

std::optional<std::int32_t> parseTableTypeFilter(std::string_view filter) {
    const std::string_view text = trimBlanks(filter);
    if (text.empty())
        return std::nullopt;
    const auto equals = text.find('=');
    const std::string_view name = trimBlanks(text.substr(0, equals));
    const std::string_view number =
        equals == std::string_view::npos ? std::string_view() : trimBlanks(text.substr(equals + 1));
    std::int32_t type = 0;
    const auto* end = number.data() + number.size();
    const auto parsed = std::from_chars(number.data(), end, type);
    if (!equalsIgnoringCase(name, "TableType") || number.empty() || parsed.ec != std::errc() ||
        parsed.ptr != end)
        throw SearchFilterError("The table search does not understand the filter \"" +
                                std::string(filter) + "\"; it takes \"TableType=<number>\".");
    return type;
}

} // namespace morvel
