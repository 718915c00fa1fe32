// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/control.h"

#include <cstdint>
#include <string>

namespace morvel::view {

// A single- or multi-line text box. Setting a different text raises Change, from code as from
// the user; a Change handler that sets its own box's text therefore re-enters itself.
class TextBox : public Control {
public:
    using Control::Control;

    const std::string& text() const { return m_text; }
    void setText(std::string text);
    // The user's typing: refused (false) when the box is locked or cannot take the focus.
    bool type(std::string text);

    // A locked box shows its text and keeps the focus, but the user cannot change it.
    bool locked() const { return m_locked; }
    void setLocked(bool locked);
    bool multiLine() const { return m_multiLine; }
    void setMultiLine(bool multiLine) { m_multiLine = multiLine; }

    std::int32_t selStart() const { return m_selStart; }
    std::int32_t selLength() const { return m_selLength; }
    void select(std::int32_t start, std::int32_t length);
    void selectAll();

    Signal<> Change;

private:
    std::string m_text;
    std::int32_t m_selStart = 0;
    std::int32_t m_selLength = 0;
    bool m_locked = false;
    bool m_multiLine = false;
};

} // namespace morvel::view
