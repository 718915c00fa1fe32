// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace morvel::reliability {

// One thing a person or the host does to the designer, recorded as data so that a run can be
// replayed and shrunk. Positions and indexes are taken modulo what exists when the event is
// replayed, so an event still means something after earlier events were dropped.
struct Event {
    enum class Kind : std::uint8_t {
        // The person, on the designer.
        ClickRow,    // number: row position
        Type,        // target: text box or editable combo; text; mode (Typing)
        Pick,        // target: combo; number: entry index
        ClickCheck,  // target
        ClickTab,    // number: 1 or 2
        Focus,       // target: the control that takes the focus
        Find,        // answers: the search text, then Yes / No for the wrap question
        FindNext,    // answers: Yes / No
        EditList,    // steps: what the person does in the list values editor
        EditLocales, // steps: what the person does in the locale editor
        Resize,      // number, number2: width and height in twips
        // The host.
        HostAdd,       // text: name; number: type; number2: position (0 appends)
        HostRemove,    // number: position
        HostReplace,   // seed, number: field count
        HostCanModify, // number: 0 or 1
        HostDatabase,  // number: 0 detaches, 1 attaches
        HostRename,    // number: position; number2: 1 for the field shown; text: the new name
        HostWrite,     // number: position; number2: 1 for the field shown; seed: the write
        HostMove,      // number, number2: from and to
        // The history, as the Edit menu and the list of steps run it.
        Undo,
        Redo,
        JumpInHistory, // number: the step, modulo the steps there are
        // Steps inside the editors.
        DialogButton,    // target: button; answers for its boxes
        DialogClickRow,  // number
        DialogType,      // target; text
        DialogLabelEdit, // number: row; text
        DialogKey,       // number: key code
        DialogResize,    // number, number2
    };
    enum class Typing : std::uint8_t { Replace, Append, Backspace };

    Kind kind = Kind::ClickRow;
    std::string target = {};
    std::string text = {};
    std::int32_t number = 0;
    std::int32_t number2 = 0;
    Typing typing = Typing::Replace;
    std::uint64_t seed = 0;
    // Answers for the message and input boxes the event raises: "?Yes", "?No" for message boxes,
    // any other text for an input box.
    std::vector<std::string> answers = {};
    std::vector<Event> steps = {};
};

// One line a person can read: `type txtSize append "12ab"`, `host remove row 4`...
std::string describe(const Event& event);

} // namespace morvel::reliability
