// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/templates.h"

#include <array>
#include <initializer_list>

namespace morvel::catalogue {

namespace {

using namespace std::string_view_literals;

constexpr std::array kNumeric{"NUMERICBOX"sv, "TEXTBOX"sv, "VALUELABEL"sv};
constexpr std::array kCurrency{"CURRENCYBOX"sv, "NUMERICBOX"sv, "TEXTBOX"sv, "VALUELABEL"sv};
constexpr std::array kDateTime{"DATEPICKER"sv, "DATETIMEPICKER"sv, "INPUTTIME"sv, "TEXTBOX"sv,
                               "VALUELABEL"sv};
constexpr std::array kShortText{"TEXTAREA"sv, "TEXTBOX"sv, "VALUELABEL"sv};
constexpr std::array kBoolean{"CHECKBOX"sv, "VALUELABEL"sv};
constexpr std::array kDateOnly{"DATEPICKER"sv, "TEXTBOX"sv, "VALUELABEL"sv};
constexpr std::array kTimeOnly{"INPUTTIME"sv, "TEXTBOX"sv, "VALUELABEL"sv};
constexpr std::array kLongText{"TEXTAREA"sv, "TEXTAREALARGE"sv, "TEXTBOX"sv, "VALUELABEL"sv};
constexpr std::array kHtml{"HTML"sv,          "INPUTHTML"sv, "TEXTAREA"sv,
                           "TEXTAREALARGE"sv, "TEXTBOX"sv,   "VALUELABEL"sv};
constexpr std::array kSelectLink{"SELECT"sv, "SELECTITEM"sv, "VALUELABEL"sv, "VALUELABELLINK"sv};
constexpr std::array kSelect{"SELECT"sv, "VALUELABEL"sv};
constexpr std::array kMultiSelect{"MULTISELECT"sv, "VALUELABEL"sv};
constexpr std::array kFileLink{"FILELINK"sv, "INPUTFILE"sv, "VALUELABEL"sv};
constexpr std::array kSubTable{"SUBTABLEBUTTON"sv};
constexpr std::array kValueLabel{"VALUELABEL"sv};

constexpr std::array kReadOnlyHtml{"HTML"sv, "VALUELABEL"sv};
constexpr std::array kReadOnlyLink{"VALUELABEL"sv, "VALUELABELLINK"sv};
constexpr std::array kReadOnlyFileLink{"FILELINK"sv, "VALUELABEL"sv};

bool isOneOf(std::int32_t code, std::initializer_list<std::int32_t> codes) {
    for (std::int32_t each : codes)
        if (each == code)
            return true;
    return false;
}

} // namespace

std::span<const std::string_view> editTemplates(std::int32_t code) {
    if (isOneOf(code, {3, 5}))
        return kNumeric;
    if (code == 6)
        return kCurrency;
    if (code == 7)
        return kDateTime;
    if (isOneOf(code, {8, 2110, 20008}))
        return kShortText;
    if (code == 11)
        return kBoolean;
    if (code == 133)
        return kDateOnly;
    if (code == 145)
        return kTimeOnly;
    if (isOneOf(code, {200, 210, 20200}))
        return kLongText;
    if (code == 220)
        return kHtml;
    if (isOneOf(code, {1000, 3000, 3001}))
        return kSelectLink;
    if (isOneOf(code, {1001, 1002, 1100, 1105}))
        return kSelect;
    if (isOneOf(code, {1010, 1011, 1101, 1106}))
        return kMultiSelect;
    if (isOneOf(code, {2000, 2010, 2020, 2100}))
        return kFileLink;
    if (code == 5000)
        return kSubTable;
    return kValueLabel;
}

std::span<const std::string_view> readOnlyTemplates(std::int32_t code) {
    if (code == 220)
        return kReadOnlyHtml;
    if (code == 1000)
        return kReadOnlyLink;
    if (isOneOf(code, {2000, 2010, 2020, 2100}))
        return kReadOnlyFileLink;
    if (code == 5000)
        return {};
    return kValueLabel;
}

} // namespace morvel::catalogue
