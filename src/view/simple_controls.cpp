// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "view/simple_controls.h"

namespace morvel::view {

void Label::setCaption(std::string caption) {
    if (caption == m_caption)
        return;
    m_caption = std::move(caption);
    notify(Property::Caption);
}

void Button::setCaption(std::string caption) {
    if (caption == m_caption)
        return;
    m_caption = std::move(caption);
    notify(Property::Caption);
}

bool Button::click() {
    if (!focusable())
        return false;
    setFocus();
    Click.notify();
    return true;
}

void CheckBox::setCaption(std::string caption) {
    if (caption == m_caption)
        return;
    m_caption = std::move(caption);
    notify(Property::Caption);
}

void CheckBox::setValue(std::int32_t value) {
    if (value == m_value)
        return;
    m_value = value;
    notify(Property::Value);
    Click.notify();
}

bool CheckBox::click() {
    if (!focusable())
        return false;
    setFocus();
    setValue(m_value == 1 ? 0 : 1);
    return true;
}

} // namespace morvel::view
