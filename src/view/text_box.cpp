// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "view/text_box.h"

#include <algorithm>

namespace morvel::view {

void TextBox::setText(std::string text) {
    if (text == m_text)
        return;
    m_text = std::move(text);
    m_selStart = std::min(m_selStart, static_cast<std::int32_t>(m_text.size()));
    m_selLength = 0;
    notify(Property::Text);
    Change.notify();
}

bool TextBox::type(std::string text) {
    if (m_locked || !focusable())
        return false;
    setFocus();
    setText(std::move(text));
    return true;
}

void TextBox::setLocked(bool locked) {
    if (locked == m_locked)
        return;
    m_locked = locked;
    notify(Property::Locked);
}

void TextBox::select(std::int32_t start, std::int32_t length) {
    const auto size = static_cast<std::int32_t>(m_text.size());
    m_selStart = std::clamp(start, 0, size);
    m_selLength = std::clamp(length, 0, size - m_selStart);
    notify(Property::Selection);
}

void TextBox::selectAll() {
    select(0, static_cast<std::int32_t>(m_text.size()));
}

} // namespace morvel::view
