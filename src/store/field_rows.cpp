// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "store/field_rows.h"

#include "store/schema.h"
#include "store/sqlite_connection.h"
#include "store/statement.h"
#include "store/store_error.h"

#include <limits>
#include <string>
#include <vector>

namespace morvel::field_rows {

namespace {

using schema::Store;

enum StoredKind : std::int64_t { kEmpty = 0, kLong = 1, kText = 2, kBoolean = 3 };

class DamageReport {
public:
    DamageReport(const SqliteConnection& connection, std::string_view tableName)
        : m_connection(connection)
        , m_tableName(tableName) {}

    [[noreturn]] void fail(const std::string& what) const {
        throw StoreError("The file \"" + m_connection.path().string() +
                         "\" is damaged: the table \"" + std::string(m_tableName) + "\" " + what +
                         ".");
    }

    std::int32_t int32(const Statement& row, int column, const char* what) const {
        if (!row.isInteger(column))
            fail(std::string("has a ") + what + " that is not a whole number");
        const std::int64_t number = row.integer(column);
        if (number < std::numeric_limits<std::int32_t>::min() ||
            number > std::numeric_limits<std::int32_t>::max())
            fail(std::string("has a ") + what + " out of range");
        return static_cast<std::int32_t>(number);
    }

    std::string text(const Statement& row, int column, const char* what) const {
        if (!row.isText(column))
            fail(std::string("has a ") + what + " that is not text");
        return row.text(column);
    }

    Value value(const Statement& row, int kindColumn, int valueColumn) const {
        if (!row.isInteger(kindColumn))
            fail("has a stored value of no known kind");
        switch (row.integer(kindColumn)) {
        case kEmpty:
            if (!row.isNull(valueColumn))
                fail("has an empty value that holds something");
            return Value();
        case kLong:
            return Value(int32(row, valueColumn, "whole-number value"));
        case kText:
            return Value(text(row, valueColumn, "text value"));
        case kBoolean: {
            const std::int32_t flag = int32(row, valueColumn, "Boolean value");
            if (flag != 0 && flag != 1)
                fail("has a Boolean value that is neither True nor False");
            return Value(flag == 1);
        }
        default:
            fail("has a stored value of no known kind");
        }
    }

private:
    const SqliteConnection& m_connection;
    std::string_view m_tableName;
};

PropertyStore& storeOf(FieldDef& field, std::int64_t store, const DamageReport& damage) {
    if (store == static_cast<std::int64_t>(Store::Properties))
        return field.Properties();
    if (store == static_cast<std::int64_t>(Store::ListValues))
        return field.ListValues();
    if (store == static_cast<std::int64_t>(Store::Locales))
        return field.Locales();
    damage.fail("has values of an unknown store");
}

std::shared_ptr<FieldDef> readField(const Statement& row, const DamageReport& damage) {
    std::string name = damage.text(row, 1, "field name");
    if (name.empty())
        damage.fail("has a field without a name");
    auto field = std::make_shared<FieldDef>(std::move(name), damage.int32(row, 5, "field type"));
    field->SetDescription(damage.text(row, 2, "description"));
    field->SetDisplayName(damage.text(row, 3, "display name"));
    field->SetDefaultValue(damage.text(row, 4, "default value"));
    field->SetSize(damage.int32(row, 6, "size"));
    field->SetCtrlEdit(damage.text(row, 7, "edit control"));
    field->SetCtrlReadOnly(damage.text(row, 8, "read-only control"));
    field->SetCtrlList(damage.text(row, 9, "list control"));
    field->SetValidation(damage.int32(row, 10, "validation level"));
    field->SetCreateOnDemand(damage.int32(row, 11, "create-on-demand flag") != 0);
    return field;
}

void bindValue(Statement& insert, int index, const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Empty:
        insert.bind(index, std::int64_t{kEmpty}).bindNull(index + 1);
        return;
    case Value::Kind::Long:
        insert.bind(index, std::int64_t{kLong}).bind(index + 1, std::int64_t{value.asLong()});
        return;
    case Value::Kind::Text:
        insert.bind(index, std::int64_t{kText}).bind(index + 1, std::string_view(value.asText()));
        return;
    case Value::Kind::Boolean:
        insert.bind(index, std::int64_t{kBoolean})
            .bind(index + 1, std::int64_t{value.asBoolean() ? 1 : 0});
        return;
    }
}

void writeStore(Statement& insert, std::int64_t tableId, std::int64_t position, Store store,
                const PropertyStore& values) {
    std::int64_t sequence = 0;
    for (const ListEntry& entry : values) {
        insert.bind(1, tableId)
            .bind(2, position)
            .bind(3, std::int64_t{static_cast<std::int32_t>(store)})
            .bind(4, ++sequence)
            .bind(5, std::string_view(entry.Key));
        bindValue(insert, 6, entry.Value);
        insert.run();
    }
}

} // namespace

