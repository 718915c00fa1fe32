// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "testing/snapshot.h"

#include "fields/field_defs.h"
#include "view/list_view.h"

namespace morvel::testkit {

std::string listSnapshot(const view::ListView& list) {
    std::string out;
    for (int i = 1; i <= list.count(); ++i) {
        const auto& row = list.item(i);
        out += row.text();
        for (int c = 1; c < list.columnCount(); ++c)
            out.append("|").append(row.subItem(c));
        out += '\n';
    }
    return out;
}

std::string storeSnapshot(const PropertyStore& store) {
    std::string out;
    for (const ListEntry& entry : store) {
        const bool text = entry.Value.kind() == Value::Kind::Text;
        out += (out.empty() ? "" : ";") + entry.Key + "=" + (text ? "\"" : "") +
               entry.Value.toText() + (text ? "\"" : "");
    }
    return out;
}

std::string fieldNames(const FieldDefs& fields) {
    std::string text;
    for (const auto& field : fields)
        text += (text.empty() ? "" : "|") + field->Name();
    return text;
}

std::string fieldsSnapshot(const FieldDefs& fields) {
    // Stores with each value's kind, so that a whole number 1 and the text "1" differ.
    auto kinded = [](const PropertyStore& store) {
        std::string text;
        for (const ListEntry& entry : store)
            text +=
                entry.Key + "=" + kindName(entry.Value.kind()) + ":" + entry.Value.toText() + ";";
        return text;
    };
    std::string out;
    for (const auto& f : fields)
        out += f->Name() + "|" + f->Description() + "|" + f->DisplayName() + "|" +
               std::to_string(f->FieldType()) + "|" + std::to_string(f->Size()) + "|" +
               f->DefaultValue() + "|" + f->CtrlEdit() + "|" + f->CtrlReadOnly() + "|" +
               f->CtrlList() + "|" + std::to_string(f->Validation()) + "|" +
               (f->CreateOnDemand() ? "COD" : "") + "|P:" + kinded(f->Properties()) +
               "|L:" + kinded(f->ListValues()) + "|T:" + kinded(f->Locales()) + "\n";
    return out;
}

} // namespace morvel::testkit
