// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/error.h"

#include <atomic>
#include <exception>
#include <utility>

namespace morvel {

// The three ways an event handler treats a failure, each written once:
//  - let it reach the host: plain code, no helper;
//  - skip the failing step and go on with the next: skipFailingSteps;
//  - end the handler quietly: endQuietly.
// Both helpers pass over the library's own failures (morvel::Error) only. Anything else is a
// programmer error: it is counted and goes on to the caller, so that no test can miss it.

namespace detail {
inline std::atomic<long>& unexpectedFailures() {
    static std::atomic<long> count{0};
    return count;
}

template <typename Step> void runPassingOverLibraryErrors(Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const Error&) {
        // Deliberately passed over: the policy of the calling handler.
    } catch (...) {
        ++unexpectedFailures();
        throw;
    }
}
} // namespace detail

// How many failures that were not library errors reached a policy helper since the program
// started. A correct program keeps this at zero; the random-use tests assert it.
inline long unexpectedFailureCount() {
    return detail::unexpectedFailures().load();
}

// Runs each step in turn; a step that fails with a library error is skipped and the next runs.
template <typename... Steps> void skipFailingSteps(Steps&&... steps) {
    (detail::runPassingOverLibraryErrors(std::forward<Steps>(steps)), ...);
}

// Runs the body; a library error ends it without a trace.
template <typename Body> void endQuietly(Body&& body) {
    detail::runPassingOverLibraryErrors(std::forward<Body>(body));
}

} // namespace morvel
