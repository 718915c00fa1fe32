// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace morvel {

class ChangeSet;
class FieldDefs;
class SqliteConnection;

namespace field_rows {

// Writes into the table's stored rows what the change set says differs from them, and nothing
// else: a changed field's row and the stores that changed, an added field's rows, a removed
// field's rows gone, a moved field's new place. The stored rows must be the change set's
// baseline. Fields put between two neighbours that have no room left between their positions
// make it rewrite the table's rows whole. The caller holds the write transaction.
void writeChanges(SqliteConnection& connection, std::int64_t tableId, const FieldDefs& fields,
                  const ChangeSet& changes);

} // namespace field_rows
} // namespace morvel
