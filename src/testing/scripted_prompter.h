// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

// Test doubles live in morvel::testkit, not morvel::testing, so that they never hide
// GoogleTest's ::testing inside a test written in namespace morvel.

#include "view/prompter.h"

#include <deque>
#include <string>
#include <variant>
#include <vector>

namespace morvel::testkit {

using view::InputBoxRequest;
using view::MessageBoxRequest;
using view::MsgBoxResult;

// A Prompter that answers from a queue and records every box it was asked to show, for tests and
// for driving the designer without a screen. With the queue empty a message box answers its
// safest button (No, Cancel or OK) and an input box is cancelled; unanswered() counts those.
class ScriptedPrompter : public view::Prompter {
public:
    using Prompt = std::variant<MessageBoxRequest, InputBoxRequest>;

    void answer(MsgBoxResult result) { m_answers.emplace_back(result); }
    void answer(std::string text) { m_answers.emplace_back(std::move(text)); }
    void answer(const char* text) { m_answers.emplace_back(std::string(text)); }

    MsgBoxResult messageBox(const MessageBoxRequest& request) override;
    std::string inputBox(const InputBoxRequest& request) override;

    const std::vector<Prompt>& prompts() const { return m_prompts; }
    // The prompt texts in order, message boxes and input boxes alike.
    std::vector<std::string> promptTexts() const;
    std::size_t pendingAnswers() const { return m_answers.size(); }
    std::size_t unanswered() const { return m_unanswered; }
    void reset();

private:
    std::deque<std::variant<MsgBoxResult, std::string>> m_answers;
    std::vector<Prompt> m_prompts;
    std::size_t m_unanswered = 0;
};

} // namespace morvel::testkit
