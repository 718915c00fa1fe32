// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// Faults around saving: the saving process killed at random instants, two designers saving one
// table, and a disk that fills up during a save. Nothing may be half written, and no person's
// edits may be lost.

#include "control/morvel.h"
#include "history/change_set.h"
#include "history/history.h"
#include "reliability/random_collection.h"
#include "reliability/storage_faults.h"
#include "store/sample_schema.h"
#include "store/schema_database.h"
#include "store/store_error.h"
#include "store/temp_dir.h"
#include "testing/scripted_modal_host.h"
#include "testing/scripted_prompter.h"
#include "view/modal_host.h"

#include <chrono>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace morvel::reliability {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int kKills = 60;
#else
constexpr int kKills = 200;
#endif

// Saves the table again and again, alternating between two definitions, until it is killed.
[[noreturn]] void saveForever(const std::filesystem::path& path,
                              const std::shared_ptr<FieldDefs>& first,
                              const std::shared_ptr<FieldDefs>& second) {
    try {
        SchemaDatabase database(path);
        TableDefinition table = database.load("Orders");
        for (std::uint64_t i = 0;; ++i) {
            table.fields = i % 2 == 0 ? second : first;
            database.save(table);
        }
    } catch (...) {
        // Nothing to report from here: the parent judges the file.
    }
    _exit(3);
}

TEST(StorageFaults, KilledSavesLeaveTheOldOrTheNewDefinitionExactly) {
    testing::TempDir dir;
    const auto path = dir.file("schema.morvel");
    const auto first = randomCollection(101, 150);
    const auto second = randomCollection(202, 150);
    {
        SchemaDatabase database(path);
        writeSampleSchema(database);
        TableDefinition table = database.load("Orders");
        table.fields = first;
        database.save(table);
    }
    const std::string described[] = {testkit::fieldsSnapshot(*first),
                                     testkit::fieldsSnapshot(*second)};
    // One open, load and save as the child makes them, timed here: the kills spread over a few of
    // those, so that some land before a save commits and some after, in a fast build or a
    // sanitized one alike.
    const auto cycleStarted = std::chrono::steady_clock::now();
    {
        SchemaDatabase database(path);
        TableDefinition table = database.load("Orders");
        database.save(table);
    }
    const std::int64_t cycleMicroseconds = std::chrono::duration_cast<std::chrono::microseconds>(
                                               std::chrono::steady_clock::now() - cycleStarted)
                                               .count();

    std::mt19937_64 random(7);
    int found[2] = {0, 0};
    int journals = 0;
    const auto started = std::chrono::steady_clock::now();
    // On a loaded machine the child's start-up can outlast the planned window, so that every kill
    // lands before a commit: more kills, each allowed longer, until both outcomes were seen.
    int kill = 0;
    for (; kill < kKills || ((found[0] == 0 || found[1] == 0) && kill < 4 * kKills); ++kill) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0)
            saveForever(path, first, second);
        // Anywhere from the child's start-up to a few saves in.
        usleep(static_cast<useconds_t>(std::uniform_int_distribution<std::int64_t>(
            0, (3 + kill / kKills * 3) * cycleMicroseconds)(random)));
        ::kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the saving process ended by itself, status " << status;
        journals += std::filesystem::exists(path.string() + "-journal") ? 1 : 0;

        // Opening the file after the crash must roll back what the killed save left half done.
        SchemaDatabase database(path);
        const TableDefinition table = database.load("Orders");
        ASSERT_EQ(integrityCheck(path), "ok") << "after kill " << kill + 1;
        const std::string stored = testkit::fieldsSnapshot(*table.fields);
        ASSERT_TRUE(stored == described[0] || stored == described[1])
            << "after kill " << kill + 1 << " the table holds neither definition";
        ++found[stored == described[0] ? 0 : 1];
    }
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    std::cout << kill << " kills in " << seconds << " s: old definition " << found[0]
              << " times, new " << found[1] << " times, " << journals
              << " kills left a journal to roll back\n";
    EXPECT_GT(found[0], 0);
    EXPECT_GT(found[1], 0);
}

// Runs work in a child process, killed anywhere in its first spreadMicroseconds, kills times;
// after each kill (or end) judge sees the file.
void killRepeatedly(int kills, std::int64_t spreadMicroseconds, const std::function<void()>& before,
                    const std::function<void()>& work, const std::function<void(int)>& judge) {
    std::mt19937_64 random(11);
    for (int kill = 0; kill < kills; ++kill) {
        before();
        const pid_t child = fork();
        if (child == 0) {
            try {
                work();
            } catch (...) {
            }
            _exit(3);
        }
        usleep(static_cast<useconds_t>(
            std::uniform_int_distribution<std::int64_t>(0, spreadMicroseconds)(random)));
        ::kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        judge(kill + 1);
    }
}

