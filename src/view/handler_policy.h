#pragma once

#include <exception>
#include <utility>

namespace morvel::view {

// The three ways an event handler treats a failure, each written once:
//  - let it reach the host: plain code, no helper;
//  - skip the failing step and go on with the next: skipFailingSteps;
//  - end the handler quietly: endQuietly.

// Runs each step in turn; a step that throws is skipped and the next one runs.
template <typename... Steps> void skipFailingSteps(Steps&&... steps) {
    auto run = [](auto&& step) {
        try {
            std::forward<decltype(step)>(step)();
        } catch (const std::exception&) {
            // Deliberately passed over: this handler goes on with its next step.
        }
    };
    (run(std::forward<Steps>(steps)), ...);
}

// Runs the body; any failure ends it without a trace.
template <typename Body> void endQuietly(Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (const std::exception&) {
        // Deliberately silent: the handler just stops.
    }
}

} // namespace morvel::view
