// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "view/form.h"

namespace morvel::view {

Form::Form(std::string name)
    : Container(nullptr, std::move(name)) {}

void Form::setCaption(std::string caption) {
    if (caption == m_caption)
        return;
    m_caption = std::move(caption);
    notify(Property::Caption);
}

void Form::setFrame(std::int32_t horizontal, std::int32_t vertical) {
    m_frameHorizontal = horizontal;
    m_frameVertical = vertical;
}

std::int32_t Form::scaleWidth() const {
    return width() - m_frameHorizontal;
}
std::int32_t Form::scaleHeight() const {
    return height() - m_frameVertical;
}

bool Form::setFocusTo(Control& control) {
    if (&control == m_focused)
        return true;
    if (!control.focusable() || control.form() != this)
        return false;
    Control* previous = std::exchange(m_focused, &control);
    if (previous) {
        previous->changed.notify(Property::Focus);
        previous->LostFocus.notify();
    }
    // A LostFocus handler may have moved the focus on; only the winner gets GotFocus.
    if (m_focused == &control) {
        control.changed.notify(Property::Focus);
        control.GotFocus.notify();
    }
    return m_focused == &control;
}

void Form::clearFocus() {
    Control* previous = std::exchange(m_focused, nullptr);
    if (!previous)
        return;
    previous->changed.notify(Property::Focus);
    previous->LostFocus.notify();
}

void Form::forget(const Control& control) {
    if (m_focused == &control)
        m_focused = nullptr;
}

void Form::opened() {
    m_open = true;
}

void Form::close() {
    if (!m_open)
        return;
    m_open = false;
    Closed.notify();
}

} // namespace morvel::view
