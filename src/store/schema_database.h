// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/database.h"
#include "store/table_definition.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace morvel {

class ChangeSet;
class SqliteConnection;

// An SQLite file of table definitions: the catalogue of tables that the designer's look-ups
// search, and each table's field definitions.
//
// Opening never writes to a file it refuses: an existing file is first checked through a
// read-only connection (Morvel's application id, a version this program reads, SQLite's quick
// check) and only then opened for writing. A missing or empty file becomes a new, empty
// database. A folder is refused as such. Every failure is a StoreError whose message names the file
// and the reason.
//
// Each save is one transaction and checks the revision the definition was loaded at: when
// someone else saved the table in between, the save throws ConcurrentSaveError and writes
// nothing. A file of an older layout is brought up to this one when it is opened for writing,
// after a copy of it is put beside it (backupPath()).
class SchemaDatabase final : public Database {
public:
    // ReadOnly opens an existing file to look at only: nothing is created, every save fails.
    enum class Access { ReadWrite, ReadOnly };

    explicit SchemaDatabase(const std::filesystem::path& path, Access access = Access::ReadWrite);
    SchemaDatabase(const SchemaDatabase&) = delete;
    SchemaDatabase& operator=(const SchemaDatabase&) = delete;
    ~SchemaDatabase() override;

    const std::filesystem::path& path() const;
    // Whether this open made the file (the host may then write the sample tables into it).
    bool created() const { return m_created; }
    // Where the copy of a file made before its layout is brought up to date goes.
    static std::filesystem::path backupPath(const std::filesystem::path& path);
    // Whether the file could only be opened for reading (write-protected, or opened ReadOnly);
    // saves then fail.
    bool isReadOnly() const;

    // The catalogue, ordered by table name ignoring case.
    std::vector<TableInfo> tables() const;
    // Looks a table up by name (ignoring case) or by id.
    std::optional<TableInfo> findTable(std::string_view name) const;
    std::optional<TableInfo> findTable(std::int32_t id) const;

    // A fresh collection with the table's fields, and the revision it was read at. Throws
    // NotFoundError when there is no such table.
    TableDefinition load(std::int32_t id) const;
    TableDefinition load(std::string_view name) const;

    // Replaces the stored definition of table.info.id (fields, name, display name, type) with
    // table, then moves table.info.revision on. Given the change set from the stored definition,
    // writes only the rows of what it says changed; an empty one writes nothing at all and leaves
    // the revision where it was.
    void save(TableDefinition& table, const ChangeSet* changes = nullptr);
    // Stores table as a new table named table.info.name and makes table.info that new entry.
    void saveAsNew(TableDefinition& table);

    // filter "" (every table) or "TableType=<n>"; second is unused. Items are ordered by display
    // name, at most maximum of them: DisplayName, ID (the table id as a Long) and the table name.
    std::vector<SearchItem> Search(std::string_view filter, std::string_view second,
                                   std::int32_t maximum) override;

private:
    TableDefinition loadInfo(std::optional<TableInfo> info, std::string_view asked) const;
    void checkName(const TableInfo& info) const;

    std::unique_ptr<SqliteConnection> m_connection;
    bool m_created = false;
    std::int32_t m_version = 0;
};

} // namespace morvel
