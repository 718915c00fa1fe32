// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "view/geometry.h"

#include <cstdint>
#include <string>
#include <vector>

namespace morvel::view {

class Container;
class Form;

// What changed in a control, for a front end that mirrors it.
enum class Property : std::uint8_t {
    Text,
    Caption,
    Enabled,
    Visible,
    Locked,
    Geometry,
    Items,
    ListIndex,
    Value,
    Selection,
    Tabs,
    Columns,
    Focus,
    Font,
};

// A headless control: name, state, geometry in twips, and two channels. Events (Change, Click,
// LostFocus...) are for the logic that owns the form and are raised synchronously, the way a form's
// code expects them. changed() is for a front end: it says what changed and must never call back
// into the logic.
class Control {
public:
    // index is the control's position in a control array (pic(1) to pic(7)), 0 when it is none.
    Control(Container* parent, std::string name, std::int32_t index = 0);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    const std::string& name() const { return m_name; }
    std::int32_t index() const { return m_index; }
    Container* parent() const { return m_parent; }
    Form* form();

    bool enabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    bool visible() const { return m_visible; }
    void setVisible(bool visible);
    // Visible itself and every container up to the form visible as well.
    bool shown() const;

    const Rect& geometry() const { return m_geometry; }
    void setGeometry(const Rect& rect);
    std::int32_t left() const { return m_geometry.left; }
    std::int32_t top() const { return m_geometry.top; }
    std::int32_t width() const { return m_geometry.width; }
    std::int32_t height() const { return m_geometry.height; }
    void setLeft(std::int32_t left);
    void setTop(std::int32_t top);
    // Negative sizes are refused with InvalidOperationError, as a real window would refuse them.
    void setWidth(std::int32_t width);
    void setHeight(std::int32_t height);
    void move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height);

    const std::string& fontName() const { return m_fontName; }
    void setFontName(std::string name);

    // Order of the focus chain within the form.
    std::int32_t tabIndex() const { return m_tabIndex; }
    void setTabIndex(std::int32_t tabIndex) { m_tabIndex = tabIndex; }
    // Whether it can take the keyboard focus: enabled and shown, with every container enabled.
    virtual bool focusable() const;
    bool hasFocus() const;
    // Gives it the focus; false, and nothing happens, when it cannot take it.
    bool setFocus();

    Signal<> GotFocus;
    Signal<> LostFocus;
    Signal<Property> changed;

protected:
    void notify(Property what) { changed.notify(what); }
    virtual void geometryChanged(const Rect& old);

private:
    Container* m_parent;
    std::string m_name;
    std::string m_fontName;
    Rect m_geometry;
    std::int32_t m_index;
    std::int32_t m_tabIndex = 0;
    bool m_enabled = true;
    bool m_visible = true;
};

} // namespace morvel::view