std::shared_ptr<FieldDefs> read(SqliteConnection& connection, std::int64_t tableId,
                                std::string_view tableName) {
    const DamageReport damage(connection, tableName);
    std::vector<std::shared_ptr<FieldDef>> fields;

    Statement fieldRows(connection,
                        "SELECT position, name, description, display_name, default_value, "
                        "field_type, size, ctrl_edit, ctrl_read_only, ctrl_list, validation, "
                        "create_on_demand FROM fields WHERE table_id = ? ORDER BY position");
    fieldRows.bind(1, tableId);
    while (fieldRows.step()) {
        if (fieldRows.integer(0) != static_cast<std::int64_t>(fields.size()) + 1)
            damage.fail("has a gap in its field positions");
        fields.push_back(readField(fieldRows, damage));
    }

    Statement valueRows(connection, "SELECT position, store, key, kind, value FROM field_values "
                                    "WHERE table_id = ? ORDER BY position, store, sequence");
    valueRows.bind(1, tableId);
    while (valueRows.step()) {
        const std::int64_t position = valueRows.integer(0);
        if (position < 1 || position > static_cast<std::int64_t>(fields.size()))
            damage.fail("has values of a field that does not exist");
        PropertyStore& store =
            storeOf(*fields[static_cast<std::size_t>(position - 1)], valueRows.integer(1), damage);
        const std::int32_t before = store.Count();
        store.SetValue(damage.text(valueRows, 2, "key"), damage.value(valueRows, 3, 4), true);
        if (store.Count() == before)
            damage.fail("has a key stored twice in one field");
    }

    auto result = std::make_shared<FieldDefs>();
    for (auto& field : fields) {
        try {
            result->Add(std::move(field));
        } catch (const FieldNameError& error) {
            damage.fail(std::string("has two fields of one name (") + error.what() + ")");
        }
    }
    return result;
}

void write(SqliteConnection& connection, std::int64_t tableId, const FieldDefs& fields) {
    Statement dropValues(connection, "DELETE FROM field_values WHERE table_id = ?");
    dropValues.bind(1, tableId).run();
    Statement dropFields(connection, "DELETE FROM fields WHERE table_id = ?");
    dropFields.bind(1, tableId).run();

    Statement insertField(connection, "INSERT INTO fields (table_id, position, name, description, "
                                      "display_name, default_value, field_type, size, ctrl_edit, "
                                      "ctrl_read_only, ctrl_list, validation, create_on_demand) "
                                      "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    Statement insertValue(connection, "INSERT INTO field_values (table_id, position, store, "
                                      "sequence, key, kind, value) VALUES (?, ?, ?, ?, ?, ?, ?)");
    std::int64_t position = 0;
    for (const auto& field : fields) {
        ++position;
        insertField.bind(1, tableId)
            .bind(2, position)
            .bind(3, std::string_view(field->Name()))
            .bind(4, std::string_view(field->Description()))
            .bind(5, std::string_view(field->DisplayName()))
            .bind(6, std::string_view(field->DefaultValue()))
            .bind(7, std::int64_t{field->FieldType()})
            .bind(8, std::int64_t{field->Size()})
            .bind(9, std::string_view(field->CtrlEdit()))
            .bind(10, std::string_view(field->CtrlReadOnly()))
            .bind(11, std::string_view(field->CtrlList()))
            .bind(12, std::int64_t{field->Validation()})
            .bind(13, std::int64_t{field->CreateOnDemand() ? 1 : 0});
        insertField.run();
        writeStore(insertValue, tableId, position, Store::Properties, field->Properties());
        writeStore(insertValue, tableId, position, Store::ListValues, field->ListValues());
        writeStore(insertValue, tableId, position, Store::Locales, field->Locales());
    }
}

} // namespace morvel::field_rows
