// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/field_defs.h"
#include "store/schema.h"
#include "store/statement.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace morvel {

class SqliteConnection;

// Reading and writing one table's field rows: every member of each field with its stable
// identity, in order, and its three keyed stores in stored order with each value's kind. Both run
// in time linear in the number of rows, with one prepared statement per kind of row.
namespace field_rows {

// Positions are spaced this far apart by a full write, so that fields put in between later find
// room without moving their neighbours.
inline constexpr std::int64_t kGap = 1024;

// A new collection with the table's fields, each with the identity it was saved with; StoreError
// when the rows are not consistent. version is the file's layout version.
std::shared_ptr<FieldDefs> read(SqliteConnection& connection, std::int64_t tableId,
                                std::string_view tableName,
                                std::int32_t version = schema::kVersion);
// Replaces the table's rows with fields. The caller holds the write transaction.
void write(SqliteConnection& connection, std::int64_t tableId, const FieldDefs& fields);

// Writes whole fields of one table, with the statements prepared once.
class Writer {
public:
    Writer(SqliteConnection& connection, std::int64_t tableId);
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    ~Writer();

    // The field's row at position and all of its stored values.
    void insert(const FieldDef& field, std::int64_t position);
    void replaceAll(const FieldDefs& fields);
    // Binds name .. create_on_demand, eleven parameters from first on.
    static void bindMembers(Statement& statement, int first, const FieldDef& field);

    SqliteConnection& connection() const { return m_connection; }
    std::int64_t tableId() const { return m_tableId; }
    Statement& valueInsert() { return m_insertValue; }

private:
    SqliteConnection& m_connection;
    std::int64_t m_tableId;
    Statement m_insertField;
    Statement m_insertValue;
};

// Inserts the entries of one store of a field, numbered in stored order.
void writeStore(Statement& insert, std::int64_t tableId, std::int64_t fieldId, schema::Store store,
                const PropertyStore& values);

} // namespace field_rows
} // namespace morvel
