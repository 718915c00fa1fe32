// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "store/sample_schema.h"

#include "catalogue/field_types.h"
#include "catalogue/property_keys.h"
#include "catalogue/templates.h"
#include "store/schema_database.h"
#include "store/store_error.h"

#include <string>
#include <utility>

namespace morvel {

namespace {

namespace type = catalogue::type;

constexpr std::int32_t kCurrency = 6;
constexpr std::int32_t kDateTime = 7;
constexpr std::int32_t kBoolean = 11;
constexpr std::int32_t kDateOnly = 133;
constexpr std::int32_t kFileLinkPicture = 2100;
constexpr std::int32_t kId = 10000;
constexpr std::int32_t kCreatedBy = 10006;
constexpr std::int32_t kDateCreated = 10002;
constexpr std::int32_t kRequired = 1;
constexpr std::int32_t kRequiredEnforced = 2;

// Adds a field with the first control templates the catalogue suggests for its type.
FieldDef& addField(FieldDefs& fields, std::string name, std::int32_t code, std::string displayName,
                   std::string description = {}) {
    FieldDef& field = *fields.Add(std::move(name), code);
    field.SetDisplayName(std::move(displayName));
    field.SetDescription(std::move(description));
    if (const auto edit = catalogue::editTemplates(code); !edit.empty())
        field.SetCtrlEdit(std::string(edit.front()));
    if (const auto readOnly = catalogue::readOnlyTemplates(code); !readOnly.empty()) {
        field.SetCtrlReadOnly(std::string(readOnly.front()));
        field.SetCtrlList(std::string(readOnly.front()));
    }
    return field;
}

FieldDef& addText(FieldDefs& fields, std::string name, std::int32_t size, std::string displayName) {
    FieldDef& field = addField(fields, std::move(name), type::VarChar, std::move(displayName));
    field.SetSize(size);
    return field;
}

void addId(FieldDefs& fields) {
    addField(fields, "zrID", kId, "ID", "Number of the record, given by the system.")
        .SetCtrlEdit("VALUELABEL");
}

void german(FieldDef& field, std::string displayName, std::string description = {}) {
    field.SetLocaleDisplayName("1031", std::move(displayName));
    if (!description.empty())
        field.SetLocaleDescription("1031", std::move(description));
}

void english(FieldDef& field) {
    field.SetLocaleDisplayName("1033", field.DisplayName());
    if (!field.Description().empty())
        field.SetLocaleDescription("1033", field.Description());
}

void setProperty(FieldDef& field, std::string_view key, Value value) {
    field.Properties().SetValue(key, std::move(value), true);
}

void directLink(FieldDef& field, std::string table, std::string displayField) {
    setProperty(field, catalogue::kDirectTable, std::move(table));
    setProperty(field, catalogue::kDirectId, "zrID");
    setProperty(field, catalogue::kDirectDisp, displayField);
    setProperty(field, catalogue::kDirectDispCopy, displayField);
    setProperty(field, catalogue::kDirectOrderBy, std::move(displayField));
}

TableDefinition table(std::string name, std::string displayName, std::int32_t tableType) {
    TableDefinition definition;
    definition.info.name = std::move(name);
    definition.info.displayName = std::move(displayName);
    definition.info.tableType = tableType;
    return definition;
}

void save(SchemaDatabase& database, TableDefinition& definition) {
    database.saveAsNew(definition);
}

void writeLinkableTables(SchemaDatabase& database) {
    auto customers = table("Customers", "Customers", table_type::kLinkable);
    addId(*customers.fields);
    FieldDef& customer = addText(*customers.fields, "DisplayName", 120, "Customer");
    customer.SetValidation(kRequired);
    german(customer, "Kunde");
    addText(*customers.fields, "Email", 200, "E-mail");
    addText(*customers.fields, "Phone", 40, "Phone");
    save(database, customers);

    auto products = table("Products", "Products", table_type::kLinkable);
    addId(*products.fields);
    addText(*products.fields, "DisplayName", 120, "Product").SetValidation(kRequiredEnforced);
    addField(*products.fields, "Price", kCurrency, "Unit price");
    addField(*products.fields, "Discontinued", kBoolean, "Discontinued").SetDefaultValue("False");
    save(database, products);

    auto employees = table("Employees", "Employees", table_type::kLinkable);
    addId(*employees.fields);
    addText(*employees.fields, "DisplayName", 120, "Name");
    addField(*employees.fields, "HireDate", kDateOnly, "Hired on");
    save(database, employees);

    auto suppliers = table("Suppliers", "Suppliers", table_type::kLinkable);
    addId(*suppliers.fields);
    addText(*suppliers.fields, "DisplayName", 120, "Company");
    addText(*suppliers.fields, "Country", 60, "Country");
    save(database, suppliers);
}

// The id of the order lines table, which the main table's sub-table field refers to.
std::int32_t writeSubTables(SchemaDatabase& database) {
    auto lines = table("OrderLines", "Order lines", table_type::kSub);
    addField(*lines.fields, "OrderID", type::Long, "Order");
    directLink(addField(*lines.fields, "Product", type::Link, "Product"), "Products",
               "DisplayName");
    addField(*lines.fields, "Quantity", type::Long, "Quantity").SetDefaultValue("1");
    addField(*lines.fields, "UnitPrice", kCurrency, "Unit price");
    save(database, lines);

    auto addresses = table("Addresses", "Addresses", table_type::kSub);
    addField(*addresses.fields, "CustomerID", type::Long, "Customer");
    addText(*addresses.fields, "Street", 120, "Street");
    addText(*addresses.fields, "City", 80, "City");
    addText(*addresses.fields, "PostalCode", 12, "Postal code");
    save(database, addresses);
    return lines.info.id;
}

void writeLinkFields(FieldDefs& fields) {
    FieldDef& customer =
        addField(fields, "Customer", type::Link, "Customer", "The customer who placed the order.");
    customer.SetValidation(kRequiredEnforced);
    directLink(customer, "Customers", "DisplayName");
    setProperty(customer, catalogue::kDirectSelect, "SELECT zrID, DisplayName FROM Customers");
    setProperty(customer, catalogue::kLinkParent, true);
    english(customer);
    german(customer, "Kunde", "Der Kunde, der bestellt hat.");

    FieldDef& handlers =
        addField(fields, "HandledBy", type::MultipleLink, "Handled by", "Employees on the order.");
    directLink(handlers, "Employees", "DisplayName");
    setProperty(handlers, catalogue::kDirectObjectType, std::int32_t{12});
    setProperty(handlers, catalogue::kDirectCoreFilter, "Active = 1");
    setProperty(handlers, catalogue::kDirectStatus, std::int32_t{1});

    FieldDef& supplier = addField(fields, "Supplier", type::LinkAdo, "Supplier");
    setProperty(supplier, catalogue::kAdoConnStr,
                "Provider=SQLOLEDB;Data Source=erp;Initial Catalog=Buy");
    setProperty(supplier, catalogue::kAdoTable, "Suppliers");
    setProperty(supplier, catalogue::kAdoIdField, "SupplierID");
    setProperty(supplier, catalogue::kAdoDispField, "CompanyName");
    setProperty(supplier, catalogue::kAdoSql, "SELECT SupplierID, CompanyName FROM Suppliers");

    FieldDef& address = addField(fields, "DeliveryAddress", type::SubLink, "Delivery address");
    setProperty(address, catalogue::kSubLinkField, "Customer");
    setProperty(address, catalogue::kSubLinkTable, "Addresses");
    setProperty(address, catalogue::kSubLinkParentId, "CustomerID");
    setProperty(address, catalogue::kSubLinkDisplayName, "Street");
    setProperty(address, catalogue::kSubLinkOrderBy, "City");

    FieldDef& owner = addField(fields, "Owner", type::DirectUser, "Owner");
    setProperty(owner, catalogue::kDirectConnStr, "LDAP://corp.example");
}

void writeListFields(FieldDefs& fields) {
    FieldDef& status = addField(fields, "Status", type::List, "Status");
    status.SetDefaultValue("1");
    status.ListValues().SetValue("1", "Open", true);
    status.ListValues().SetValue("2", "Shipped", true);
    status.ListValues().SetValue("3", "Invoiced", true);
    status.ListValues().SetValue("4", "Closed", true);
    english(status);
    german(status, "Status");

    FieldDef& options = addField(fields, "Options", type::BitMaskList, "Options");
    options.ListValues().SetValue("1", "Gift wrap", true);
    options.ListValues().SetValue("2", "Express", true);
    options.ListValues().SetValue("4", "Insured", true);
    options.ListValues().SetValue("8", "Signature on delivery", true);
}

void writeMainTable(SchemaDatabase& database, std::int32_t orderLinesId) {
    auto orders = table("Orders", "Orders", table_type::kMain);
    FieldDefs& fields = *orders.fields;
    addId(fields);
    FieldDef& number = addText(fields, "OrderNumber", 20, "Order number");
    number.SetValidation(kRequiredEnforced);
    number.SetDescription("The number printed on the order.");
    english(number);
    german(number, "Bestellnummer", "Die Nummer auf der Bestellung.");
    addField(fields, "OrderDate", kDateTime, "Ordered on").SetValidation(kRequired);
    addField(fields, "Quantity", type::Long, "Items").SetDefaultValue("1");
    addField(fields, "Total", kCurrency, "Total");
    addField(fields, "Paid", kBoolean, "Paid").SetDefaultValue("False");
    addField(fields, "Notes", type::Text, "Notes").SetCreateOnDemand(true);
    writeLinkFields(fields);

    FieldDef& lines = addField(fields, "Lines", type::SubTable, "Order lines");
    setProperty(lines, catalogue::kDirectSubTable, orderLinesId);
    setProperty(lines, catalogue::kDirectSubTableField, std::int32_t{1});

    writeListFields(fields);
    addField(fields, "Invoice", kFileLinkPicture, "Scanned invoice");

    FieldDef& card = addField(fields, "CardNumber", type::VarCharEncrypted, "Card number");
    card.SetSize(32);
    setProperty(card, catalogue::kEncryptType, std::int32_t{1});
    setProperty(card, catalogue::kEncryptKeyLen, std::int32_t{256});

    addField(fields, "zrTenant", type::Tenant, "Tenant");
    addField(fields, "zrCreatedBy", kCreatedBy, "Created by");
    addField(fields, "zrDateCreated", kDateCreated, "Created on");
    FieldDef& signature = addField(fields, "zrSignature", type::Signature, "Signature");
    setProperty(signature, catalogue::kSignType, std::int32_t{1});
    setProperty(signature, catalogue::kSignKeyLen, std::int32_t{384});
    setProperty(signature, catalogue::kSignFields, "OrderNumber,OrderDate,Customer,Total");
    save(database, orders);
}

} // namespace

void writeSampleSchema(SchemaDatabase& database) {
    if (!database.tables().empty())
        throw StoreError("The sample tables are written only into an empty database; \"" +
                         database.path().string() + "\" has tables already.");
    writeLinkableTables(database);
    writeMainTable(database, writeSubTables(database));
}

} // namespace morvel
