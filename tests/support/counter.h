// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"

namespace morvel::testing {

// Counts how often a signal is raised, for as long as it lives.
struct Counter {
    int count = 0;
    Connection connection;
    template <typename... A>
    explicit Counter(Signal<A...>& signal)
        : connection(signal.connect([this](const A&...) { ++count; })) {}
};

} // namespace morvel::testing
