// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/control.h"

#include <cstdint>
#include <string>

namespace morvel::view {

// A caption. Also what a form's label columns are made of.
class Label : public Control {
public:
    using Control::Control;
    const std::string& caption() const { return m_caption; }
    void setCaption(std::string caption);
    bool focusable() const override { return false; }

private:
    std::string m_caption;
};

// A push button. click() is the user's click: it does nothing unless the button could take the
// focus (enabled and shown). Code that means to run the handler calls the handler itself.
class Button : public Control {
public:
    using Control::Control;
    const std::string& caption() const { return m_caption; }
    void setCaption(std::string caption);
    bool click();

    Signal<> Click;

private:
    std::string m_caption;
};

// A check box: value 0 unchecked, 1 checked, 2 greyed. Setting a different value raises Click,
// from code as from the user.
class CheckBox : public Control {
public:
    using Control::Control;
    const std::string& caption() const { return m_caption; }
    void setCaption(std::string caption);
    std::int32_t value() const { return m_value; }
    void setValue(std::int32_t value);
    // The user's click: toggles between checked and unchecked.
    bool click();

    Signal<> Click;

private:
    std::string m_caption;
    std::int32_t m_value = 0;
};

} // namespace morvel::view
