// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace morvel::bench {

// The process's own accounting of its memory, to measure what a structure costs by the difference
// before and after building it.
struct ProcessMemory {
    // Bytes the allocator has handed out and not taken back, chunk overhead included (mallinfo2).
    std::size_t heapInUse;
    // Resident set size from /proc/self/statm.
    std::size_t resident;

    static ProcessMemory now();
};

} // namespace morvel::bench
