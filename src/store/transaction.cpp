// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "store/transaction.h"

#include "store/sqlite_connection.h"

#include <sqlite3.h>

namespace morvel {

Transaction::Transaction(SqliteConnection& connection, Kind kind)
    : m_connection(connection) {
    m_connection.exec(kind == Kind::Write ? "BEGIN IMMEDIATE" : "BEGIN");
}

Transaction::~Transaction() {
    // A failed statement may have rolled back already; a second ROLLBACK then fails harmlessly.
    if (m_open)
        sqlite3_exec(m_connection.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
    m_connection.exec("COMMIT");
    m_open = false;
}

} // namespace morvel
