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

// Registers the benchmark once per plan, named "<name>/<fields>/...", timed in real time.
inline void registerPlans(const char* name, void (*function)(benchmark::State&),
                          benchmark::TimeUnit unit, std::initializer_list<SizePlan> plans) {
    for (const SizePlan& plan : plans) {
        auto* b = benchmark::RegisterBenchmark(name, function);
        b->Arg(plan.fields)->UseRealTime()->Unit(unit);
        if (plan.iterations > 0)
            b->Iterations(plan.iterations);
        if (plan.repetitions > 0)
            b->Repetitions(plan.repetitions);
    }
}

} // namespace morvel::bench
