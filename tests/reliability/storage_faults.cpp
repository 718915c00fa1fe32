// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "reliability/storage_faults.h"

#include <atomic>
#include <sqlite3.h>
#include <stdexcept>

namespace morvel::reliability {

namespace {

std::atomic<std::int64_t> g_pageLimit = 0;

int applyPageLimit(sqlite3* db, char**, const sqlite3_api_routines*) {
    if (const std::int64_t limit = g_pageLimit.load(); limit > 0)
        sqlite3_exec(db, ("PRAGMA max_page_count = " + std::to_string(limit)).c_str(), nullptr,
                     nullptr, nullptr);
    return SQLITE_OK;
}

std::string firstAnswer(const std::filesystem::path& path, const char* sql) {
    sqlite3* db = nullptr;
    std::string answer = "cannot open";
    if (sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
        sqlite3_stmt* statement = nullptr;
        answer = "no answer";
        if (sqlite3_prepare_v2(db, sql, -1, &statement, nullptr) == SQLITE_OK &&
            sqlite3_step(statement) == SQLITE_ROW)
            answer = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
        else
            answer = sqlite3_errmsg(db);
        sqlite3_finalize(statement);
    }
    sqlite3_close(db);
    return answer;
}

} // namespace

std::string firstAnswerOf(const std::filesystem::path& path, const char* sql) {
    return firstAnswer(path, sql);
}

std::string integrityCheck(const std::filesystem::path& path) {
    return firstAnswer(path, "PRAGMA integrity_check");
}

std::int64_t pageCount(const std::filesystem::path& path) {
    return std::stoll(firstAnswer(path, "PRAGMA page_count"));
}

void limitDatabasePages(std::int64_t pages) {
    static const bool registered = [] {
        // SQLite's documented way to run code on every new connection.
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(&applyPageLimit));
        return true;
    }();
    (void)registered;
    g_pageLimit = pages;
}

} // namespace morvel::reliability
