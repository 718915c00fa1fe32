// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/choice.h"

#include <span>
#include <string>
#include <string_view>

namespace morvel::catalogue {

// A choice list as one line, "text=itemData" per entry, so that texts, blanks and order are
// compared in one go.
inline std::string snapshot(std::span<const Choice> choices) {
    std::string text;
    for (const Choice& choice : choices)
        text += (text.empty() ? "" : "|") + std::string(choice.text) + "=" +
                std::to_string(choice.itemData);
    return text;
}

inline std::string snapshot(std::span<const std::string_view> names) {
    std::string text;
    for (std::string_view name : names)
        text += (text.empty() ? "" : ",") + std::string(name);
    return text;
}

} // namespace morvel::catalogue
