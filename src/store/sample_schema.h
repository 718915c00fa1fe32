// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

namespace morvel {

class SchemaDatabase;

// Writes the sample tables into a database that has no tables yet (StoreError otherwise): four
// tables to link to (Customers, Products, Employees, Suppliers), two sub tables (OrderLines,
// Addresses) and the main table "Orders", whose fields show every family of field types with
// realistic settings, list values and texts in English and German.
void writeSampleSchema(SchemaDatabase& database);

} // namespace morvel
