// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "qt/control_binder.h"
#include "view/tab_strip.h"

class QFrame;
class QTabBar;

namespace morvel::qt {

// TabStrip -> a QTabBar across the top of a framed page area. The panels that show the pages are
// the form's own controls laid over that area; the strip only shows which tab is selected.
// A click on a tab is TabStrip::click (Click also on the tab that is selected already); moving
// with the keyboard clicks the tab it lands on.
class TabStripBinder : public ControlBinder {
public:
    TabStripBinder(FormBinding& binding, view::TabStrip& strip, QWidget& parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void toWidget(view::Property what) override;
    void syncTabs();
    void arrange();

    view::TabStrip& m_strip;
    QTabBar* m_bar;
    QFrame* m_page;
};

} // namespace morvel::qt
