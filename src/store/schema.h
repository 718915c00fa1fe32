// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>

namespace morvel {

class SqliteConnection;

// The layout of a Morvel database file. The application id marks the file as ours; the user
// version counts layout changes, so an older program refuses a file that a newer one wrote.
namespace schema {

inline constexpr std::int32_t kApplicationId = 0x4D52564C; // "MRVL"
// 1: rows by position; 2: each field's stable identity stored with it.
inline constexpr std::int32_t kVersion = 2;

// Which keyed store of a field a value row belongs to.
enum class Store : std::int32_t { Properties = 0, ListValues = 1, Locales = 2 };

// Writes the empty layout into a new file, in one transaction.
void create(SqliteConnection& connection);
// Refuses, with a StoreError that says why, a file that is not a Morvel database, was written
// by a newer version, or is damaged. Reads only.
void verify(SqliteConnection& connection);
// The file's layout version.
std::int32_t versionOf(SqliteConnection& connection);
// Brings a file of an older layout up to kVersion: first a copy of the file as it is to backup,
// then one transaction, so that a failure (or a kill) at any point leaves the old file whole.
// Does nothing to a file of this version.
void migrate(SqliteConnection& connection, const std::filesystem::path& backup);
// Settings of every connection that writes.
void configure(SqliteConnection& connection);

} // namespace schema
} // namespace morvel