template <typename Step> std::int64_t microsecondsOf(Step&& step) {
    const auto started = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() -
                                                                 started)
        .count();
}

// Edits that touch every kind of row: a member, a stored key, a new field, a removed one, a move.
void editEveryKind(FieldDefs& fields) {
    const auto step = fields.beginStep("Edit", ChangeOrigin::Person);
    fields.Item(2)->SetDescription("Killed while saving");
    fields.Item(3)->Properties().SetValue("zrKill", 7, true);
    fields.Insert(2, std::make_shared<FieldDef>("KillNew", 8));
    fields.Remove(fields.Item(5)->Name());
    fields.Move(1, 6);
}

TEST(StorageFaults, KilledIncrementalSavesLeaveTheOldOrTheNewDefinitionExactly) {
    testing::TempDir dir;
    const auto path = dir.file("schema.morvel");
    std::string described[2];
    {
        SchemaDatabase database(path);
        writeSampleSchema(database);
        TableDefinition table = database.load("Orders");
        described[0] = testkit::fieldsSnapshot(*table.fields);
        editEveryKind(*table.fields);
        described[1] = testkit::fieldsSnapshot(*table.fields);
    }
    // Edits saved, undone and saved, redone and saved, until killed: each save writes only
    // what changed.
    const auto saveForever = [&](std::uint64_t rounds) {
        SchemaDatabase database(path);
        TableDefinition table = database.load("Orders");
        ChangeSet changes(*table.fields);
        History history(*table.fields);
        editEveryKind(*table.fields);
        for (std::uint64_t i = 0; i < rounds; ++i) {
            database.save(table, &changes);
            changes.rebase();
            i % 2 == 0 ? history.undo() : history.redo();
        }
    };
    const std::int64_t cycle = microsecondsOf([&] { saveForever(2); });
    int found[2] = {0, 0};
    killRepeatedly(
        kKills / 2, 3 * cycle, [] {}, [&] { saveForever(~0ull); },
        [&](int kill) {
            SchemaDatabase database(path);
            const std::string stored = testkit::fieldsSnapshot(*database.load("Orders").fields);
            ASSERT_EQ(integrityCheck(path), "ok") << "after kill " << kill;
            ASSERT_TRUE(stored == described[0] || stored == described[1])
                << "after kill " << kill << " the table holds neither definition";
            ++found[stored == described[0] ? 0 : 1];
        });
    std::cout << "killed incremental saves: unedited " << found[0] << " times, edited " << found[1]
              << " times\n";
    EXPECT_GT(found[0], 0);
    EXPECT_GT(found[1], 0);
}

TEST(StorageFaults, KilledMigrationsLeaveTheOldFileOrTheUpdatedOne) {
    testing::TempDir dir;
    const auto path = dir.file("old.morvel");
    const std::filesystem::path fixture = MORVEL_STORE_FIXTURES "/version1.db";
    const auto everyTable = [&] {
        const SchemaDatabase database(path, SchemaDatabase::Access::ReadOnly);
        std::string text;
        for (const TableInfo& info : database.tables())
            text += info.name + "\n" + testkit::fieldsSnapshot(*database.load(info.id).fields);
        return text;
    };
    const auto copyFixture = [&] {
        std::filesystem::remove(path.string() + "-journal");
        std::filesystem::copy_file(fixture, path,
                                   std::filesystem::copy_options::overwrite_existing);
    };
    copyFixture();
    const std::string content = everyTable();
    const std::int64_t cycle = microsecondsOf([&] { SchemaDatabase migrated(path); });
    int found[3] = {0, 0, 0};
    killRepeatedly(
        kKills / 2, 2 * cycle, copyFixture, [&] { SchemaDatabase migrating(path); },
        [&](int kill) {
            // What a writable open does first: roll back a half-done update from its journal.
            sqlite3* db = nullptr;
            sqlite3_open(path.c_str(), &db);
            sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
            sqlite3_close(db);
            ASSERT_EQ(integrityCheck(path), "ok") << "after kill " << kill;
            const std::string version = firstAnswerOf(path, "PRAGMA user_version");
            ASSERT_TRUE(version == "1" || version == "2") << version;
            ASSERT_EQ(everyTable(), content) << "after kill " << kill << ", version " << version;
            ++found[std::stoi(version)];
        });
    std::cout << "killed migrations: old file " << found[1] << " times, updated " << found[2]
              << " times\n";
    EXPECT_GT(found[1], 0);
    EXPECT_GT(found[2], 0);
}

