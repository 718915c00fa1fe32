// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "testing/in_memory_database.h"

namespace morvel::testkit {

std::vector<SearchItem> InMemoryDatabase::Search(std::string_view filter, std::string_view second,
                                                 std::int32_t maximum) {
    m_calls.push_back({std::string(filter), std::string(second), maximum});
    const auto type = parseTableTypeFilter(filter);
    std::vector<SearchItem> items;
    for (const Table& table : m_tables) {
        if (static_cast<std::int32_t>(items.size()) >= maximum)
            break;
        if (!type || table.tableType == *type)
            items.push_back({table.displayName, Value(table.id), {table.name}});
    }
    return items;
}

} // namespace morvel::testkit
