// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace morvel {

// Who made a change: a listener such as a history tells the person's own actions from the
// host's commands, from undo and redo replaying steps, and from a merge or a paste.
enum class ChangeOrigin : std::uint8_t { Person, Host, Undo, Redo, Merge, Paste };

const char* originName(ChangeOrigin origin);

// The action a notification belongs to. Every notification of one step carries the same
// sequence number; a later step has a greater one. A library call made outside any step is a
// step of its own (a fresh number, origin Host) and raises no stepBegan / stepEnded.
struct StepTag {
    std::uint64_t sequence = 0;
    ChangeOrigin origin = ChangeOrigin::Host;
    friend bool operator==(const StepTag&, const StepTag&) = default;
};

// A step as its stepBegan and stepEnded notifications tell it; text is valid during the call.
struct StepInfo {
    StepTag tag;
    std::string_view text;
};

} // namespace morvel
