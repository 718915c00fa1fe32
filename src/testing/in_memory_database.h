// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/database.h"

#include <cstdint>
#include <string>
#include <vector>

namespace morvel::testkit {

// A Database held in memory, for tests and for hosts without a catalogue of their own. It keeps
// every Search call it receives, so a test can tell how often and with what it was asked.
class InMemoryDatabase : public Database {
public:
    struct Table {
        std::int32_t id;
        std::string name;
        std::string displayName;
        std::int32_t tableType;
    };
    struct Call {
        std::string filter;
        std::string second;
        std::int32_t maximum;
    };

    void addTable(Table table) { m_tables.push_back(std::move(table)); }
    std::vector<SearchItem> Search(std::string_view filter, std::string_view second,
                                   std::int32_t maximum) override;
    const std::vector<Call>& calls() const { return m_calls; }

private:
    std::vector<Table> m_tables;
    std::vector<Call> m_calls;
};

} // namespace morvel::testkit
