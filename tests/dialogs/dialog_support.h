#pragma once

#include "fields/property_store.h"
#include "view/list_view.h"
#include "view/scripted_prompter.h"

#include <gtest/gtest.h>
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
        const view::ListItem& item = list.item(i);
        text += (text.empty() ? "" : "; ") + item.text();
        for (std::int32_t sub = 1; sub < list.columnCount(); ++sub)
            text += "|" + item.subItem(sub);
    }
    return text;
}

// The message box asked last; fails the test when the last prompt was something else.
inline view::MessageBoxRequest lastMessage(const view::ScriptedPrompter& prompter) {
    if (prompter.prompts().empty()) {
        ADD_FAILURE() << "no prompt was shown";
        return {};
    }
    const auto* request = std::get_if<view::MessageBoxRequest>(&prompter.prompts().back());
    if (!request) {
        ADD_FAILURE() << "the last prompt was not a message box";
        return {};
    }
    return *request;
}

inline void expectMessage(const view::ScriptedPrompter& prompter, const std::string& prompt,
                          view::MsgBoxButtons buttons, view::MsgBoxIcon icon,
                          const std::string& title) {
    const view::MessageBoxRequest request = lastMessage(prompter);
    EXPECT_EQ(request.prompt, prompt);
    EXPECT_EQ(request.buttons, buttons);
    EXPECT_EQ(request.icon, icon);
    EXPECT_EQ(request.title, title);
}

} // namespace morvel::testing
