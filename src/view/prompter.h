// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace morvel::view {

// YesNoOKCancel: four ways on, for a host's question with one more answer than YesNoCancel.
enum class MsgBoxButtons : std::uint8_t { OK, OKCancel, YesNo, YesNoCancel, YesNoOKCancel };
enum class MsgBoxIcon : std::uint8_t { None, Critical, Question, Exclamation, Information };
enum class MsgBoxResult : std::uint8_t { OK, Cancel, Yes, No };

// An empty title means the application's own title. buttonTexts, when given, name the buttons in
// their order (Yes, No, OK, Cancel) by what they do, for a host's question whose answers are not
// plainly yes and no; the answers stay Yes, No and Cancel.
struct MessageBoxRequest {
    std::string prompt;
    MsgBoxButtons buttons = MsgBoxButtons::OK;
    MsgBoxIcon icon = MsgBoxIcon::None;
    std::string title;
    std::vector<std::string> buttonTexts{};
};

struct InputBoxRequest {
    std::string prompt;
    std::string title;
    std::string defaultText;
};

// Modal message and input boxes, provided by the host: real dialogs in the Qt front end, a
// scripted answerer in tests.
class Prompter {
public:
    virtual ~Prompter() = default;
    virtual MsgBoxResult messageBox(const MessageBoxRequest& request) = 0;
    // The typed text; Cancel gives the empty text.
    virtual std::string inputBox(const InputBoxRequest& request) = 0;
};

} // namespace morvel::view
