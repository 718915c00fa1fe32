// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

namespace morvel {

// Sets a flag for the life of the guard and restores what it was, also when an exception
// leaves the scope.
class ScopedFlag {
public:
    explicit ScopedFlag(bool& flag)
        : m_flag(flag)
        , m_previous(std::exchange(flag, true)) {}
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;
    ~ScopedFlag() { m_flag = m_previous; }

private:
    bool& m_flag;
    bool m_previous;
};

} // namespace morvel
