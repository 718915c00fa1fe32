// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/container.h"

#include <string>

namespace morvel::view {

// The top of a control tree: a dialog, or the designer control itself. It keeps track of the
// keyboard focus, and knows whether it is open (shown modally and not yet closed).
class Form : public Container {
public:
    explicit Form(std::string name);

    const std::string& caption() const { return m_caption; }
    void setCaption(std::string caption);

    // The frame around the inner area (borders and title bar), in twips. Width and height are
    // the outer size; scaleWidth and scaleHeight the inner one.
    void setFrame(std::int32_t horizontal, std::int32_t vertical);
    std::int32_t scaleWidth() const override;
    std::int32_t scaleHeight() const override;

    Control* focused() const { return m_focused; }
    // Moves the focus: LostFocus on the control that had it, then GotFocus on the new one.
    bool setFocusTo(Control& control);
    // Takes the focus from whichever control has it, raising its LostFocus.
    void clearFocus();
    // Forgets a control that goes away, without events.
    void forget(const Control& control);

    bool isOpen() const { return m_open; }
    // Called by whoever shows the form modally.
    void opened();
    // Closes the form; a modal show returns. Raises Closed once.
    void close();
    Signal<> Closed;

private:
    std::string m_caption;
    Control* m_focused = nullptr;
    std::int32_t m_frameHorizontal = 0;
    std::int32_t m_frameVertical = 0;
    bool m_open = false;
};

} // namespace morvel::view
