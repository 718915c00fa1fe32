// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "control/morvel.h"
#include "history/history.h"

#include <cstddef>

namespace morvel::commands {

// Undo, redo and a jump to any step of a table's history, as a person asks for them from a menu,
// a key or the list of steps. The edit in progress is ended first, so that what was typed is a
// step of its own and the first one taken back. The steps are applied through the library, which
// the designer follows by itself; afterwards the field that the last step applied changed is
// shown, with the page of what changed, and the keyboard is on the field list (an undone removal
// puts the field back at its place, but gives the person no name box to type into).
class HistoryCommands {
public:
    explicit HistoryCommands(control::Morvel& designer)
        : m_designer(designer) {}

    // False, changing nothing, when there is no step to undo (or to redo).
    bool undo(History& history);
    bool redo(History& history);
    // Undoes or redoes until the first index steps are done (0: none); false when index is beyond
    // the history or already the present state.
    bool jumpTo(History& history, std::size_t index);

    // Ends the edit in progress: the focused box leaves the keyboard to the field list, so that a
    // box which stores its text on leaving stores it (as a step of its own).
    void commitEdit();

private:
    bool goTo(History& history, std::size_t index);
    // Shows where the step at 0-based i of the history changed the collection.
    void showStep(const History& history, std::size_t i);

    control::Morvel& m_designer;
};

} // namespace morvel::commands
