// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/table_document.h"
#include "store/schema_database.h"

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace morvel::app {

// Exit codes of export, import and diff: 0 done (diff: the same), 1 diff found differences,
// 2 a mistake on the command line or input that cannot be used.
inline constexpr int kTablesEqual = 0;
inline constexpr int kTablesDiffer = 1;
inline constexpr int kCommandFailed = 2;

// Whether the command line asks for export, import or diff (which need no window or display).
bool isTableCommand(int argc, char** argv);

// Runs `export --db FILE --table NAME [-o OUT]`, `import --db FILE IN [--as NAME] [--replace]`
// or `diff A B` (A and B each a JSON file or FILE:TABLE); arguments start with the command's
// name. Results go to out, messages to err. Returns the exit code.
int runTableCommand(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& err);

// The definition as the text format carries it.
interchange::TableDocument tableDocument(const TableDefinition& table);

// Stores document as the table name (the document's own name when name is empty), in one
// transaction like a save. An existing table of that name is refused (StoreError) unless
// replace is set; a replaced table keeps its id, and a save of it loaded earlier then meets a
// changed revision. Returns the catalogue entry written.
TableInfo importTable(SchemaDatabase& database, const interchange::TableDocument& document,
                      std::string_view name, bool replace);

// Writes bytes to path through a file beside it, so that a failure leaves no half-written file.
void writeFileAtomically(const std::string& path, std::string_view bytes);
std::string readFile(const std::string& path);

} // namespace morvel::app
