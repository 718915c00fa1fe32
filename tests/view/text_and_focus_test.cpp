// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "support/counter.h"
#include "view/container.h"
#include "view/form.h"
#include "view/simple_controls.h"
#include "view/tab_strip.h"
#include "view/text_box.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace morvel::view {
namespace {

using testing::Counter;

TEST(Focus, MovingTheFocusRaisesLostFocusOnTheControlThatHadIt) {
    Form form("f");
    Panel panel(&form, "pic", 1);
    TextBox first(&panel, "first");
    TextBox second(&panel, "second");
    std::vector<std::string> events;
    auto c1 = first.LostFocus.connect([&] { events.push_back("first lost"); });
    auto c2 = second.GotFocus.connect([&] { events.push_back("second got"); });
    EXPECT_TRUE(first.setFocus());
    EXPECT_TRUE(second.setFocus());
    EXPECT_EQ(events, (std::vector<std::string>{"first lost", "second got"}));
    EXPECT_TRUE(second.hasFocus());
}

TEST(Focus, DisabledHiddenOrInsideAHiddenPanelCannotTakeIt) {
    Form form("f");
    Panel panel(&form, "pic", 1);
    TextBox box(&panel, "txt");
    box.setEnabled(false);
    EXPECT_FALSE(box.setFocus());
    box.setEnabled(true);
    panel.setVisible(false);
    EXPECT_FALSE(box.setFocus());
    EXPECT_FALSE(box.type("x")) << "a person cannot type into a box they cannot see";
    panel.setVisible(true);
    EXPECT_TRUE(box.setFocus());
    EXPECT_EQ(form.focused(), &box);
}

TEST(Controls, CheckBoxButtonPanelAndTabStripRaiseTheirEventsOnlyWhenSomethingHappens) {
    Form form("f");
    CheckBox check(&form, "chk");
    Button button(&form, "cmd");
    Panel panel(&form, "pic", 2);
    TabStrip tabs(&form, "TabStrip");
    Counter checkClicks(check.Click), buttonClicks(button.Click), resizes(panel.Resize),
        tabClicks(tabs.Click);
    check.setValue(1);
    check.setValue(1);
    check.click();
    EXPECT_EQ(check.value(), 0);
    button.setVisible(false);
    EXPECT_FALSE(button.click());
    button.setVisible(true);
    EXPECT_TRUE(button.click());
    panel.move(0, 0, 100, 100);
    panel.move(50, 50, 100, 100);
    panel.setWidth(200);
    EXPECT_ANY_THROW(panel.setWidth(-1));
    // Removing the selected tab falls back to the first without a click; adding one selects
    // nothing; a person's click on the selected tab still clicks.
    tabs.add(1, "Properties");
    tabs.add(2, "Link Properties");
    tabs.setSelectedIndex(2);
    tabs.remove(2);
    tabs.add(2, "Signature");
    EXPECT_EQ(tabs.selectedIndex(), 1);
    tabs.click(1);
    EXPECT_EQ(std::to_string(checkClicks.count) + std::to_string(buttonClicks.count) +
                  std::to_string(resizes.count) + std::to_string(tabClicks.count),
              "2122");
}

} // namespace
} // namespace morvel::view
