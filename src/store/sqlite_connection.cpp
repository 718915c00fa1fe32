// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "store/sqlite_connection.h"

#include "store/store_error.h"

#include <sqlite3.h>
#include <unistd.h>

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
    const std::string file = "The file \"" + m_path.string() + "\"";
    const std::string detail = m_db ? sqlite3_errmsg(m_db) : sqlite3_errstr(rc);
    switch (rc & 0xff) {
    case SQLITE_NOTADB:
        throw StoreError(file + " is not a Morvel database: it is not an SQLite database file.");
    case SQLITE_CORRUPT:
        throw StoreError(file + " is damaged and cannot be used (" + detail + ").");
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw StoreError(file + " is busy: another program is writing to it. Try again.",
                         StoreFailure::Busy);
    case SQLITE_READONLY:
        // A writable file in a folder that cannot be written: the journal cannot be made.
        if (rc == SQLITE_READONLY_DIRECTORY || (action != "open" && !folderWritable()))
            throw StoreError(cannotWriteBeside(), StoreFailure::CannotWrite);
        throw StoreError(file + " cannot be written: it is read-only.", StoreFailure::ReadOnly);
    case SQLITE_CANTOPEN:
        if (action != "open")
            throw StoreError(cannotWriteBeside(), StoreFailure::CannotWrite);
        throw StoreError(file + " cannot be opened (" + detail + ").");
    case SQLITE_FULL:
        throw StoreError(file + " could not be written: the disk is full.", StoreFailure::DiskFull);
    default:
        throw StoreError("Could not " + std::string(action) + " the file \"" + m_path.string() +
                         "\" (" + detail + ").");
    }
}

std::filesystem::path SqliteConnection::folder() const {
    return m_path.has_parent_path() ? m_path.parent_path() : std::filesystem::path(".");
}

bool SqliteConnection::folderWritable() const {
    return ::access(folder().c_str(), W_OK) == 0;
}

std::string SqliteConnection::cannotWriteBeside() const {
    // The file itself is open: what failed is the journal that a write keeps beside it.
    const std::string file = "\"" + m_path.filename().string() + "\"";
    if (!folderWritable())
        return "The folder \"" + folder().string() + "\" cannot be written, so " + file +
               " in it cannot be saved (a save keeps a journal file beside the database).";
    return "The journal file \"" + m_path.filename().string() + "-journal\" could not be made " +
           "beside " + file + ", so it cannot be saved.";
}

} // namespace morvel
