// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The two searches that take text from a person or a host: the table search filter of Database
// ("TableType=<n>") and the text match of Find (any case, anywhere in the name or type name).
// Input: the filter, then optionally a newline and the text that Find looks for; the first byte
// also sets the search's maximum.

#include "base/error.h"
#include "base/text.h"
#include "fields/database.h"
#include "fuzz_check.h"
#include "testing/in_memory_database.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace {

using morvel::fuzz::require;

void checkFilter(std::string_view filter, std::int32_t maximum) {
    std::optional<std::int32_t> type;
    try {
        type = morvel::parseTableTypeFilter(filter);
    } catch (const morvel::SearchFilterError& error) {
        // The message quotes the filter, and what() ends at a NUL byte inside it.
        if (filter.find('\0') == std::string_view::npos)
            require(std::string_view(error.what()).find("TableType=<number>") != std::string::npos,
                    "a refused filter says what the search takes");
        return;
    }
    const bool blank = filter.find_first_not_of(' ') == std::string_view::npos;
    require(type.has_value() != blank, "only a blank filter means every table");
    if (type) {
        require(morvel::parseTableTypeFilter("TableType=" + std::to_string(*type)) == type,
                "an understood filter means the same as its plain form");
    }

    morvel::testkit::InMemoryDatabase database;
    for (std::int32_t id = 1; id <= 6; ++id)
        database.addTable({id, "T" + std::to_string(id), "Table " + std::to_string(id), id % 3});
    const auto items = database.Search(filter, "", maximum);
    require(static_cast<std::int32_t>(items.size()) <= std::max(maximum, 0),
            "a search gives at most the maximum");
    for (const auto& item : items) {
        const std::int32_t id = item.ID.asLong();
        require(!type || id % 3 == *type, "a search gives only tables of the asked type");
    }
}

void checkFindMatch(std::string_view haystack, std::string_view needle) {
    const bool found = morvel::containsIgnoringCase(haystack, needle);
    const bool expected =
        morvel::foldedCopy(haystack).find(morvel::foldedCopy(needle)) != std::string::npos;
    require(found == expected, "Find matches exactly where the folded text contains the needle");
    require(morvel::containsIgnoringCase(haystack, haystack), "a text contains itself");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::int32_t maximum = size == 0 ? 5000 : static_cast<std::int8_t>(data[0]);
    const auto newline = input.find('\n');
    const std::string_view filter = input.substr(0, newline);
    const std::string_view needle =
        newline == std::string_view::npos ? std::string_view() : input.substr(newline + 1);

    checkFilter(filter, maximum);
    checkFindMatch(filter, needle);
    checkFindMatch(needle, filter);
    return 0;
}