// A person at a designer, on a table loaded from a database handle of their own.
struct Person {
    explicit Person(const std::filesystem::path& path)
        : database(path)
        , table(database.load("Orders"))
        , designer(prompter, modalHost) {
        designer.SetFieldDefs(table.fields);
    }
    void type(view::TextBox& box, const std::string& text, const std::string& field) {
        designer.lst.clickItem(designer.lst.item(field));
        box.type(text);
        designer.lst.setFocus();
    }

    SchemaDatabase database;
    TableDefinition table;
    testkit::ScriptedPrompter prompter;
    testkit::ScriptedModalHost modalHost;
    control::Morvel designer;
};

TEST(StorageFaults, SecondSaveOfOneTableIsRefusedAndLosesNoEdits) {
    testing::TempDir dir;
    const auto path = dir.file("schema.morvel");
    {
        SchemaDatabase database(path);
        writeSampleSchema(database);
    }
    Person first(path);
    Person second(path);
    const std::string someField = first.table.fields->Item(1)->Name();
    const std::string otherField = first.table.fields->Item(2)->Name();
    first.type(first.designer.txtDisplayName, "First's caption", someField);
    second.type(second.designer.txtDescription, "Second's note", otherField);
    second.table.fields->Add("SecondsField", 8);

    first.database.save(first.table);
    const std::string bytes = testing::fileBytes(path);
    try {
        second.database.save(second.table);
        FAIL() << "the second save was accepted";
    } catch (const ConcurrentSaveError& error) {
        EXPECT_NE(std::string(error.what()).find("changed and saved by someone else"),
                  std::string::npos)
            << error.what();
    }
    EXPECT_EQ(testing::fileBytes(path), bytes) << "the refused save wrote nothing";
    EXPECT_EQ(second.table.info.revision, 1);
    // The refused edits are still in the second window.
    EXPECT_EQ(second.designer.SelectedFieldDef()->Name(), "SecondsField");
    EXPECT_EQ(second.table.fields->Item(otherField)->Description(), "Second's note");
    EXPECT_TRUE(second.designer.lst.find("SecondsField"));

    // Saved as a new table, as they are.
    TableDefinition copy{second.table.info, second.table.fields};
    copy.info.name = "OrdersSecond";
    second.database.saveAsNew(copy);

    // Or merged into the table as it is now: reload, take over the edits, save.
    TableDefinition reloaded = second.database.load("Orders");
    EXPECT_EQ(reloaded.info.revision, 2);
    reloaded.fields->Item(otherField)->SetDescription("Second's note");
    reloaded.fields->Add("SecondsField", 8);
    second.designer.SetFieldDefs(reloaded.fields);
    second.database.save(reloaded);

    SchemaDatabase check(path);
    const TableDefinition merged = check.load("Orders");
    EXPECT_EQ(merged.fields->Item(someField)->DisplayName(), "First's caption");
    EXPECT_EQ(merged.fields->Item(otherField)->Description(), "Second's note");
    EXPECT_TRUE(merged.fields->find("SecondsField"));
    EXPECT_EQ(testkit::fieldsSnapshot(*check.load("OrdersSecond").fields),
              testkit::fieldsSnapshot(*copy.fields));
    EXPECT_EQ(integrityCheck(path), "ok");
}

TEST(StorageFaults, FullDiskDuringSaveKeepsThePreviousDefinition) {
    testing::TempDir dir;
    const auto path = dir.file("schema.morvel");
    std::string before;
    {
        SchemaDatabase database(path);
        writeSampleSchema(database);
        before = testkit::fieldsSnapshot(*database.load("Orders").fields);
    }

    limitDatabasePages(pageCount(path) + 2);
    std::string message;
    std::shared_ptr<FieldDefs> edited;
    {
        SchemaDatabase database(path);
        TableDefinition table = database.load("Orders");
        RandomSource random(5);
        while (table.fields->Count() < 400) {
            auto field = randomField(random);
            field->SetDescription(std::string(500, 'x'));
            if (!table.fields->find(field->Name()))
                table.fields->Add(field);
        }
        edited = table.fields;
        try {
            database.save(table);
        } catch (const StoreError& error) {
            message = error.what();
        }
    }
    limitDatabasePages(0);

    EXPECT_NE(message.find("the disk is full"), std::string::npos) << message;
    EXPECT_EQ(edited->Count(), 400) << "the edits stay in memory, to be saved elsewhere";
    EXPECT_EQ(integrityCheck(path), "ok");
    SchemaDatabase database(path);
    EXPECT_EQ(testkit::fieldsSnapshot(*database.load("Orders").fields), before);
}

} // namespace
} // namespace morvel::reliability
