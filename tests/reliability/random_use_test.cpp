// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// Long random use of the whole designer: a seeded run of events a person and a host can cause,
// with every invariant checked after each one. A failing seed prints a shrunk reproduction.
//
// MORVEL_RANDOM_EVENTS sets the events of the whole suite (shared among the seeds); by default a
// million, and fewer in a sanitizer build, which runs the same code many times slower.

#include "base/handler_policy.h"
#include "reliability/designer_session.h"
#include "reliability/event_shrinker.h"

#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>

namespace morvel::reliability {
namespace {

constexpr std::uint64_t kSeedBase = 0x5EED0000;
constexpr int kSeeds = 8;

#if defined(__SANITIZE_ADDRESS__)
constexpr std::uint64_t kDefaultEvents = 80'000;
#else
constexpr std::uint64_t kDefaultEvents = 1'000'000;
#endif

std::uint64_t eventsPerSeed() {
    const char* configured = std::getenv("MORVEL_RANDOM_EVENTS");
    const std::uint64_t total =
        configured ? std::strtoull(configured, nullptr, 10) : kDefaultEvents;
    return std::max<std::uint64_t>(total / kSeeds, 1);
}

class RandomUse : public ::testing::TestWithParam<int> {};

TEST_P(RandomUse, KeepsEveryInvariantAndLosesNothing) {
    const std::uint64_t seed = kSeedBase + static_cast<std::uint64_t>(GetParam());
    const std::uint64_t count = eventsPerSeed();
    RandomSource random(seed);
    DesignerSession session;
    std::vector<Event> events;
    events.reserve(count);

    const auto started = std::chrono::steady_clock::now();
    for (std::uint64_t i = 0; i < count; ++i) {
        events.push_back(session.generate(random));
        if (auto broken = session.apply(events.back())) {
            const Failure failure{events.size() - 1, *broken};
            const auto shrunk = shrink(events, failure, std::chrono::seconds(90));
            std::string reproduction;
            for (std::size_t e = 0; e < shrunk.size(); ++e)
                reproduction += "  " + std::to_string(e + 1) + ". " + describe(shrunk[e]) + "\n";
            const auto replayed = replay(shrunk);
            FAIL() << "seed " << seed << ", event " << i + 1 << ": " << *broken << "\n"
                   << "shrunk to " << shrunk.size() << " events, which break: "
                   << (replayed ? replayed->message : std::string("(nothing: flaky?)")) << "\n"
                   << reproduction;
        }
    }
    EXPECT_EQ(session.undoAndRedoEverything(), std::nullopt) << "seed " << seed;
    EXPECT_EQ(unexpectedFailureCount(), 0)
        << "failures that are not the library's were passed over";
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    std::cout << "seed " << seed << ": " << count << " events (" << session.dialogSteps()
              << " steps inside the editors, " << session.allowedErrors()
              << " errors let through to the host) in " << seconds << " s\n";
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUse, ::testing::Range(1, kSeeds + 1));

} // namespace
} // namespace morvel::reliability
