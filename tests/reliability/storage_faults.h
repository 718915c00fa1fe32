// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/field_defs.h"
#include "testing/snapshot.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace morvel::reliability {

// SQLite's own verdict on the whole file ("ok" when sound), read through a read-only connection.
std::string integrityCheck(const std::filesystem::path& path);
// The first column of the first row that sql gives, as text, through a read-only connection.
std::string firstAnswerOf(const std::filesystem::path& path, const char* sql);
// Pages of the file as SQLite counts them.
std::int64_t pageCount(const std::filesystem::path& path);

// From now on every new SQLite connection of this process may grow its file to at most pages
// pages, as a full disk would stop it; 0 lifts the limit.
void limitDatabasePages(std::int64_t pages);

} // namespace morvel::reliability
