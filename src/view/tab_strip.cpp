// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "view/tab_strip.h"

#include "base/error.h"

namespace morvel::view {

void TabStrip::checkIndex(std::int32_t index) const {
    if (index < 1 || index > count())
        throw InvalidOperationError("\"" + name() + "\" has no tab " + std::to_string(index) + ".");
}

const std::string& TabStrip::caption(std::int32_t index) const {
    checkIndex(index);
    return m_tabs[static_cast<std::size_t>(index - 1)];
}

void TabStrip::add(std::int32_t index, std::string caption) {
    if (index < 1 || index > count() + 1)
        throw InvalidOperationError("\"" + name() + "\" cannot add a tab at " +
                                    std::to_string(index) + ".");
    m_tabs.insert(m_tabs.begin() + (index - 1), std::move(caption));
    if (m_selected == 0)
        m_selected = 1;
    else if (m_selected >= index)
        ++m_selected;
    notify(Property::Tabs);
}

void TabStrip::remove(std::int32_t index) {
    checkIndex(index);
    m_tabs.erase(m_tabs.begin() + (index - 1));
    if (m_selected == index)
        m_selected = m_tabs.empty() ? 0 : 1;
    else if (m_selected > index)
        --m_selected;
    notify(Property::Tabs);
}

void TabStrip::setSelectedIndex(std::int32_t index) {
    checkIndex(index);
    if (index == m_selected)
        return;
    m_selected = index;
    notify(Property::Selection);
    Click.notify();
}

bool TabStrip::click(std::int32_t index) {
    if (!focusable())
        return false;
    checkIndex(index);
    if (index != m_selected) {
        m_selected = index;
        notify(Property::Selection);
    }
    Click.notify();
    return true;
}

} // namespace morvel::view
