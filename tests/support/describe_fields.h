#pragma once

#include "fields/field_defs.h"
#include "fields/property_store.h"

#include <string>

namespace morvel::testing {

// Every stored entry with its value's kind, in stored order.
inline std::string describe(const PropertyStore& store) {
    std::string text;
    for (const ListEntry& entry : store)
        text += entry.Key + "=" + kindName(entry.Value.kind()) + ":" + entry.Value.toText() + ";";
    return text;
}

// Every member and every stored value with its kind, field by field in order: two collections
// hold the same definitions exactly when their descriptions are equal.
inline std::string describe(const FieldDefs& fields) {
    std::string text;
    for (const auto& f : fields)
        text += f->Name() + "|" + f->Description() + "|" + f->DisplayName() + "|" +
                std::to_string(f->FieldType()) + "|" + std::to_string(f->Size()) + "|" +
                f->DefaultValue() + "|" + f->CtrlEdit() + "|" + f->CtrlReadOnly() + "|" +
                f->CtrlList() + "|" + std::to_string(f->Validation()) + "|" +
                (f->CreateOnDemand() ? "COD" : "") + "|P:" + describe(f->Properties()) +
                "|L:" + describe(f->ListValues()) + "|T:" + describe(f->Locales()) + "\n";
    return text;
}

} // namespace morvel::testing
