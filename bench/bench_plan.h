// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>
#include <cstdint>
#include <initializer_list>

namespace morvel::bench {

// How one benchmark runs at one table size: a fixed number of iterations where the library's own
// choice would run too long (one iteration at 100,000 fields may take a second), and fewer
// repetitions than the command line asks for where even that is too long (0 keeps the flag's).
struct SizePlan {
    std::int64_t fields;
    benchmark::IterationCount iterations;
    int repetitions = 0;
};

// Wall-clock time of the timed part, or of what the benchmark reports with SetIterationTime.
enum class Timing { Real, Manual };

// Registers the benchmark once per plan, named "<name>/<fields>/...".
inline void registerPlans(const char* name, void (*function)(benchmark::State&),
                          benchmark::TimeUnit unit, std::initializer_list<SizePlan> plans,
                          Timing timing = Timing::Real) {
    for (const SizePlan& plan : plans) {
        auto* b = benchmark::RegisterBenchmark(name, function);
        b->Arg(plan.fields)->Unit(unit);
        if (timing == Timing::Manual)
            b->UseManualTime();
        else
            b->UseRealTime();
        if (plan.iterations > 0)
            b->Iterations(plan.iterations);
        if (plan.repetitions > 0)
            b->Repetitions(plan.repetitions);
    }
}

} // namespace morvel::bench
