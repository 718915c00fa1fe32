// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

struct sqlite3;

namespace morvel {

// One open SQLite connection to a file. Failures throw StoreError with a message that names the
// file; SQLite's own wording is appended for whoever has to look deeper.
class SqliteConnection {
public:
    enum class Mode {
        ReadOnly,  // never writes to the file, nor creates it
        ReadWrite, // the file must exist
        Create,    // makes the file when it is missing
    };

    SqliteConnection(std::filesystem::path path, Mode mode);
    SqliteConnection(const SqliteConnection&) = delete;
    SqliteConnection& operator=(const SqliteConnection&) = delete;
    ~SqliteConnection();

    sqlite3* handle() const { return m_db; }
    const std::filesystem::path& path() const { return m_path; }

    // Runs statements that return no rows.
    void exec(const char* sql);
    // Throws the StoreError that describes SQLite result code rc while doing action.
    [[noreturn]] void fail(int rc, std::string_view action) const;

private:
    // Why a write of the open file could not make its journal: the folder or the journal path.
    std::string cannotWriteBeside() const;
    std::filesystem::path folder() const;
    bool folderWritable() const;

    std::filesystem::path m_path;
    sqlite3* m_db = nullptr;
};

} // namespace morvel
