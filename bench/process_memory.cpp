// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "process_memory.h"

#include <fstream>
#include <malloc.h>
#include <unistd.h>

namespace morvel::bench {

ProcessMemory ProcessMemory::now() {
    const struct mallinfo2 info = mallinfo2();
    std::size_t pages = 0;
    std::size_t residentPages = 0;
    std::ifstream("/proc/self/statm") >> pages >> residentPages;
    return {info.uordblks + info.hblkhd,
            residentPages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE))};
}

} // namespace morvel::bench
