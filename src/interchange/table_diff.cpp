// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "interchange/table_diff.h"

#include "catalogue/field_types.h"
#include "catalogue/validation.h"

#include <algorithm>
#include <unordered_map>

namespace morvel::interchange {

namespace {

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

// A value with its kind visible: 1 is a whole number, "1" a text.
std::string shown(const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Empty:
        return "Empty";
    case Value::Kind::Text:
        return quoted(value.asText());
    default:
        return value.toText();
    }
}

std::string typeShown(std::int32_t code) {
    return std::string(catalogue::typeName(code)) + " (" + std::to_string(code) + ")";
}

void compareStore(const char* what, const std::string& field, const PropertyStore& before,
                  const PropertyStore& after, std::vector<std::string>& lines) {
    const std::string of = " of " + quoted(field) + ": ";
    std::vector<std::string_view> afterOrder;
    for (const ListEntry& entry : after) {
        const ListEntry* old = before.Lookup(entry.Key);
        if (!old) {
            lines.push_back(std::string("Added ") + what + " " + quoted(entry.Key) + of +
                            shown(entry.Value));
            continue;
        }
        afterOrder.push_back(entry.Key);
        if (!(old->Value == entry.Value))
            lines.push_back(std::string("Changed ") + what + " " + quoted(entry.Key) + of +
                            shown(old->Value) + " -> " + shown(entry.Value));
    }
    std::size_t kept = 0;
    bool reordered = false;
    for (const ListEntry& entry : before) {
        if (!after.Lookup(entry.Key)) {
            lines.push_back(std::string("Removed ") + what + " " + quoted(entry.Key) + of +
                            shown(entry.Value));
            continue;
        }
        reordered = reordered || afterOrder[kept] != entry.Key;
        ++kept;
    }
    if (reordered)
        lines.push_back(std::string("Reordered ") + what + " of " + quoted(field));
}

void compareField(const FieldDef& a, const FieldDef& b, std::vector<std::string>& lines) {
    const std::string& name = b.Name();
    if (a.Name() != b.Name())
        lines.push_back("Renamed " + quoted(a.Name()) + " to " + quoted(b.Name()));
    const auto changed = [&](const char* member, const std::string& old, const std::string& now) {
        if (old != now)
            lines.push_back(std::string("Changed ") + member + " of " + quoted(name) + ": " + old +
                            " -> " + now);
    };
    changed("Display Name", quoted(a.DisplayName()), quoted(b.DisplayName()));
    changed("Description", quoted(a.Description()), quoted(b.Description()));
    changed("Type", typeShown(a.FieldType()), typeShown(b.FieldType()));
    changed("Size", std::to_string(a.Size()), std::to_string(b.Size()));
    changed("Default Value", quoted(a.DefaultValue()), quoted(b.DefaultValue()));
    const auto validation = [](std::int32_t code) {
        return std::string(catalogue::validationName(code)) + " (" + std::to_string(code) + ")";
    };
    changed("Validation", validation(a.Validation()), validation(b.Validation()));
    changed("Create on Demand", a.CreateOnDemand() ? "True" : "False",
            b.CreateOnDemand() ? "True" : "False");
    changed("Edit Control", quoted(a.CtrlEdit()), quoted(b.CtrlEdit()));
    changed("Read-only Control", quoted(a.CtrlReadOnly()), quoted(b.CtrlReadOnly()));
    changed("List Control", quoted(a.CtrlList()), quoted(b.CtrlList()));
    compareStore("property", name, a.Properties(), b.Properties(), lines);
    compareStore("list value", name, a.ListValues(), b.ListValues(), lines);
    compareStore("locale text", name, a.Locales(), b.Locales(), lines);
}

// Of the fields both tables have, in after's order with their positions in before, those that
// keep their relative order form the longest increasing run; every other one moved.
std::vector<bool> movedFields(const std::vector<std::int32_t>& beforePositions) {
    const std::size_t n = beforePositions.size();
    std::vector<std::size_t> tails;       // index of the smallest tail of each run length
    std::vector<std::size_t> previous(n); // the element before each in its best run
    for (std::size_t i = 0; i < n; ++i) {
        const auto at = std::lower_bound(tails.begin(), tails.end(), beforePositions[i],
                                         [&](std::size_t index, std::int32_t position) {
                                             return beforePositions[index] < position;
                                         });
        previous[i] = at == tails.begin() ? n : *(at - 1);
        if (at == tails.end())
            tails.push_back(i);
        else
            *at = i;
    }
    std::vector<bool> moved(n, true);
    for (std::size_t i = tails.empty() ? n : tails.back(); i != n; i = previous[i])
        moved[i] = false;
    return moved;
}

} // namespace

std::vector<std::string> diffTables(const TableDocument& before, const TableDocument& after) {
    std::vector<std::string> lines;
    if (before.name != after.name)
        lines.push_back("Changed table name: " + quoted(before.name) + " -> " + quoted(after.name));
    if (before.displayName != after.displayName)
        lines.push_back("Changed table display name: " + quoted(before.displayName) + " -> " +
                        quoted(after.displayName));
    if (before.tableType != after.tableType)
        lines.push_back("Changed table type: " + std::to_string(before.tableType) + " -> " +
                        std::to_string(after.tableType));

    std::unordered_map<const FieldDef*, std::int32_t> beforePosition;
    beforePosition.reserve(static_cast<std::size_t>(before.fields->Count()));
    std::int32_t position = 0;
    for (const auto& field : *before.fields)
        beforePosition.emplace(field.get(), ++position);

    std::vector<std::int32_t> commonBefore;
    std::vector<std::int32_t> commonAfter;
    std::vector<std::string> fieldLines;
    position = 0;
    for (const auto& field : *after.fields) {
        ++position;
        const auto old = before.fields->find(field->Name());
        if (!old) {
            lines.push_back("Added field " + quoted(field->Name()) + " at position " +
                            std::to_string(position));
            continue;
        }
        commonBefore.push_back(beforePosition.at(old.get()));
        commonAfter.push_back(position);
        compareField(*old, *field, lines);
    }
    const std::vector<bool> moved = movedFields(commonBefore);
    for (std::size_t i = 0; i < moved.size(); ++i)
        if (moved[i])
            lines.push_back("Moved field " + quoted(after.fields->Item(commonAfter[i])->Name()) +
                            " from position " + std::to_string(commonBefore[i]) + " to " +
                            std::to_string(commonAfter[i]));
    position = 0;
    for (const auto& field : *before.fields) {
        ++position;
        if (!after.fields->find(field->Name()))
            lines.push_back("Removed field " + quoted(field->Name()) + " from position " +
                            std::to_string(position));
    }
    return lines;
}

} // namespace morvel::interchange
