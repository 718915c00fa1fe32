// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/designer_fixture.h"

#include <vector>

namespace morvel::testing {
namespace {

using Layout = DesignerTest;

bool overlap(const view::Rect& a, const view::Rect& b) {
    return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

// Every visible child lies inside the panel, and no two of them overlap.
void expectTidy(const view::Container& panel, const std::string& situation) {
    std::vector<const view::Control*> shown;
    for (const view::Control* child : panel.children())
        if (child->visible())
            shown.push_back(child);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const view::Rect& a = shown[i]->geometry();
        EXPECT_TRUE(a.left >= 0 && a.right() <= panel.scaleWidth() && a.top >= 0 &&
                    a.bottom() <= panel.height())
            << shown[i]->name() << " leaves pic(" << panel.index() << ") " << situation;
        for (std::size_t j = i + 1; j < shown.size(); ++j)
            EXPECT_FALSE(overlap(a, shown[j]->geometry()))
                << shown[i]->name() << " overlaps " << shown[j]->name() << " " << situation;
    }
}

TEST_F(Layout, BelowTheMinimumTheControlGrowsAndLaysOutAtTheMinimum) {
    designer.move(0, 0, 4000, 7000);
    EXPECT_EQ(designer.geometry(), (view::Rect{0, 0, 5000, 7000}));
    EXPECT_EQ(designer.lst.width(), 5000);
    designer.move(0, 0, 6000, 5000);
    EXPECT_EQ(designer.geometry(), (view::Rect{0, 0, 6000, 5800}));
    EXPECT_EQ(designer.TabStrip.geometry().bottom(), 5800);
}

TEST_F(Layout, TabStripFillsTheBottomAndThePanelsSitInsideIt) {
    for (const auto& [w, h] : {std::pair{5000, 5800}, {7777, 6123}, {15000, 12000}}) {
        designer.move(0, 0, w, h);
        const view::Rect tabs = designer.TabStrip.geometry();
        EXPECT_EQ(tabs.bottom(), h);
        EXPECT_EQ(tabs.top - designer.lst.geometry().bottom(), 120);
        // 480 below the tab strip's top, 120 in from either side and from its bottom.
        for (int i = 1; i <= 7; ++i)
            EXPECT_EQ(designer.pic(i).geometry(),
                      (view::Rect{120, tabs.top + 480, w - 240, tabs.height - 600}))
                << i;
    }
}

TEST_F(Layout, NothingOverlapsAtTheMinimumOrALargeSize) {
    auto defs = give({{"Owner", 1000}, {"Objects", 1000}});
    defs->Item("Objects")->Properties().SetValue("zrDirect.OT", 3, true);
    for (const auto& [w, h] : {std::pair{5000, 5800}, {16000, 12000}}) {
        designer.move(0, 0, w, h);
        const std::string size = "at " + std::to_string(w) + " x " + std::to_string(h);
        // The loader may leave the size box and the values button showing together.
        for (view::Control* child : designer.pic(1).children())
            child->setVisible(true);
        designer.ArrangeTypeRow();
        expectTidy(designer.pic(1), size);
        clickRow("Owner");
        expectTidy(designer.pic(2), "for a link to a table " + size);
        clickRow("Objects");
        expectTidy(designer.pic(2), "for a link to objects " + size);
        for (int i = 3; i <= 7; ++i)
            expectTidy(designer.pic(i), size);

        // The find buttons share the tab strip's header row with the tabs alone.
        const view::Rect find = designer.cmdFind.geometry();
        const view::Rect next = designer.cmdFindNext.geometry();
        EXPECT_EQ(next.right(), w - 120);
        EXPECT_TRUE(find.right() < next.left && find.left >= 0);
        EXPECT_TRUE(next.top >= designer.TabStrip.top() && next.bottom() <= designer.pic(1).top());
    }
}

} // namespace
} // namespace morvel::testing
