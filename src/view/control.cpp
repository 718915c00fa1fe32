// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "view/control.h"

#include "base/error.h"
#include "view/container.h"
#include "view/form.h"

#include <algorithm>

namespace morvel::view {

Control::Control(Container* parent, std::string name, std::int32_t index)
    : m_parent(parent)
    , m_name(std::move(name))
    , m_index(index) {
    if (m_parent)
        m_parent->m_children.push_back(this);
}

Control::~Control() {
    if (Form* owner = form(); owner && owner != this)
        owner->forget(*this);
    if (m_parent)
        std::erase(m_parent->m_children, this);
}

Form* Control::form() {
    Control* top = this;
    while (top->m_parent)
        top = top->m_parent;
    return dynamic_cast<Form*>(top);
}

void Control::setEnabled(bool enabled) {
    if (enabled == m_enabled)
        return;
    m_enabled = enabled;
    notify(Property::Enabled);
}

void Control::setVisible(bool visible) {
    if (visible == m_visible)
        return;
    m_visible = visible;
    notify(Property::Visible);
}

bool Control::shown() const {
    for (const Control* each = this; each; each = each->m_parent)
        if (!each->m_visible)
            return false;
    return true;
}

void Control::setGeometry(const Rect& rect) {
    if (rect.width < 0 || rect.height < 0)
        throw InvalidOperationError("\"" + m_name + "\" cannot have a negative size.");
    if (rect == m_geometry)
        return;
    const Rect old = std::exchange(m_geometry, rect);
    notify(Property::Geometry);
    geometryChanged(old);
}

void Control::setLeft(std::int32_t left) {
    setGeometry({left, top(), width(), height()});
}
void Control::setTop(std::int32_t top) {
    setGeometry({left(), top, width(), height()});
}
void Control::setWidth(std::int32_t width) {
    setGeometry({left(), top(), width, height()});
}
void Control::setHeight(std::int32_t height) {
    setGeometry({left(), top(), width(), height});
}
void Control::move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    setGeometry({left, top, width, height});
}

void Control::setFontName(std::string name) {
    if (name == m_fontName)
        return;
    m_fontName = std::move(name);
    notify(Property::Font);
}

bool Control::focusable() const {
    for (const Control* each = this; each; each = each->m_parent)
        if (!each->m_visible || !each->m_enabled)
            return false;
    return true;
}

bool Control::hasFocus() const {
    const Control* top = this;
    while (top->m_parent)
        top = top->m_parent;
    const auto* owner = dynamic_cast<const Form*>(top);
    return owner && owner->focused() == this;
}

bool Control::setFocus() {
    Form* owner = form();
    return owner && owner->setFocusTo(*this);
}

void Control::geometryChanged(const Rect&) {}

void Container::geometryChanged(const Rect& old) {
    if (old.width != width() || old.height != height())
        Resize.notify();
}

} // namespace morvel::view
