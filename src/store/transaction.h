// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

namespace morvel {

class SqliteConnection;

// A transaction, rolled back unless commit() was reached. A write transaction takes the write
// lock at once (BEGIN IMMEDIATE), so that a check made inside it still holds when it commits; a
// read transaction gives its statements one consistent view of the file.
class Transaction {
public:
    enum class Kind { Read, Write };

    Transaction(SqliteConnection& connection, Kind kind);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    void commit();

private:
    SqliteConnection& m_connection;
    bool m_open = true;
};

} // namespace morvel
