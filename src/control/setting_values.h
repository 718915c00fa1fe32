// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/setting_boxes.h"
#include "fields/field_utility.h"
#include "fields/property_store.h"

#include <string>

namespace morvel::control {

// What a setting box shows for a field's store: the value of its shown key, or its read default.
inline Value shownValue(const catalogue::SettingBox& row, const PropertyStore& stored) {
    return stored.GetValue(row.shownKey, Value(std::string(row.readDefault)));
}
inline std::string shownText(const catalogue::SettingBox& row, const PropertyStore& stored) {
    return shownValue(row, stored).toText();
}
inline std::int32_t shownNumber(const catalogue::SettingBox& row, const PropertyStore& stored) {
    return FieldUtility::ToLong(shownValue(row, stored));
}

} // namespace morvel::control
