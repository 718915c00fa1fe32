// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "store/field_rows.h"

#include "store/schema.h"
#include "store/sqlite_connection.h"
#include "store/statement.h"
#include "store/store_error.h"

#include <limits>
#include <string>
#include <unordered_map>
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

} // namespace

void writeStore(Statement& insert, std::int64_t tableId, std::int64_t fieldId, Store store,
                const PropertyStore& values) {
    std::int64_t sequence = 0;
    for (const ListEntry& entry : values) {
        insert.bind(1, tableId)
            .bind(2, fieldId)
            .bind(3, std::int64_t{static_cast<std::int32_t>(store)})
            .bind(4, ++sequence)
            .bind(5, std::string_view(entry.Key));
        bindValue(insert, 6, entry.Value);
        insert.run();
    }
}

std::shared_ptr<FieldDefs> read(SqliteConnection& connection, std::int64_t tableId,
                                std::string_view tableName, std::int32_t version) {
    const DamageReport damage(connection, tableName);
    std::vector<std::shared_ptr<FieldDef>> fields;
    // A version-1 file (opened to look at only) has no identities: its dense positions serve.
    const bool identified = version >= 2;
    Statement fieldRows(connection,
                        std::string("SELECT position, name, description, display_name, "
                                    "default_value, field_type, size, ctrl_edit, ctrl_read_only, "
                                    "ctrl_list, validation, create_on_demand, ") +
                            (identified ? "field_id" : "position") +
                            " FROM fields WHERE table_id = ? ORDER BY position");
    fieldRows.bind(1, tableId);
    std::unordered_map<std::int64_t, FieldDef*> byId;
    while (fieldRows.step()) {
        if (!identified && fieldRows.integer(0) != static_cast<std::int64_t>(fields.size()) + 1)
            damage.fail("has a gap in its field positions");
        auto field = readField(fieldRows, damage);
        const std::int64_t id = fieldRows.integer(12);
        if (id <= 0 || !byId.emplace(id, field.get()).second)
            damage.fail("has two fields of one identity");
        field->restoreId(FieldId(static_cast<std::uint64_t>(id)));
        fields.push_back(std::move(field));
    }

    Statement valueRows(connection, std::string("SELECT ") +
                                        (identified ? "field_id" : "position") +
                                        ", store, key, kind, value FROM field_values "
                                        "WHERE table_id = ? ORDER BY 1, store, sequence");
    valueRows.bind(1, tableId);
    while (valueRows.step()) {
        const auto field = byId.find(valueRows.integer(0));
        if (field == byId.end())
            damage.fail("has values of a field that does not exist");
        PropertyStore& store = storeOf(*field->second, valueRows.integer(1), damage);
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

Writer::Writer(SqliteConnection& connection, std::int64_t tableId)
    : m_connection(connection)
    , m_tableId(tableId)
    , m_insertField(connection, "INSERT INTO fields (table_id, position, field_id, name, "
                                "description, display_name, default_value, field_type, size, "
                                "ctrl_edit, ctrl_read_only, ctrl_list, validation, "
                                "create_on_demand) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
                                "?, ?)")
    , m_insertValue(connection, "INSERT INTO field_values (table_id, field_id, store, sequence, "
                                "key, kind, value) VALUES (?, ?, ?, ?, ?, ?, ?)") {}

Writer::~Writer() = default;

void Writer::bindMembers(Statement& statement, int first, const FieldDef& field) {
    statement.bind(first, std::string_view(field.Name()))
        .bind(first + 1, std::string_view(field.Description()))
        .bind(first + 2, std::string_view(field.DisplayName()))
        .bind(first + 3, std::string_view(field.DefaultValue()))
        .bind(first + 4, std::int64_t{field.FieldType()})
        .bind(first + 5, std::int64_t{field.Size()})
        .bind(first + 6, std::string_view(field.CtrlEdit()))
        .bind(first + 7, std::string_view(field.CtrlReadOnly()))
        .bind(first + 8, std::string_view(field.CtrlList()))
        .bind(first + 9, std::int64_t{field.Validation()})
        .bind(first + 10, std::int64_t{field.CreateOnDemand() ? 1 : 0});
}

void Writer::insert(const FieldDef& field, std::int64_t position) {
    const auto id = static_cast<std::int64_t>(field.id().value());
    m_insertField.bind(1, m_tableId).bind(2, position).bind(3, id);
    bindMembers(m_insertField, 4, field);
    m_insertField.run();
    writeStore(m_insertValue, m_tableId, id, Store::Properties, field.Properties());
    writeStore(m_insertValue, m_tableId, id, Store::ListValues, field.ListValues());
    writeStore(m_insertValue, m_tableId, id, Store::Locales, field.Locales());
}

void Writer::replaceAll(const FieldDefs& fields) {
    Statement dropValues(m_connection, "DELETE FROM field_values WHERE table_id = ?");
    dropValues.bind(1, m_tableId).run();
    Statement dropFields(m_connection, "DELETE FROM fields WHERE table_id = ?");
    dropFields.bind(1, m_tableId).run();
    std::int64_t position = 0;
    for (const auto& field : fields)
        insert(*field, position += kGap);
}

void write(SqliteConnection& connection, std::int64_t tableId, const FieldDefs& fields) {
    Writer(connection, tableId).replaceAll(fields);
}

} // namespace morvel::field_rows
