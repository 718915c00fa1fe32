#include "store/schema.h"
#include "store/schema_database.h"
#include "store/store_error.h"
#include "store/temp_dir.h"

#include <functional>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace morvel {
namespace {

void runSql(const std::filesystem::path& path, const char* sql) {
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &db), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
    sqlite3_close(db);
}

void makeMorvelDatabase(const std::filesystem::path& path) {
    SchemaDatabase database(path);
    TableDefinition table;
    table.info.name = "T";
    for (int i = 0; i < 2000; ++i)
        table.fields->Add("Field" + std::to_string(i), 8)->SetDescription(std::string(200, 'x'));
    database.saveAsNew(table);
}

TEST(Open, MissingOrEmptyFileBecomesNewDatabase) {
    testing::TempDir dir;
    EXPECT_TRUE(SchemaDatabase(dir.file("new.db")).created());
    const SchemaDatabase again(dir.file("new.db"));
    EXPECT_FALSE(again.created());
    EXPECT_TRUE(again.tables().empty());

    testing::writeBytes(dir.file("empty.db"), "");
    EXPECT_TRUE(SchemaDatabase(dir.file("empty.db")).created());
    EXPECT_FALSE(SchemaDatabase(dir.file("empty.db")).created());
}

struct RefusedFile {
    const char* what;
    std::function<void(const std::filesystem::path&)> make;
    const char* message;
};

TEST(Open, RefusedFilesKeepEveryByte) {
    const std::vector<RefusedFile> cases = {
        {"another program's database",
         [](const auto& path) {
             runSql(path, "CREATE TABLE tables (id); INSERT INTO tables VALUES (1)");
         },
         "is not a Morvel database: it is an SQLite database of another program"},
        {"a text file",
         [](const auto& path) { testing::writeBytes(path, "Name;Type\nCustomer;Link\n"); },
         "is not a Morvel database: it is not an SQLite database file"},
        {"garbage bytes",
         [](const auto& path) {
             std::string bytes(8192, '\0');
             for (std::size_t i = 0; i < bytes.size(); ++i)
                 bytes[i] = static_cast<char>((i * 2654435761u) >> 13);
             testing::writeBytes(path, bytes);
         },
         "is not a Morvel database: it is not an SQLite database file"},
        {"a truncated database",
         [](const auto& path) {
             makeMorvelDatabase(path);
             const std::string bytes = testing::fileBytes(path);
             testing::writeBytes(path, bytes.substr(0, bytes.size() / 2));
         },
         "is damaged"},
        {"a database of a newer version",
         [](const auto& path) {
             makeMorvelDatabase(path);
             runSql(path, "PRAGMA user_version = 2");
         },
         "was written by a newer version of Morvel (database version 2; this version reads up "
         "to 1)"},
    };
    for (const RefusedFile& refused : cases) {
        SCOPED_TRACE(refused.what);
        testing::TempDir dir;
        const auto path = dir.file("refused.db");
        refused.make(path);
        const std::string before = testing::fileBytes(path);
        const std::string listing = dir.listing();
        try {
            SchemaDatabase database(path);
            ADD_FAILURE() << "opened";
        } catch (const StoreError& error) {
            const std::string message = error.what();
            EXPECT_NE(message.find(refused.message), std::string::npos) << message;
            EXPECT_NE(message.find("left unchanged"), std::string::npos) << message;
        }
        EXPECT_EQ(testing::fileBytes(path), before);
        EXPECT_EQ(dir.listing(), listing);
    }
}

TEST(Open, DamagedRowsAreReportedOnLoad) {
    // A value of the wrong kind, and values of fields before the first and after the last.
    const std::pair<const char*, const char*> cases[] = {
        {"(1, 1, 0, 1, 'zrDirect.OT', 1, 'twelve')",
         "has a whole-number value that is not a whole number"},
        {"(1, 0, 0, 1, 'k', 1, 1)", "has values of a field that does not exist"},
        {"(1, 2001, 0, 1, 'k', 1, 1)", "has values of a field that does not exist"},
    };
    for (const auto& [row, said] : cases) {
        testing::TempDir dir;
        const auto path = dir.file("db");
        makeMorvelDatabase(path);
        runSql(path, (std::string("INSERT INTO field_values VALUES ") + row).c_str());
        SchemaDatabase database(path);
        try {
            database.load("T");
            ADD_FAILURE() << "loaded " << row;
        } catch (const StoreError& error) {
            EXPECT_NE(
                std::string(error.what()).find(std::string("is damaged: the table \"T\" ") + said),
                std::string::npos)
                << error.what();
        }
    }
}

} // namespace
} // namespace morvel
