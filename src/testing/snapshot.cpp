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

std::string fieldsSnapshot(const FieldDefs& fields) {
    std::string out;
    for (const auto& field : fields) {
        const FieldDef& f = *field;
        out += f.Name() + "|" + std::to_string(f.FieldType()) + "|" + std::to_string(f.Size()) +
               "|" + f.DisplayName() + "|" + f.Description() + "|" + f.DefaultValue() + "|" +
               std::to_string(f.Validation()) + "|" + (f.CreateOnDemand() ? "C" : "-") + "|" +
               f.CtrlEdit() + "|" + f.CtrlReadOnly() + "|" + f.CtrlList() + "|P{" +
               storeSnapshot(f.Properties()) + "}|L{" + storeSnapshot(f.ListValues()) + "}|T{" +
               storeSnapshot(f.Locales()) + "}\n";
    }
    return out;
}

} // namespace morvel::testkit
