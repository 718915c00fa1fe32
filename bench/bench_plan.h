#pragma once

#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdlib>
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

// MORVEL_BENCH_ITERATIONS replaces every fixed count, so that two runs under callgrind with
// different counts give the instructions of one iteration by their difference, free of the set-up
// and of whatever else the machine is doing.
inline benchmark::IterationCount fixedIterations(benchmark::IterationCount planned) {
    const char* forced = std::getenv("MORVEL_BENCH_ITERATIONS");
    return forced && planned > 0 ? std::atoll(forced) : planned;
}

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
            b->Iterations(fixedIterations(plan.iterations));
        if (plan.repetitions > 0)
            b->Repetitions(plan.repetitions);
    }
}

} // namespace morvel::bench
