// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "testing/scripted_prompter.h"

namespace morvel::testkit {

using view::MsgBoxButtons;

MsgBoxResult ScriptedPrompter::messageBox(const MessageBoxRequest& request) {
    m_prompts.emplace_back(request);
    if (!m_answers.empty()) {
        if (auto* result = std::get_if<MsgBoxResult>(&m_answers.front())) {
            const MsgBoxResult answer = *result;
            m_answers.pop_front();
            return answer;
        }
    }
    ++m_unanswered;
    switch (request.buttons) {
    case MsgBoxButtons::OK:
        return MsgBoxResult::OK;
    case MsgBoxButtons::OKCancel:
        return MsgBoxResult::Cancel;
    case MsgBoxButtons::YesNo:
        return MsgBoxResult::No;
    case MsgBoxButtons::YesNoCancel:
    case MsgBoxButtons::YesNoOKCancel:
        return MsgBoxResult::Cancel;
    }
    return MsgBoxResult::Cancel;
}

std::string ScriptedPrompter::inputBox(const InputBoxRequest& request) {
    m_prompts.emplace_back(request);
    if (!m_answers.empty()) {
        if (auto* text = std::get_if<std::string>(&m_answers.front())) {
            std::string answer = std::move(*text);
            m_answers.pop_front();
            return answer;
        }
    }
    ++m_unanswered;
    return {};
}

std::vector<std::string> ScriptedPrompter::promptTexts() const {
    std::vector<std::string> texts;
    for (const Prompt& prompt : m_prompts)
        std::visit([&](const auto& request) { texts.push_back(request.prompt); }, prompt);
    return texts;
}

void ScriptedPrompter::reset() {
    m_answers.clear();
    m_prompts.clear();
    m_unanswered = 0;
}

} // namespace morvel::testkit
