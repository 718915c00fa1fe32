// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The text format and the problems list at table sizes: export, import and diff of a whole
// table, the full check made when a table is opened, and the re-check that follows one edit.

#include "bench_plan.h"
#include "checks/problem_list.h"
#include "field_generator.h"
#include "interchange/table_diff.h"
#include "interchange/table_json.h"

#include <map>
#include <optional>

namespace morvel::bench {
namespace {

using benchmark::kMicrosecond;
using benchmark::kMillisecond;
using benchmark::State;

// One generated table per size, with its text, made once.
struct Tables {
    interchange::TableDocument table;
    std::string text;

    static Tables& shared(std::int32_t count) {
        static std::map<std::int32_t, Tables> made;
        auto [at, fresh] = made.try_emplace(count);
        if (fresh) {
            at->second.table = {"Generated", "Generated table", 1, makeFieldDefs(count)};
            at->second.text = interchange::writeTableJson(at->second.table);
        }
        return at->second;
    }
};

std::int32_t fieldCount(const State& state) {
    return static_cast<std::int32_t>(state.range(0));
}

void Interchange_Export(State& state) {
    const Tables& tables = Tables::shared(fieldCount(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(interchange::writeTableJson(tables.table));
    state.counters["MB"] = static_cast<double>(tables.text.size()) / 1e6;
}

void Interchange_Import(State& state) {
    const Tables& tables = Tables::shared(fieldCount(state));
    for (auto _ : state) {
        auto table = interchange::readTableJson(tables.text);
        if (table.fields->Count() != fieldCount(state))
            state.SkipWithError("the import lost fields");
        state.PauseTiming();
        table = {}; // the collection's release is no part of the import
        state.ResumeTiming();
    }
}

// Two tables that differ in one field in the middle: every field is compared.
void Interchange_Diff(State& state) {
    const Tables& tables = Tables::shared(fieldCount(state));
    const interchange::TableDocument other = interchange::readTableJson(tables.text);
    other.fields->Item(fieldCount(state) / 2)->SetDescription("Changed");
    for (auto _ : state)
        if (interchange::diffTables(tables.table, other).size() != 1)
            state.SkipWithError("the diff did not find the one change");
}

void Checks_Full(State& state) {
    const Tables& tables = Tables::shared(fieldCount(state));
    std::optional<checks::ProblemList> list;
    for (auto _ : state) {
        list.emplace(tables.table.fields);
        benchmark::DoNotOptimize(list->rowCount());
        state.PauseTiming();
        list.reset();
        state.ResumeTiming();
    }
}

// A keystroke in the display name of a field in the middle, then a rename of a field that
// others may refer to: each re-checks its field and the fields that refer to it.
void Checks_Incremental(State& state) {
    const Tables& tables = Tables::shared(fieldCount(state));
    checks::ProblemList list(tables.table.fields);
    const auto field = tables.table.fields->Item(fieldCount(state) / 2);
    const std::string name = field->Name();
    bool flip = false;
    for (auto _ : state) {
        flip = !flip;
        field->SetDisplayName(flip ? "Typed" : "Typed again");
        field->SetName(flip ? name + "X" : name);
    }
    benchmark::DoNotOptimize(list.rowCount());
}

const bool kRegistered = [] {
    const std::initializer_list<SizePlan> whole{{1000, 20}, {10000, 5}, {100000, 2}};
    registerPlans("Interchange_Export", Interchange_Export, kMillisecond, whole);
    registerPlans("Interchange_Import", Interchange_Import, kMillisecond, whole);
    registerPlans("Interchange_Diff", Interchange_Diff, kMillisecond, whole);
    registerPlans("Checks_Full", Checks_Full, kMillisecond, whole);
    registerPlans("Checks_Incremental", Checks_Incremental, kMicrosecond,
                  {{1000, 0}, {10000, 0}, {100000, 0}});
    return true;
}();

} // namespace
} // namespace morvel::bench

BENCHMARK_MAIN();
