// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "store/schema.h"

#include "store/sqlite_connection.h"
#include "store/statement.h"
#include "store/store_error.h"
#include "store/transaction.h"

#include <string>

namespace morvel::schema {

namespace {

// Values keep their kind: 0 empty (value NULL), 1 Long (INTEGER), 2 text (TEXT), 3 Boolean
// (INTEGER 0 or 1). Rows are kept in the order of their keys' primary keys, so reading a table's
// fields and values in order is a range scan.
constexpr const char* kTables = R"sql(
CREATE TABLE tables (
    id INTEGER PRIMARY KEY,
    name TEXT NOT NULL UNIQUE COLLATE NOCASE CHECK (name <> ''),
    display_name TEXT NOT NULL,
    table_type INTEGER NOT NULL,
    revision INTEGER NOT NULL DEFAULT 1
);
CREATE INDEX tables_by_type ON tables (table_type, display_name COLLATE NOCASE);
)sql";

// A field's row is found by its stable identity (field_id); position only orders the rows and
// leaves gaps, so that adding, removing or moving a field writes that field's rows alone.
constexpr const char* kFields = R"sql(
CREATE TABLE fields (
    table_id INTEGER NOT NULL REFERENCES tables (id),
    position INTEGER NOT NULL,
    field_id INTEGER NOT NULL,
    name TEXT NOT NULL,
    description TEXT NOT NULL,
    display_name TEXT NOT NULL,
    field_type INTEGER NOT NULL,
    size INTEGER NOT NULL,
    default_value TEXT NOT NULL,
    ctrl_edit TEXT NOT NULL,
    ctrl_read_only TEXT NOT NULL,
    ctrl_list TEXT NOT NULL,
    validation INTEGER NOT NULL,
    create_on_demand INTEGER NOT NULL,
    PRIMARY KEY (table_id, position)
) WITHOUT ROWID;
CREATE UNIQUE INDEX fields_by_id ON fields (table_id, field_id);
CREATE TABLE field_values (
    table_id INTEGER NOT NULL,
    field_id INTEGER NOT NULL,
    store INTEGER NOT NULL CHECK (store BETWEEN 0 AND 2),
    sequence INTEGER NOT NULL,
    key TEXT NOT NULL,
    kind INTEGER NOT NULL CHECK (kind BETWEEN 0 AND 3),
    value,
    PRIMARY KEY (table_id, field_id, store, sequence),
    FOREIGN KEY (table_id, field_id) REFERENCES fields (table_id, field_id)
) WITHOUT ROWID;
)sql";

// Version 1 kept rows by their dense position alone. A field's old position becomes its identity
// (unique within its table, which is all an identity has to be) and, spread out, its place.
constexpr const char* kFromVersion1 = R"sql(
ALTER TABLE field_values RENAME TO field_values_v1;
ALTER TABLE fields RENAME TO fields_v1;
)sql";
constexpr const char* kCopyVersion1 = R"sql(
INSERT INTO fields SELECT table_id, position * 1024, position, name, description, display_name,
    field_type, size, default_value, ctrl_edit, ctrl_read_only, ctrl_list, validation,
    create_on_demand FROM fields_v1;
INSERT INTO field_values SELECT table_id, position, store, sequence, key, kind, value
    FROM field_values_v1;
DROP TABLE field_values_v1;
DROP TABLE fields_v1;
PRAGMA user_version = 2;
)sql";

std::int64_t pragmaNumber(SqliteConnection& connection, const char* pragma) {
    Statement statement(connection, pragma);
    return statement.step() ? statement.integer(0) : 0;
}

[[noreturn]] void refuse(const SqliteConnection& connection, const std::string& why) {
    throw StoreError("The file \"" + connection.path().string() + "\" " + why);
}

} // namespace

void create(SqliteConnection& connection) {
    Transaction transaction(connection, Transaction::Kind::Write);
    connection.exec(("PRAGMA application_id = " + std::to_string(kApplicationId) + ";" +
                     "PRAGMA user_version = " + std::to_string(kVersion) + ";")
                        .c_str());
    connection.exec(kTables);
    connection.exec(kFields);
    transaction.commit();
}

std::int32_t versionOf(SqliteConnection& connection) {
    return static_cast<std::int32_t>(pragmaNumber(connection, "PRAGMA user_version"));
}

void migrate(SqliteConnection& connection, const std::filesystem::path& backup) {
    if (versionOf(connection) >= kVersion)
        return;
    std::error_code error;
    std::filesystem::copy_file(connection.path(), backup,
                               std::filesystem::copy_options::overwrite_existing, error);
    if (error)
        throw StoreError(
            "The file \"" + connection.path().string() +
                "\" needs an update to this version of Morvel, and its backup copy \"" +
                backup.string() + "\" could not be made (" + error.message() +
                "). The file was left unchanged.",
            StoreFailure::CannotWrite);
    Transaction transaction(connection, Transaction::Kind::Write);
    connection.exec(kFromVersion1);
    connection.exec(kFields);
    connection.exec(kCopyVersion1);
    transaction.commit();
}

void verify(SqliteConnection& connection) {
    if (pragmaNumber(connection, "PRAGMA application_id") != kApplicationId)
        refuse(connection, "is not a Morvel database: it is an SQLite database of another "
                           "program.");
    const std::int64_t version = pragmaNumber(connection, "PRAGMA user_version");
    if (version > kVersion)
        refuse(connection, "was written by a newer version of Morvel (database version " +
                               std::to_string(version) + "; this version reads up to " +
                               std::to_string(kVersion) + ").");
    if (version < 1)
        refuse(connection, "is damaged: it carries no Morvel database version.");

    Statement check(connection, "PRAGMA quick_check(1)");
    const std::string verdict = check.step() ? check.text(0) : std::string("no answer");
    if (verdict != "ok")
        refuse(connection, "is damaged (" + verdict + ").");

    Statement layout(connection, "SELECT count(*) FROM sqlite_schema WHERE type = 'table' AND "
                                 "name IN ('tables', 'fields', 'field_values')");
    if (!layout.step() || layout.integer(0) != 3)
        refuse(connection, "is damaged: tables of the Morvel database are missing.");
}

void configure(SqliteConnection& connection) {
    // Two designers may save into one file; the second waits for the first instead of failing.
    connection.exec(
        "PRAGMA busy_timeout = 5000; PRAGMA foreign_keys = ON; PRAGMA cache_size = -65536;");
}

} // namespace morvel::schema
