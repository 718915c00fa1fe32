// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/value.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace morvel {

// The object a search result stands for; the designer reads its table name.
struct SearchItemObject {
    std::string TableName;
};

// One result of Database::Search.
struct SearchItem {
    std::string DisplayName;
    Value ID;
    SearchItemObject ItemObject;
};

// The host's catalogue of tables, which the designer searches for tables to link to and tables
// that can serve as sub tables.
class Database {
public:
    virtual ~Database() = default;
    // filter is "" (every table) or "TableType=<n>"; second is reserved and passed empty; at most
    // maximum items come back. An unknown filter throws SearchFilterError.
    virtual std::vector<SearchItem> Search(std::string_view filter, std::string_view second,
                                           std::int32_t maximum) = 0;
};

// The table type that a search filter asks for, nullopt for every table. Blanks around the
// words are allowed ("TableType = 4"); anything else throws SearchFilterError.
std::optional<std::int32_t> parseTableTypeFilter(std::string_view filter);

} // namespace morvel
