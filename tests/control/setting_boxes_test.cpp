// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/field_types.h"
#include "catalogue/setting_boxes.h"
#include "control/designer_fixture.h"

#include <algorithm>
#include <map>

namespace morvel::testing {
namespace {

using catalogue::SettingBox;
using catalogue::Shown;

// The setting table names boxes by their names and types by predicate; whether a box exists,
// can show its setting the way its row says, and sits where its types' page is, the compiler
// cannot see.
using SettingBoxes = DesignerTest;

TEST_F(SettingBoxes, EveryShownBoxIsAControlOfItsTypesPageAndOfTheKindItsRowNeeds) {
    for (const SettingBox& row : catalogue::settingBoxes()) {
        const view::Control& box = designer.settingControl(row);
        EXPECT_FALSE(row.key.empty() && row.shownKey.empty()) << box.name();
        const bool list = dynamic_cast<const view::ComboBox*>(&box) != nullptr;
        const bool text = list || dynamic_cast<const view::TextBox*>(&box) != nullptr;
        const bool check = dynamic_cast<const view::CheckBox*>(&box) != nullptr;
        const bool fits = row.shown == Shown::Checked                                     ? check
                          : row.shown == Shown::ItemData || row.shown == Shown::EntryText ? list
                                                                                          : text;
        EXPECT_TRUE(fits) << box.name();
        EXPECT_TRUE(row.fill == catalogue::Fill::None || list) << box.name();
        if (row.shownKey.empty())
            continue;
        for (const catalogue::TypeTraits& type : catalogue::typeTraits()) {
            if (!row.types(type.code))
                continue;
            ASSERT_NE(type.page, catalogue::TypePage::None) << box.name() << " for " << type.name;
            const view::Panel& page = designer.pic(static_cast<std::int32_t>(type.page));
            EXPECT_EQ(box.parent(), &page) << box.name() << " for " << type.name;
        }
    }
}

// A box writes on one event and shows one way; two boxes that show one key show it alike.
TEST_F(SettingBoxes, RowsOfOneBoxOrOneKeyAgree) {
    std::map<std::string_view, const SettingBox*> byBox;
    std::map<std::string_view, const SettingBox*> byKey;
    for (const SettingBox& row : catalogue::settingBoxes()) {
        const SettingBox& first = *byBox.emplace(row.box, &row).first->second;
        EXPECT_TRUE(first.commit == row.commit && first.anyType == row.anyType) << row.box;
        if (row.shownKey.empty())
            continue;
        const SettingBox& shown = *byKey.emplace(row.shownKey, &row).first->second;
        EXPECT_EQ(shown.readDefault, row.readDefault) << row.shownKey;
    }
}

// The wiring is written by hand beside the table: a box writes its key on the event its row names
// and, unless the row says it writes for any type, only for the row's types.
TEST_F(SettingBoxes, TypedBoxesWriteOnTheirRowsEventForTheirRowsTypes) {
    std::int32_t typed = 0; // a new text every time, so that every setText raises Change
    for (const SettingBox& row : catalogue::settingBoxes()) {
        if (row.key.empty() || !(row.shown == Shown::Text || row.shown == Shown::Number))
            continue;
        const auto ownType = std::ranges::find_if(
            catalogue::typeTraits(), [&](const auto& type) { return row.types(type.code); });
        for (const std::int32_t code : {ownType->code, catalogue::type::Text}) {
            auto defs = give({{"Field", code}});
            const PropertyStore& stored = defs->Item(1)->Properties();
            view::Control& box = designer.settingControl(row);
            if (auto* text = dynamic_cast<view::TextBox*>(&box))
                text->setText(std::to_string(++typed));
            else
                dynamic_cast<view::ComboBox&>(box).setText(std::to_string(++typed));
            const bool onChange = stored.Lookup(row.key) != nullptr;
            box.LostFocus.notify();
            const bool written = stored.Lookup(row.key) != nullptr;
            const std::string what =
                box.name() + " " + std::string(row.key) + " for " + std::to_string(code);
            EXPECT_EQ(written, code == ownType->code || row.anyType) << what;
            EXPECT_EQ(onChange, written && row.commit == catalogue::Commit::Change) << what;
        }
    }
}

} // namespace
} // namespace morvel::testing
