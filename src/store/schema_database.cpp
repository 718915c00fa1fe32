// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "store/schema_database.h"

#include "base/error.h"
#include "history/change_set.h"
#include "store/change_writer.h"
#include "store/field_rows.h"
#include "store/schema.h"
#include "store/sqlite_connection.h"
#include "store/statement.h"
#include "store/store_error.h"
#include "store/transaction.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <limits>
#include <sqlite3.h>
#include <string_view>

namespace morvel {

namespace {

constexpr const char* kInfoColumns = "SELECT id, name, display_name, table_type, revision "
                                     "FROM tables ";

TableInfo readInfo(const Statement& row) {
    return {static_cast<std::int32_t>(row.integer(0)), row.text(1), row.text(2),
            static_cast<std::int32_t>(row.integer(3)), row.integer(4)};
}

std::string inQuotes(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

// An existing file is judged through a connection that cannot write, so a refused file keeps
// every byte it had.
void verifyReadOnly(const std::filesystem::path& path) {
    try {
        SqliteConnection probe(path, SqliteConnection::Mode::ReadOnly);
        schema::verify(probe);
    } catch (const StoreError& error) {
        throw StoreError(std::string(error.what()) + " The file was left unchanged.");
    }
}

// A save killed half way leaves a hot journal, and only a connection that may write can roll it
// back; until then a read-only look finds the file unreadable. When the file's header carries our
// application id, the roll-back is the recovery SQLite itself makes on a writable open, and the
// check that follows judges the restored file. Any other file keeps its journal and its bytes.
bool isOursWithHotJournal(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::path journal = path.string() + "-journal";
    if (!std::filesystem::exists(journal, error) || std::filesystem::file_size(journal, error) == 0)
        return false;
    std::array<char, 100> header{};
    std::ifstream file(path, std::ios::binary);
    if (!file.read(header.data(), header.size()))
        return false;
    constexpr std::string_view kMagic("SQLite format 3\0", 16);
    if (std::string_view(header.data(), kMagic.size()) != kMagic)
        return false;
    std::uint32_t id = 0;
    for (std::size_t i = 68; i < 72; ++i)
        id = (id << 8) | static_cast<unsigned char>(header[i]);
    return id == static_cast<std::uint32_t>(schema::kApplicationId);
}

void rollBackHotJournal(const std::filesystem::path& path) {
    SqliteConnection recovery(path, SqliteConnection::Mode::ReadWrite);
    recovery.exec("SELECT count(*) FROM sqlite_master;");
}

} // namespace

SchemaDatabase::SchemaDatabase(const std::filesystem::path& path, Access access) {
    std::error_code error;
    // SQLite would open a folder and fail only at the first read, with a "disk I/O error".
    if (std::filesystem::is_directory(path, error))
        throw StoreError("The path \"" + path.string() +
                         "\" is a folder, not a database file. Give the " +
                         "name of a file: a missing file is made a new database.");
    const bool exists = std::filesystem::exists(path, error);
    if (access == Access::ReadOnly) {
        verifyReadOnly(path);
        m_connection = std::make_unique<SqliteConnection>(path, SqliteConnection::Mode::ReadOnly);
        schema::configure(*m_connection);
        m_version = schema::versionOf(*m_connection);
        return;
    }
    // An empty file holds nothing to lose: hosts often create one before handing its name over.
    const bool empty = exists && std::filesystem::is_regular_file(path, error) &&
                       std::filesystem::file_size(path, error) == 0;
    if (!exists || empty) {
        m_connection = std::make_unique<SqliteConnection>(
            path, exists ? SqliteConnection::Mode::ReadWrite : SqliteConnection::Mode::Create);
        schema::create(*m_connection);
        m_created = true;
    } else {
        if (isOursWithHotJournal(path))
            rollBackHotJournal(path);
        verifyReadOnly(path);
        m_connection = std::make_unique<SqliteConnection>(path, SqliteConnection::Mode::ReadWrite);
        if (!isReadOnly())
            schema::migrate(*m_connection, backupPath(path));
    }
    schema::configure(*m_connection);
    m_version = schema::versionOf(*m_connection);
}

std::filesystem::path SchemaDatabase::backupPath(const std::filesystem::path& path) {
    return path.string() + ".before-update";
}

SchemaDatabase::~SchemaDatabase() = default;

const std::filesystem::path& SchemaDatabase::path() const {
    return m_connection->path();
}

bool SchemaDatabase::isReadOnly() const {
    return sqlite3_db_readonly(m_connection->handle(), "main") == 1;
}

std::vector<TableInfo> SchemaDatabase::tables() const {
    Statement query(*m_connection, std::string(kInfoColumns) + "ORDER BY name COLLATE NOCASE");
    std::vector<TableInfo> result;
    while (query.step())
        result.push_back(readInfo(query));
    return result;
}

std::optional<TableInfo> SchemaDatabase::findTable(std::string_view name) const {
    Statement query(*m_connection, std::string(kInfoColumns) + "WHERE name = ?");
    query.bind(1, name);
    if (!query.step())
        return std::nullopt;
    return readInfo(query);
}

std::optional<TableInfo> SchemaDatabase::findTable(std::int32_t id) const {
    Statement query(*m_connection, std::string(kInfoColumns) + "WHERE id = ?");
    query.bind(1, std::int64_t{id});
    if (!query.step())
        return std::nullopt;
    return readInfo(query);
}

TableDefinition SchemaDatabase::load(std::int32_t id) const {
    Transaction snapshot(*m_connection, Transaction::Kind::Read);
    return loadInfo(findTable(id), "number " + std::to_string(id));
}

TableDefinition SchemaDatabase::load(std::string_view name) const {
    Transaction snapshot(*m_connection, Transaction::Kind::Read);
    return loadInfo(findTable(name), inQuotes(name));
}

TableDefinition SchemaDatabase::loadInfo(std::optional<TableInfo> info,
                                         std::string_view asked) const {
    if (!info)
        throw NotFoundError("There is no table " + std::string(asked) + " in " +
                            inQuotes(path().string()) + ".");
    auto fields = field_rows::read(*m_connection, info->id, info->name, m_version);
    return {std::move(*info), std::move(fields)};
}

void SchemaDatabase::checkName(const TableInfo& info) const {
    if (info.name.empty())
        throw TableNameError("A table needs a name.");
    Statement query(*m_connection, "SELECT name FROM tables WHERE name = ? AND id <> ?");
    query.bind(1, std::string_view(info.name)).bind(2, std::int64_t{info.id});
    if (query.step())
        throw TableNameError("There is a table named " + inQuotes(query.text(0)) +
                             " already; choose another name.");
}

void SchemaDatabase::save(TableDefinition& table, const ChangeSet* changes) {
    if (!table.fields)
        throw InvalidOperationError("There are no field definitions to save.");
    if (changes && changes->empty())
        return;
    Transaction transaction(*m_connection, Transaction::Kind::Write);
    const auto stored = findTable(table.info.id);
    if (!stored)
        throw ConcurrentSaveError("The table " + inQuotes(table.info.name) +
                                  " was removed from the database after it was loaded, so it "
                                  "was not saved. Your changes are still here: save them as a "
                                  "new table.");
    if (stored->revision != table.info.revision)
        throw ConcurrentSaveError("The table " + inQuotes(stored->name) +
                                  " was changed and saved by someone else after you loaded it, "
                                  "so your changes were not saved. They are still here: save "
                                  "them as a new table, or load the table again.");
    checkName(table.info);

    Statement update(*m_connection, "UPDATE tables SET name = ?, display_name = ?, "
                                    "table_type = ?, revision = ? WHERE id = ?");
    update.bind(1, std::string_view(table.info.name))
        .bind(2, std::string_view(table.info.displayName))
        .bind(3, std::int64_t{table.info.tableType})
        .bind(4, stored->revision + 1)
        .bind(5, std::int64_t{table.info.id})
        .run();
    if (changes)
        field_rows::writeChanges(*m_connection, table.info.id, *table.fields, *changes);
    else
        field_rows::write(*m_connection, table.info.id, *table.fields);
    transaction.commit();
    table.info.revision = stored->revision + 1;
}

void SchemaDatabase::saveAsNew(TableDefinition& table) {
    if (!table.fields)
        throw InvalidOperationError("There are no field definitions to save.");
    Transaction transaction(*m_connection, Transaction::Kind::Write);
    TableInfo info = table.info;
    info.id = 0;
    info.revision = 1;
    checkName(info);

    Statement insert(*m_connection, "INSERT INTO tables (name, display_name, table_type, "
                                    "revision) VALUES (?, ?, ?, ?)");
    insert.bind(1, std::string_view(info.name))
        .bind(2, std::string_view(info.displayName))
        .bind(3, std::int64_t{info.tableType})
        .bind(4, info.revision)
        .run();
    const std::int64_t id = sqlite3_last_insert_rowid(m_connection->handle());
    if (id > std::numeric_limits<std::int32_t>::max())
        throw StoreError("The file " + inQuotes(path().string()) +
                         " holds as many tables as it can.");
    info.id = static_cast<std::int32_t>(id);
    field_rows::write(*m_connection, info.id, *table.fields);
    transaction.commit();
    table.info = std::move(info);
}

std::vector<SearchItem> SchemaDatabase::Search(std::string_view filter, std::string_view,
                                               std::int32_t maximum) {
    const auto type = parseTableTypeFilter(filter);
    std::vector<SearchItem> items;
    if (maximum <= 0)
        return items;
    Statement query(*m_connection, std::string("SELECT id, name, display_name FROM tables ") +
                                       (type ? "WHERE table_type = ?1 " : "") +
                                       "ORDER BY display_name COLLATE NOCASE, id LIMIT ?2");
    if (type)
        query.bind(1, std::int64_t{*type});
    query.bind(2, std::int64_t{maximum});
    while (query.step())
        items.push_back(
            {query.text(2), Value(static_cast<std::int32_t>(query.integer(0))), {query.text(1)}});
    return items;
}

} // namespace morvel
