// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "store/statement.h"

#include "store/sqlite_connection.h"

#include <sqlite3.h>

namespace morvel {

Statement::Statement(SqliteConnection& connection, std::string_view sql)
    : m_connection(connection) {
    const int rc = sqlite3_prepare_v3(connection.handle(), sql.data(), static_cast<int>(sql.size()),
                                      SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr);
    if (rc != SQLITE_OK)
        connection.fail(rc, "read");
}

Statement::~Statement() {
    sqlite3_finalize(m_statement);
}

Statement& Statement::bind(int index, std::int64_t number) {
    const int rc = sqlite3_bind_int64(m_statement, index, number);
    if (rc != SQLITE_OK)
        m_connection.fail(rc, "update");
    return *this;
}

Statement& Statement::bind(int index, std::string_view text) {
    const int rc = sqlite3_bind_text64(m_statement, index, text.data(), text.size(),
                                       SQLITE_TRANSIENT, SQLITE_UTF8);
    if (rc != SQLITE_OK)
        m_connection.fail(rc, "update");
    return *this;
}

Statement& Statement::bindNull(int index) {
    const int rc = sqlite3_bind_null(m_statement, index);
    if (rc != SQLITE_OK)
        m_connection.fail(rc, "update");
    return *this;
}

bool Statement::step() {
    const int rc = sqlite3_step(m_statement);
    if (rc == SQLITE_ROW)
        return true;
    if (rc == SQLITE_DONE)
        return false;
    // The statement keeps its error until reset; read the message before resetting.
    try {
        m_connection.fail(rc, "use");
    } catch (...) {
        sqlite3_reset(m_statement);
        throw;
    }
}

void Statement::run() {
    step();
    reset();
}

void Statement::reset() {
    sqlite3_reset(m_statement);
    sqlite3_clear_bindings(m_statement);
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(m_statement, column) == SQLITE_NULL;
}

bool Statement::isInteger(int column) const {
    return sqlite3_column_type(m_statement, column) == SQLITE_INTEGER;
}

bool Statement::isText(int column) const {
    return sqlite3_column_type(m_statement, column) == SQLITE_TEXT;
}

std::int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(m_statement, column);
}

std::string Statement::text(int column) const {
    const auto* bytes = sqlite3_column_text(m_statement, column);
    const int size = sqlite3_column_bytes(m_statement, column);
    if (!bytes)
        return {};
    return std::string(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size));
}

} // namespace morvel
