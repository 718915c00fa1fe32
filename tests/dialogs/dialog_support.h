// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/property_store.h"
#include "testing/scripted_prompter.h"
#include "view/list_view.h"

#include <string>

namespace morvel::testing {

// "key=value" per entry in stored order, joined by "; ".
inline std::string storeText(const PropertyStore& store) {
    std::string text;
    for (const ListEntry& entry : store)
        text += (text.empty() ? "" : "; ") + entry.Key + "=" + entry.Value.toText();
    return text;
}

// "text|sub item 1|..." per row in list order, joined by "; ".
inline std::string rowsText(const view::ListView& list) {
    std::string text;
    for (std::int32_t i = 1; i <= list.count(); ++i) {
        text.append(text.empty() ? "" : "; ").append(list.item(i).text());
        for (std::int32_t sub = 1; sub < list.columnCount(); ++sub)
            text.append("|").append(list.item(i).subItem(sub));
    }
    return text;
}

// The last prompt as "prompt|buttons|icon|title", an input box as "prompt|title|default".
inline std::string lastPrompt(const testkit::ScriptedPrompter& prompter) {
    if (prompter.prompts().empty())
        return "(none)";
    if (const auto* box = std::get_if<view::InputBoxRequest>(&prompter.prompts().back()))
        return box->prompt + "|" + box->title + "|" + box->defaultText;
    const char* const buttons[] = {"OK", "OKCancel", "YesNo", "YesNoCancel"};
    const char* const icons[] = {"None", "Critical", "Question", "Exclamation", "Information"};
    const auto& msg = std::get<view::MessageBoxRequest>(prompter.prompts().back());
    return msg.prompt + "|" + buttons[static_cast<int>(msg.buttons)] + "|" +
           icons[static_cast<int>(msg.icon)] + "|" + msg.title;
}

} // namespace morvel::testing
