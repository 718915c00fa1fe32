// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "reliability/designer_event.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace morvel::reliability {

// Where a replay broke a rule, and which.
struct Failure {
    std::size_t index;
    std::string message;
};

// Replays events on a fresh designer; the first broken rule, if any.
std::optional<Failure> replay(const std::vector<Event>& events);

// Removes chunks of events, then steps inside the editors, while the replay still breaks the same
// rule (the same message up to its first quoted value), halving the chunks down to single events.
// Stops early when the time is up.
std::vector<Event> shrink(std::vector<Event> events, const Failure& failure,
                          std::chrono::seconds budget);

} // namespace morvel::reliability
