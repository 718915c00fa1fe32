// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>

namespace morvel::fuzz {

// Ends the run with a message when a property does not hold; libFuzzer then saves the input
// that broke it as a crash artifact.
inline void require(bool holds, const char* property) {
    if (holds)
        return;
    std::fprintf(stderr, "property broken: %s\n", property);
    std::abort();
}

} // namespace morvel::fuzz
