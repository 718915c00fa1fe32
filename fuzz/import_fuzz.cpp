// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// Import reads text from anywhere: whatever the bytes, it either gives a table definition or
// says where the text is wrong, never anything else. And what it reads, it writes back exactly:
// a definition read from any text exports, reads and exports again to the same bytes.

#include "fuzz_check.h"
#include "interchange/import_error.h"
#include "interchange/table_diff.h"
#include "interchange/table_json.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvel::interchange;
    using morvel::fuzz::require;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    TableDocument table;
    try {
        table = readTableJson(text);
    } catch (const ImportError& error) {
        require(error.line() >= 1 && error.column() >= 1, "an error has a place in the text");
        return 0;
    }
    const std::string written = writeTableJson(table);
    const TableDocument back = readTableJson(written);
    require(writeTableJson(back) == written, "export, import, export gives the same bytes");
    require(diffTables(table, back).empty(), "a definition and its round trip do not differ");
    return 0;
}
