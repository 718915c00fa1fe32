// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "field_generator.h"

#include "catalogue/property_keys.h"

#include <array>
#include <string_view>

namespace morvel::bench {

namespace {

constexpr std::array<std::string_view, 40> kEntities{
    "Customer", "Order",   "Invoice",  "Product",  "Supplier", "Employee", "Shipping", "Billing",
    "Contact",  "Account", "Payment",  "Delivery", "Contract", "Project",  "Vendor",   "Warehouse",
    "Stock",    "Tax",     "Discount", "Currency", "Region",   "Branch",   "Campaign", "Lead",
    "Ticket",   "Asset",   "Budget",   "Claim",    "Policy",   "Member",   "Course",   "Patient",
    "Vehicle",  "Route",   "Batch",    "Quote",    "Return",   "Service",  "Site",     "Team"};

// The attribute, the type it usually has and how the type mix is weighted: most columns of a
// business table are texts, numbers and dates; links, lists and the special families are rarer.
struct Attribute {
    std::string_view name;
    std::int32_t type;
};
constexpr std::array<Attribute, 50> kAttributes{{
    {"Name", 8},        {"Code", 8},        {"Number", 8},        {"Email", 8},
    {"Phone", 8},       {"City", 8},        {"PostCode", 8},      {"Reference", 8},
    {"Title", 8},       {"Address", 200},   {"Notes", 200},       {"Remarks", 200},
    {"Comment", 200},   {"Summary", 200},   {"Description", 220}, {"Terms", 210},
    {"Quantity", 3},    {"Count", 3},       {"Priority", 3},      {"Sequence", 3},
    {"Rate", 5},        {"Weight", 5},      {"Amount", 6},        {"Total", 6},
    {"Price", 6},       {"Date", 133},      {"DueDate", 133},     {"Created", 7},
    {"Modified", 7},    {"StartTime", 145}, {"Active", 11},       {"Approved", 11},
    {"Archived", 11},   {"Owner", 1000},    {"Manager", 1000},    {"Parent", 1000},
    {"Tags", 1010},     {"Partner", 1001},  {"Mirrors", 1011},    {"Status", 1100},
    {"Category", 1100}, {"Channels", 1101}, {"Flags", 1105},      {"Options", 1106},
    {"Document", 2000}, {"Photo", 2100},    {"Website", 2110},    {"Assignee", 3000},
    {"Secret", 20200},  {"Iban", 20008},
}};

constexpr std::array<std::string_view, 6> kListTexts{"Open",    "Pending", "Approved",
                                                     "Shipped", "Closed",  "Cancelled"};

// Spreads neighbouring fields over different entities and attributes, so that a table reads like
// a real one rather than forty "CustomerX" in a row.
constexpr std::int32_t kCombinations =
    static_cast<std::int32_t>(kEntities.size() * kAttributes.size());
constexpr std::int32_t kStride = 1237; // coprime with kCombinations

std::int32_t combination(std::int32_t index) {
    return static_cast<std::int32_t>((static_cast<std::int64_t>(index % kCombinations) * kStride) %
                                     kCombinations);
}

const Attribute& attributeOf(std::int32_t index) {
    return kAttributes[static_cast<std::size_t>(combination(index)) % kAttributes.size()];
}

std::string_view entityOf(std::int32_t index) {
    return kEntities[static_cast<std::size_t>(combination(index)) / kAttributes.size()];
}

// "CustomerName" -> "Customer Name".
std::string spaced(std::string_view name) {
    std::string out;
    out.reserve(name.size() + 4);
    for (std::size_t i = 0; i < name.size(); ++i) {
        const char c = name[i];
        if (i > 0 && ((c >= 'A' && c <= 'Z') ||
                      (c >= '0' && c <= '9' && !(name[i - 1] >= '0' && name[i - 1] <= '9'))))
            out += ' ';
        out += c;
    }
    return out;
}

void addLinkSettings(FieldDef& field, std::int32_t index, bool ado) {
    PropertyStore& props = field.Properties();
    const std::string table(kEntities[static_cast<std::size_t>(index * 7) % kEntities.size()]);
    if (ado) {
        props.SetValue(catalogue::kAdoConnStr,
                       "Provider=SQLOLEDB;Data Source=erp;Initial Catalog=" + table, true);
        props.SetValue(catalogue::kAdoTable, table + "s", true);
        props.SetValue(catalogue::kAdoIdField, table + "ID", true);
        props.SetValue(catalogue::kAdoDispField, table + "Name", true);
        return;
    }
    // Half the direct links point to objects (an object type, a filter, an order field), the
    // other half to a table (its ID and display fields).
    if (index % 2 == 0) {
        props.SetValue(catalogue::kDirectObjectType, 100 + index % 20, true);
        props.SetValue(catalogue::kDirectOrderBy, table + "Name", true);
        props.SetValue(catalogue::kDirectCoreFilter, "Active = 1", true);
        if (index % 3 == 0)
            props.SetValue(catalogue::kDirectStatus, 1, true);
    } else {
        props.SetValue(catalogue::kDirectTable, table + "s", true);
        props.SetValue(catalogue::kDirectId, "zrID", true);
        props.SetValue(catalogue::kDirectDisp, table + "Name", true);
        props.SetValue(catalogue::kDirectDispCopy, table + "Name", true);
    }
    if (index % 5 == 0)
        props.SetValue(catalogue::kLinkParent, true, true);
}

void addListValues(FieldDef& field, std::int32_t index, bool bitMask) {
    PropertyStore& values = field.ListValues();
    const std::int32_t count = 3 + index % 4;
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t value = bitMask ? (1 << i) : i + 1;
        values.SetValue(std::to_string(value), std::string(kListTexts[static_cast<std::size_t>(i)]),
                        true);
    }
}

void addTypeSettings(FieldDef& field, std::int32_t index) {
    switch (field.FieldType()) {
    case 8:
    case 2110:
        field.SetSize(index % 4 == 0 ? 255 : 50 + 10 * (index % 6));
        break;
    case 20008:
        field.SetSize(64);
        field.Properties().SetValue(catalogue::kEncryptType, 1 + index % 2, true);
        field.Properties().SetValue(catalogue::kEncryptKeyLen, 256, true);
        break;
    case 20200:
        field.Properties().SetValue(catalogue::kEncryptType, 1, true);
        field.Properties().SetValue(catalogue::kEncryptKeyLen, 128 + 64 * (index % 2), true);
        break;
    case 1000:
    case 1010:
        addLinkSettings(field, index, false);
        break;
    case 1001:
    case 1011:
        addLinkSettings(field, index, true);
        break;
    case 1100:
    case 1101:
        addListValues(field, index, false);
        break;
    case 1105:
    case 1106:
        addListValues(field, index, true);
        break;
    case 3000:
        field.Properties().SetValue(catalogue::kDirectConnStr, "LDAP://corp.example", true);
        break;
    default:
        break;
    }
}

std::string_view editTemplate(std::int32_t type) {
    switch (type) {
    case 200:
    case 210:
    case 20200:
        return "TEXTAREA";
    case 220:
        return "INPUTHTML";
    case 133:
    case 7:
        return "DATEPICKER";
    case 11:
        return "CHECKBOX";
    case 3:
    case 5:
        return "NUMERICBOX";
    case 6:
        return "CURRENCYBOX";
    case 1000:
    case 1001:
    case 1100:
        return "SELECT";
    case 1010:
    case 1011:
    case 1101:
    case 1105:
    case 1106:
        return "MULTISELECT";
    case 2000:
    case 2100:
        return "INPUTFILE";
    default:
        return "TEXTBOX";
    }
}

std::shared_ptr<FieldDef> makeField(std::string name, std::int32_t type, std::int32_t index) {
    auto field = std::make_shared<FieldDef>(std::move(name), type);
    field->SetDisplayName(spaced(field->Name()));
    field->SetValidation(index % 7 == 0 ? 2 : index % 3 == 0 ? 1 : 0);
    field->SetCtrlEdit(std::string(editTemplate(type)));
    field->SetCtrlReadOnly(type >= 1000 && type < 1200 ? "VALUELABELLINK" : "VALUELABEL");
    if (index % 4 == 0)
        field->SetCtrlList("TEXTBOX");
    if (index % 5 == 0)
        field->SetDescription("The " + field->DisplayName() + " of the record.");
    if (index % 50 == 0)
        field->SetLocaleDisplayName("1031", field->DisplayName() + " (de)");
    addTypeSettings(*field, index);
    return field;
}

} // namespace

std::string generatedName(std::int32_t index) {
    std::string name(entityOf(index));
    name += attributeOf(index).name;
    if (const std::int32_t round = index / kCombinations; round > 0)
        name += std::to_string(round + 1);
    return name;
}

std::shared_ptr<FieldDefs> makeFieldDefs(std::int32_t count) {
    auto defs = std::make_shared<FieldDefs>();
    defs->Add(makeField("ID", 10000, 1));
    for (std::int32_t i = 1; i < count; ++i)
        defs->Add(
            makeField(i == count / 2 ? kFindTarget : generatedName(i), attributeOf(i).type, i));
    return defs;
}

std::shared_ptr<FieldDef> makeExtraField(std::int32_t serial) {
    return makeField("AddedField" + std::to_string(serial), 8, serial);
}

} // namespace morvel::bench
