// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "reliability/designer_event.h"

#include <iterator>

namespace morvel::reliability {

namespace {

// In the order of Event::Kind.
constexpr const char* kKindNames[] = {
    "click row",     "type into",    "pick",         "click",         "click tab",
    "focus",         "cmdFind",      "cmdFindNext",  "cmdList",       "cmdLocale",
    "resize",        "host adds",    "host removes", "host replaces", "host CanModifyExisting",
    "host Database", "host renames", "host writes",  "host moves",    "undo",
    "redo",          "jump to step", "button",       "click row",     "type into",
    "rename row",    "key",          "resize"};
static_assert(std::size(kKindNames) == static_cast<std::size_t>(Event::Kind::DialogResize) + 1,
              "one name for every kind of event");
constexpr const char* kTypingNames[] = {"replace with", "append", "backspace"};

// Quoted, with bytes that are not printable ASCII written as \xNN so a reproduction is exact.
std::string quoted(const std::string& text) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out = "\"";
    for (char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte >= 0x7F || c == '"' || c == '\\')
            out.append("\\x").append(1, kHex[byte >> 4U]).append(1, kHex[byte & 0xFU]);
        else
            out += c;
    }
    return out + "\"";
}

} // namespace

// Every part of the event, whether its kind reads it or not: a reproduction needs no table of
// which kind reads which part.
std::string describe(const Event& event) {
    std::string out = kKindNames[static_cast<int>(event.kind)];
    if (!event.target.empty())
        out += " " + event.target;
    if (event.kind == Event::Kind::Type)
        out += std::string(" ") + kTypingNames[static_cast<int>(event.typing)];
    if (!event.text.empty() || event.kind == Event::Kind::Type)
        out += " " + quoted(event.text);
    out += " " + std::to_string(event.number) + " " + std::to_string(event.number2);
    if (event.seed != 0)
        out += " seed " + std::to_string(event.seed);
    for (const std::string& answer : event.answers)
        out += " answering " + (answer.starts_with('?') ? answer.substr(1) : quoted(answer));
    if (!event.steps.empty()) {
        out += " {";
        for (const Event& step : event.steps)
            out += " " + describe(step) + ";";
        out += " }";
    }
    return out;
}

} // namespace morvel::reliability
