// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// Opening a table definition database must give a clear StoreError for any file that is not a
// sound Morvel database, and must not write a byte into a file it refuses. A file it accepts must
// then load and search without any other kind of failure. The inputs are whole files: random
// bytes, and mutations of valid databases from the seed corpus.

#include "base/error.h"
#include "fuzz_check.h"
#include "store/schema_database.h"
#include "store/store_error.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

namespace {

using morvel::fuzz::require;

const std::filesystem::path& scratchFile() {
    static const std::filesystem::path path = std::filesystem::temp_directory_path() /
                                              ("morvel-fuzz-" + std::to_string(::getpid()) + ".db");
    return path;
}

std::string contents(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void useAccepted(morvel::SchemaDatabase& database) {
    for (const morvel::TableInfo& info : database.tables()) {
        try {
            const morvel::TableDefinition table = database.load(info.id);
            require(table.info.id == info.id, "a loaded table is the one asked for");
        } catch (const morvel::Error&) {
            // A damaged table is refused with a message; that is all that is asked.
        }
    }
    database.Search("", "", 5000);
    database.Search("TableType=2", "", 10);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::filesystem::path& path = scratchFile();
    std::filesystem::remove(path.string() + "-journal");
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;

    try {
        morvel::SchemaDatabase database(path);
        try {
            useAccepted(database);
        } catch (const morvel::Error&) {
            // Damage found only while reading is reported the same way.
        }
    } catch (const morvel::StoreError&) {
        require(contents(path) == bytes, "a refused file keeps every byte it had");
    }
    return 0;
}
