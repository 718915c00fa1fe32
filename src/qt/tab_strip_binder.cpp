// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/tab_strip_binder.h"

#include <QEvent>
#include <QFrame>
#include <QSignalBlocker>
#include <QTabBar>

namespace morvel::qt {

TabStripBinder::TabStripBinder(FormBinding& binding, view::TabStrip& strip, QWidget& parent)
    : ControlBinder(binding, strip, *new QWidget(&parent))
    , m_strip(strip)
    , m_bar(new QTabBar(&widget()))
    , m_page(new QFrame(&widget())) {
    m_page->setFrameShape(QFrame::StyledPanel);
    m_bar->raise();
    m_bar->setDrawBase(false);
    m_bar->setExpanding(false);
    // The strip's focus is the bar's: focus events of the bar are the control's.
    widget().setFocusProxy(m_bar);
    m_bar->installEventFilter(this);
    widget().installEventFilter(this);
    QObject::connect(m_bar, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index < 0)
            return;
        act([&] { m_strip.click(index + 1); });
        syncTabs();
    });
    QObject::connect(m_bar, &QTabBar::currentChanged, this, [this](int index) {
        // A click has gone through tabBarClicked already; this is the keyboard.
        if (index < 0 || index + 1 == m_strip.selectedIndex())
            return;
        act([&] { m_strip.click(index + 1); });
        syncTabs();
    });
}

bool TabStripBinder::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &widget() && event->type() == QEvent::Resize)
        arrange();
    if (watched == m_bar)
        return ControlBinder::eventFilter(&widget(), event);
    return watched == &widget() ? false : ControlBinder::eventFilter(watched, event);
}

void TabStripBinder::toWidget(view::Property what) {
    switch (what) {
    case view::Property::Tabs:
    case view::Property::Selection:
        syncTabs();
        return;
    default:
        ControlBinder::toWidget(what);
    }
}

void TabStripBinder::syncTabs() {
    const QSignalBlocker blocker(m_bar);
    const int count = m_strip.count();
    while (m_bar->count() > count)
        m_bar->removeTab(m_bar->count() - 1);
    for (int i = 0; i < count; ++i) {
        const QString caption = QString::fromStdString(m_strip.caption(i + 1));
        if (i < m_bar->count())
            m_bar->setTabText(i, caption);
        else
            m_bar->addTab(caption);
    }
    m_bar->setCurrentIndex(m_strip.selectedIndex() - 1);
    arrange();
}

void TabStripBinder::arrange() {
    const int barHeight = m_bar->sizeHint().height();
    m_bar->setGeometry(0, 0, widget().width(), barHeight);
    m_page->setGeometry(0, barHeight - 1, widget().width(), widget().height() - barHeight + 1);
}

} // namespace morvel::qt
