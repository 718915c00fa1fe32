// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/control.h"

#include <cstdint>
#include <string>
#include <vector>

namespace morvel::view {

// A tab strip. Tabs are addressed by 1-based index. Selecting another tab raises Click, from code
// as from the user. Removing the selected tab selects the first one without Click.
class TabStrip : public Control {
public:
    using Control::Control;

    std::int32_t count() const { return static_cast<std::int32_t>(m_tabs.size()); }
    const std::string& caption(std::int32_t index) const;
    // Inserts a tab at the 1-based index (count() + 1 appends).
    void add(std::int32_t index, std::string caption);
    void remove(std::int32_t index);

    // 0 when there are no tabs.
    std::int32_t selectedIndex() const { return m_selected; }
    void setSelectedIndex(std::int32_t index);
    // The user's click on a tab: selects it and raises Click even when it was selected already.
    bool click(std::int32_t index);

    Signal<> Click;

private:
    void checkIndex(std::int32_t index) const;

    std::vector<std::string> m_tabs;
    std::int32_t m_selected = 0;
};

} // namespace morvel::view
