// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>

namespace morvel::testing {

// A test that needs a real X display with a window manager: without one it says so in the form
// that CTest counts as skipped (scripts/test starts a display for these tests).
inline bool skippedWithoutDisplay() {
    const char* display = std::getenv("DISPLAY");
    if (display && *display)
        return false;
    std::puts("SKIPPED: needs a real X display with a window manager (scripts/test starts one)");
    return true;
}

} // namespace morvel::testing
