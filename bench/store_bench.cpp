// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// What saving costs: one changed field, nothing changed, a new table's first save, a load, and
// keeping the change set current, at 1,000, 10,000 and 100,000 fields.

#include "bench_plan.h"
#include "field_generator.h"
#include "history/change_review.h"
#include "history/change_set.h"
#include "store/schema_database.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <unistd.h>

namespace morvel::bench {
namespace {

std::int32_t fieldCount(const benchmark::State& state) {
    return static_cast<std::int32_t>(state.range(0));
}

// A database file of its own holding one generated table "T", removed afterwards.
class StoredTable {
public:
    explicit StoredTable(std::int32_t fields) {
        static std::atomic<int> serial = 0;
        m_path = std::filesystem::temp_directory_path() /
                 ("morvel-bench-" + std::to_string(::getpid()) + "-" + std::to_string(++serial));
        std::filesystem::remove(m_path);
        m_database = std::make_unique<SchemaDatabase>(m_path);
        TableDefinition table;
        table.info.name = "T";
        table.info.displayName = "T";
        if (fields > 0)
            table.fields = makeFieldDefs(fields);
        m_database->saveAsNew(table);
    }
    StoredTable(const StoredTable&) = delete;
    StoredTable& operator=(const StoredTable&) = delete;
    ~StoredTable() {
        m_database.reset();
        std::filesystem::remove(m_path);
        std::filesystem::remove(SchemaDatabase::backupPath(m_path));
    }
    SchemaDatabase& database() { return *m_database; }

private:
    std::filesystem::path m_path;
    std::unique_ptr<SchemaDatabase> m_database;
};

void Store_SaveOneChange(benchmark::State& state) {
    StoredTable stored(fieldCount(state));
    TableDefinition table = stored.database().load("T");
    ChangeSet changes(*table.fields);
    FieldDef& field = *table.fields->Item(table.fields->Count() / 2);
    std::int64_t round = 0;
    for (auto _ : state) {
        field.SetDisplayName("Caption " + std::to_string(++round));
        stored.database().save(table, &changes);
        changes.rebase();
    }
}

void Store_SaveNothing(benchmark::State& state) {
    StoredTable stored(fieldCount(state));
    TableDefinition table = stored.database().load("T");
    ChangeSet changes(*table.fields);
    for (auto _ : state)
        stored.database().save(table, &changes);
}

void Store_FirstSave(benchmark::State& state) {
    StoredTable stored(0);
    TableDefinition table;
    table.fields = makeFieldDefs(fieldCount(state));
    std::int64_t round = 0;
    for (auto _ : state) {
        table.info.name = "New" + std::to_string(++round);
        stored.database().saveAsNew(table);
    }
}

void Store_Load(benchmark::State& state) {
    StoredTable stored(fieldCount(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(stored.database().load("T"));
}

// One write heard by the change set: a member changed, then changed back (each a change).
void ChangeSet_Change(benchmark::State& state) {
    auto fields = makeFieldDefs(fieldCount(state));
    ChangeSet changes(*fields);
    FieldDef& field = *fields->Item(fields->Count() / 2);
    const std::string original = field.DisplayName();
    bool flip = false;
    for (auto _ : state) {
        field.SetDisplayName((flip = !flip) ? "Changed" : original);
        benchmark::DoNotOptimize(changes.empty());
    }
}

// The review's rows of 1,000 changed fields, in a table of N.
void ChangeReview_Rows(benchmark::State& state) {
    auto fields = makeFieldDefs(fieldCount(state));
    ChangeSet changes(*fields);
    const std::int32_t step = std::max(1, fields->Count() / 1000);
    for (std::int32_t at = 1; at <= fields->Count(); at += step)
        fields->Item(at)->SetDescription("Reviewed");
    const ChangeReview review(*fields, changes);
    for (auto _ : state)
        benchmark::DoNotOptimize(review.rows());
}

const bool registered = [] {
    using benchmark::kMicrosecond;
    using benchmark::kMillisecond;
    registerPlans("Store_SaveOneChange", Store_SaveOneChange, kMillisecond,
                  {{1000, 0}, {10000, 0}, {100000, 0}});
    registerPlans("Store_SaveNothing", Store_SaveNothing, kMicrosecond,
                  {{1000, 0}, {10000, 0}, {100000, 0}});
    registerPlans("Store_FirstSave", Store_FirstSave, kMillisecond,
                  {{1000, 0}, {10000, 10}, {100000, 3, 3}});
    registerPlans("Store_Load", Store_Load, kMillisecond, {{1000, 0}, {10000, 10}, {100000, 3, 3}});
    registerPlans("ChangeSet_Change", ChangeSet_Change, kMicrosecond,
                  {{1000, 0}, {10000, 0}, {100000, 0}});
    registerPlans("ChangeReview_Rows", ChangeReview_Rows, kMillisecond,
                  {{1000, 0}, {10000, 0}, {100000, 0}});
    return true;
}();

} // namespace
} // namespace morvel::bench

BENCHMARK_MAIN();
