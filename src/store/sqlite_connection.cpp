#include "store/sqlite_connection.h"

#include "store/store_error.h"

#include <sqlite3.h>

namespace morvel {

namespace {
int openFlags(SqliteConnection::Mode mode) {
    switch (mode) {
    case SqliteConnection::Mode::ReadOnly:
        return SQLITE_OPEN_READONLY;
    case SqliteConnection::Mode::ReadWrite:
        return SQLITE_OPEN_READWRITE;
    case SqliteConnection::Mode::Create:
        return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    }
    return SQLITE_OPEN_READONLY;
}
} // namespace

SqliteConnection::SqliteConnection(std::filesystem::path path, Mode mode)
    : m_path(std::move(path)) {
    const int rc = sqlite3_open_v2(m_path.c_str(), &m_db, openFlags(mode), nullptr);
    if (rc != SQLITE_OK) {
        // The handle carries the message even when the open failed; fail() reads it first.
        try {
            fail(rc, "open");
        } catch (...) {
            sqlite3_close(m_db);
            throw;
        }
    }
    sqlite3_extended_result_codes(m_db, 1);
}

SqliteConnection::~SqliteConnection() {
    sqlite3_close(m_db);
}

void SqliteConnection::exec(const char* sql) {
    const int rc = sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr);
    if (rc != SQLITE_OK)
        fail(rc, "update");
}

void SqliteConnection::fail(int rc, std::string_view action) const {
    const std::string file = "\"" + m_path.string() + "\"";
    const std::string detail = m_db ? sqlite3_errmsg(m_db) : sqlite3_errstr(rc);
    switch (rc & 0xff) {
    case SQLITE_NOTADB:
        throw StoreError(file + " is not a Morvel database: it is not an SQLite database file.");
    case SQLITE_CORRUPT:
        throw StoreError(file + " is damaged and cannot be used (" + detail + ").");
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw StoreError(file + " is busy: another program is writing to it. Try again.");
    case SQLITE_READONLY:
        throw StoreError(file + " cannot be written: it is read-only (" + detail + ").");
    case SQLITE_CANTOPEN:
        throw StoreError(file + " cannot be opened (" + detail + ").");
    case SQLITE_FULL:
        throw StoreError(file + " could not be written: the disk is full.");
    default:
        throw StoreError("Could not " + std::string(action) + " " + file + " (" + detail + ").");
    }
}

} // namespace morvel
