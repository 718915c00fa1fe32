// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "base/handler_policy.h"
#include "base/signal.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace morvel {
namespace {

TEST(Signal, ObserverDisconnectedDuringEmitIsNotCalledAgain) {
    Signal<int> signal;
    std::vector<std::string> calls;
    Connection second;
    auto first = signal.connect([&](int) {
        calls.push_back("first");
        second.disconnect();
    });
    second = signal.connect([&](int) { calls.push_back("second"); });
    signal.notify(1);
    signal.notify(2);
    EXPECT_EQ(calls, (std::vector<std::string>{"first", "first"}));
}

TEST(Signal, ConnectionGoingOutOfScopeDisconnects) {
    Signal<> signal;
    int calls = 0;
    {
        auto scoped = signal.connect([&] { ++calls; });
        signal.notify();
    }
    signal.notify();
    EXPECT_EQ(calls, 1);
}

// A handler may throw (a host's observer reaching a library error); the signal must come out of
// that emission idle, so that observers disconnected meanwhile are dropped and never called.
TEST(Signal, StaysUsableAfterAnObserverThrows) {
    Signal<> signal;
    std::vector<std::string> calls;
    Connection quiet;
    auto thrower = signal.connect([&] {
        calls.push_back("thrower");
        quiet.disconnect();
        throw InvalidOperationError("refused");
    });
    quiet = signal.connect([&] { calls.push_back("quiet"); });
    EXPECT_THROW(signal.notify(), InvalidOperationError);
    thrower.disconnect();
    auto later = signal.connect([&] { calls.push_back("later"); });
    signal.notify();
    EXPECT_EQ(calls, (std::vector<std::string>{"thrower", "later"}));
}

TEST(HandlerPolicy, LibraryErrorsAreSkippedOrEndTheBodyQuietly) {
    std::vector<int> ran;
    skipFailingSteps([&] { ran.push_back(1); }, [&] { throw NotFoundError("no field"); },
                     [&] { ran.push_back(3); });
    EXPECT_EQ(ran, (std::vector<int>{1, 3}));
    bool after = false;
    endQuietly([&] {
        throw NoCurrentFieldError();
        after = true;
    });
    EXPECT_FALSE(after);
}

TEST(HandlerPolicy, ProgrammerErrorsAreCountedAndReachTheCaller) {
    const long before = unexpectedFailureCount();
    std::vector<int> ran;
    EXPECT_THROW(
        skipFailingSteps([&] { throw std::out_of_range("bug"); }, [&] { ran.push_back(2); }),
        std::out_of_range);
    EXPECT_THROW(endQuietly([] { throw std::logic_error("bug"); }), std::logic_error);
    EXPECT_TRUE(ran.empty());
    EXPECT_EQ(unexpectedFailureCount(), before + 2);
}

} // namespace
} // namespace morvel
