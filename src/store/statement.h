// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct sqlite3_stmt;

namespace morvel {

class SqliteConnection;

// A prepared statement, made once and run many times: bind, step, reset. Parameters and columns
// are counted as SQLite counts them (parameters from 1, columns from 0).
class Statement {
public:
    Statement(SqliteConnection& connection, std::string_view sql);
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement();

    Statement& bind(int index, std::int64_t number);
    Statement& bind(int index, std::string_view text);
    Statement& bindNull(int index);

    // Steps once; true while there is a row to read.
    bool step();
    // Steps a statement that returns no rows, then makes it ready for the next run.
    void run();
    // Makes the statement ready to run again and clears its parameters.
    void reset();

    bool isNull(int column) const;
    bool isInteger(int column) const;
    bool isText(int column) const;
    std::int64_t integer(int column) const;
    std::string text(int column) const;

private:
    SqliteConnection& m_connection;
    sqlite3_stmt* m_statement = nullptr;
};

} // namespace morvel
