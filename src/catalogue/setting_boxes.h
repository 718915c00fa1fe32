// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace morvel::catalogue {

// How a box shows a stored setting, and what it writes back.
enum class Shown : std::uint8_t {
    Text,      // its text, stored as text
    Number,    // its text, stored as a whole number
    ItemData,  // the entry with the stored item data; no entry picked stores ""
    EntryText, // the entry of the stored text, letter case ignored; stores the entry's text
    Checked,   // checked when the stored value is True
};

// The event on which the box writes.
enum class Commit : std::uint8_t { Change, LostFocus, Click };

// The list that is filled before the box shows its setting.
enum class Fill : std::uint8_t {
    None,
    SubTables,        // from the database, once per designer
    LinkTables,       // from the database, once per designer
    CipherKeyLengths, // for the cipher stored
    HashKeyLengths,   // for the hash stored
    LinkFields,       // the names of the collection's "Link" fields
};

// A box of a type page (by its name on the designer) and the stored setting it shows and edits.
// A box that writes another key than it shows, or serves several type families, has one row per
// family.
struct SettingBox {
    std::string_view box;
    // The types whose page shows the box and for which it writes.
    bool (*types)(std::int32_t code);
    // The key written; "" writes nothing.
    std::string_view key;
    // The key the panel shows; "" when the box is not shown for these types.
    std::string_view shownKey;
    // What the box shows while shownKey is absent.
    std::string_view readDefault;
    Shown shown;
    Commit commit;
    // Writes whatever the current field's type is (the box does not test it).
    bool anyType = false;
    Fill fill = Fill::None;
};

// Every setting box, in the order the panel loads them.
std::span<const SettingBox> settingBoxes();
// The first row of the box of that name; the table has one for every box it names.
const SettingBox& settingOf(std::string_view box);

} // namespace morvel::catalogue
