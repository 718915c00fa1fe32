// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
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

TEST(TextBox, ChangeHandlerThatSetsItsOwnTextReentersUntilStable) {
    Form form("f");
    TextBox box(&form, "txt");
    std::vector<std::string> seen;
    // Strips one leading digit per pass, as the designer's name box does.
    auto c = box.Change.connect([&] {
        seen.push_back(box.text());
        if (!box.text().empty() && std::isdigit(static_cast<unsigned char>(box.text()[0])))
            box.setText(box.text().substr(1));
    });
    box.setText("12ab");
    EXPECT_EQ(box.text(), "ab");
    EXPECT_EQ(seen, (std::vector<std::string>{"12ab", "2ab", "ab"}));
    box.setText("ab");
    EXPECT_EQ(seen.size(), 3u) << "the same text raises no Change";
}

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

TEST(Controls, CheckBoxAndButtonEvents) {
    Form form("f");
    CheckBox check(&form, "chk");
    Button button(&form, "cmd");
    int checkClicks = 0;
    int buttonClicks = 0;
    auto c1 = check.Click.connect([&] { ++checkClicks; });
    auto c2 = button.Click.connect([&] { ++buttonClicks; });
    check.setValue(1);
    check.setValue(1);
    check.click();
    EXPECT_EQ(check.value(), 0);
    EXPECT_EQ(checkClicks, 2);
    button.setVisible(false);
    EXPECT_FALSE(button.click());
    button.setVisible(true);
    EXPECT_TRUE(button.click());
    EXPECT_EQ(buttonClicks, 1);
}

TEST(Controls, PanelResizeOnlyWhenTheSizeChanges) {
    Form form("f");
    Panel panel(&form, "pic", 2);
    int resizes = 0;
    auto c = panel.Resize.connect([&] { ++resizes; });
    panel.move(0, 0, 100, 100);
    panel.move(50, 50, 100, 100);
    panel.setWidth(200);
    EXPECT_EQ(resizes, 2);
    EXPECT_ANY_THROW(panel.setWidth(-1));
}

TEST(TabStrip, RemovingTheSelectedTabFallsBackToTheFirstWithoutClick) {
    Form form("f");
    TabStrip tabs(&form, "TabStrip");
    int clicks = 0;
    auto c = tabs.Click.connect([&] { ++clicks; });
    tabs.add(1, "Properties");
    tabs.add(2, "Link Properties");
    tabs.setSelectedIndex(2);
    tabs.remove(2);
    EXPECT_EQ(tabs.selectedIndex(), 1);
    EXPECT_EQ(clicks, 1);
    tabs.add(2, "Signature");
    EXPECT_EQ(tabs.selectedIndex(), 1) << "adding a tab does not select it";
    tabs.click(1);
    EXPECT_EQ(clicks, 2) << "a person's click on the selected tab still clicks";
}

} // namespace
} // namespace morvel::view
