// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/field_defs.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace morvel {

class SqliteConnection;

// Reading and writing one table's field rows: every member of each field in order, and its
// three keyed stores in stored order with each value's kind. Both run in time linear in the
// number of rows, with one prepared statement per kind of row.
namespace field_rows {

// A new collection with the table's fields; StoreError when the rows are not consistent.
std::shared_ptr<FieldDefs> read(SqliteConnection& connection, std::int64_t tableId,
                                std::string_view tableName);
// Replaces the table's rows with fields. The caller holds the write transaction.
void write(SqliteConnection& connection, std::int64_t tableId, const FieldDefs& fields);

} // namespace field_rows
} // namespace morvel
