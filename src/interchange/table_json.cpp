// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "interchange/table_json.h"

#include "catalogue/field_types.h"
#include "interchange/import_error.h"
#include "interchange/json_position.h"

#include <algorithm>
#include <array>
#include <limits>
#include <nlohmann/json.hpp>
#include <span>
#include <utility>

namespace morvel::interchange {

namespace {

using Json = nlohmann::ordered_json;

// The members of a field in the order they are written; reading wants each of them once.
constexpr std::array<std::string_view, 14> kFieldMembers{
    "name",         "displayName", "description",    "fieldType", "size",
    "defaultValue", "validation",  "createOnDemand", "ctrlEdit",  "ctrlReadOnly",
    "ctrlList",     "properties",  "listValues",     "locales"};
constexpr std::array<std::string_view, 3> kDocumentMembers{"format", "table", "fields"};
constexpr std::array<std::string_view, 3> kTableMembers{"name", "displayName", "tableType"};
constexpr std::array<std::string_view, 3> kEntryMembers{"key", "kind", "value"};
// The kinds as the format spells them, in the order of Value::Kind; fixed, whatever a front end
// calls them.
constexpr std::array<std::string_view, 4> kKindNames{"Empty", "Long", "Text", "Boolean"};

std::string_view kindWord(Value::Kind kind) {
    return kKindNames[static_cast<std::size_t>(kind)];
}

// Writes the document as the JSON library's own dump with two-space indentation would, straight
// from the fields: building the library's document first costs more than the text itself at
// 100,000 fields.
class DocumentWriter {
public:
    // The text, with the newline that ends it.
    std::string take() {
        m_out += '\n';
        return std::move(m_out);
    }

    void open(char bracket) {
        m_out += bracket;
        m_first = true;
        ++m_depth;
    }
    void close(char bracket) {
        --m_depth;
        if (!m_first) {
            m_out += '\n';
            indent();
        }
        m_out += bracket;
        m_first = false;
    }
    // The start of an array element or of an object member.
    void next() {
        m_out += m_first ? "\n" : ",\n";
        m_first = false;
        indent();
    }
    void key(std::string_view name) {
        next();
        text(name);
        m_out += ": ";
    }
    void text(std::string_view value) {
        m_out += '"';
        std::size_t plain = 0;
        for (std::size_t i = 0; i < value.size(); ++i) {
            const auto byte = static_cast<unsigned char>(value[i]);
            if (byte >= 0x20 && byte != '"' && byte != '\\')
                continue;
            m_out.append(value.substr(plain, i - plain));
            plain = i + 1;
            escape(byte);
        }
        m_out.append(value.substr(plain));
        m_out += '"';
        checkUtf8(value);
    }
    void number(std::int32_t value) { m_out += std::to_string(value); }
    void flag(bool value) { m_out += value ? "true" : "false"; }
    void null() { m_out += "null"; }
    void textMember(std::string_view name, std::string_view value) {
        key(name);
        text(value);
    }
    void numberMember(std::string_view name, std::int32_t value) {
        key(name);
        number(value);
    }

private:
    void indent() { m_out.append(static_cast<std::size_t>(m_depth) * 2, ' '); }
    void escape(unsigned char byte) {
        switch (byte) {
        case '"':
            m_out += "\\\"";
            return;
        case '\\':
            m_out += "\\\\";
            return;
        case '\b':
            m_out += "\\b";
            return;
        case '\f':
            m_out += "\\f";
            return;
        case '\n':
            m_out += "\\n";
            return;
        case '\r':
            m_out += "\\r";
            return;
        case '\t':
            m_out += "\\t";
            return;
        default: {
            constexpr std::string_view kHex = "0123456789abcdef";
            m_out += "\\u00";
            m_out += kHex[byte >> 4U];
            m_out += kHex[byte & 0xFU];
        }
        }
    }
    // JSON text is UTF-8; a stored text that is not cannot be written.
    static void checkUtf8(std::string_view value) {
        for (std::size_t i = 0; i < value.size();) {
            const auto byte = static_cast<unsigned char>(value[i]);
            std::size_t extra = 0;
            std::uint32_t code = 0;
            if (byte < 0x80) {
                ++i;
                continue;
            }
            if (byte >= 0xC2 && byte <= 0xDF) {
                extra = 1;
                code = byte & 0x1FU;
            } else if (byte >= 0xE0 && byte <= 0xEF) {
                extra = 2;
                code = byte & 0x0FU;
            } else if (byte >= 0xF0 && byte <= 0xF4) {
                extra = 3;
                code = byte & 0x07U;
            } else {
                refuse(value);
            }
            if (i + extra >= value.size())
                refuse(value);
            for (std::size_t k = 1; k <= extra; ++k) {
                const auto next = static_cast<unsigned char>(value[i + k]);
                if ((next & 0xC0U) != 0x80U)
                    refuse(value);
                code = (code << 6U) | (next & 0x3FU);
            }
            const bool overlong = (extra == 2 && code < 0x800) || (extra == 3 && code < 0x10000);
            if (overlong || (code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF)
                refuse(value);
            i += extra + 1;
        }
    }
    [[noreturn]] static void refuse(std::string_view value) {
        throw Error("The definition holds a text that is not valid UTF-8: \"" + std::string(value) +
                    "\".");
    }

    std::string m_out;
    int m_depth = 0;
    bool m_first = true;
};

void writeStore(DocumentWriter& out, std::string_view name, const PropertyStore& store) {
    out.key(name);
    out.open('[');
    for (const ListEntry& entry : store) {
        out.next();
        out.open('{');
        out.textMember("key", entry.Key);
        out.textMember("kind", kindWord(entry.Value.kind()));
        out.key("value");
        switch (entry.Value.kind()) {
        case Value::Kind::Empty:
            out.null();
            break;
        case Value::Kind::Long:
            out.number(entry.Value.asLong());
            break;
        case Value::Kind::Text:
            out.text(entry.Value.asText());
            break;
        case Value::Kind::Boolean:
            out.flag(entry.Value.asBoolean());
            break;
        }
        out.close('}');
    }
    out.close(']');
}

void writeField(DocumentWriter& out, const FieldDef& field) {
    out.next();
    out.open('{');
    out.textMember("name", field.Name());
    out.textMember("displayName", field.DisplayName());
    out.textMember("description", field.Description());
    out.numberMember("fieldType", field.FieldType());
    out.numberMember("size", field.Size());
    out.textMember("defaultValue", field.DefaultValue());
    out.numberMember("validation", field.Validation());
    out.key("createOnDemand");
    out.flag(field.CreateOnDemand());
    out.textMember("ctrlEdit", field.CtrlEdit());
    out.textMember("ctrlReadOnly", field.CtrlReadOnly());
    out.textMember("ctrlList", field.CtrlList());
    writeStore(out, "properties", field.Properties());
    writeStore(out, "listValues", field.ListValues());
    writeStore(out, "locales", field.Locales());
    out.close('}');
}

const char* jsonKindName(const Json& value) {
    switch (value.type()) {
    case Json::value_t::null:
        return "null";
    case Json::value_t::boolean:
        return "true or false";
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
        return "a whole number";
    case Json::value_t::number_float:
        return "a number with a fraction";
    case Json::value_t::string:
        return "a text";
    case Json::value_t::array:
        return "an array";
    case Json::value_t::object:
        return "an object";
    default:
        return "a value of no JSON kind";
    }
}

// Turns a parsed document into a table, keeping the path it is at so that an error can name its
// place in the text.
class DocumentReader {
public:
    explicit DocumentReader(std::string_view text)
        : m_text(text) {}

    TableDocument read(const Json& root) {
        TableDocument table;
        expectObject(root, kDocumentMembers, "the document");
        const std::int32_t format = whole(member(root, "format"));
        if (format != kFormatVersion)
            fail("format version " + std::to_string(format) +
                 " is not one this program reads (it reads " + std::to_string(kFormatVersion) +
                 ")");
        m_path.pop_back();
        const Json& info = member(root, "table");
        expectObject(info, kTableMembers, "the table");
        table.name = textMember(info, "name");
        table.displayName = textMember(info, "displayName");
        table.tableType = wholeMember(info, "tableType");
        m_path.pop_back();

        const Json& fields = member(root, "fields");
        if (!fields.is_array())
            fail("\"fields\" must be an array of fields, found " +
                 std::string(jsonKindName(fields)));
        for (std::size_t i = 0; i < fields.size(); ++i) {
            m_path.emplace_back(i);
            table.fields->Add(readField(fields[i], *table.fields));
            m_path.pop_back();
            m_field.clear();
        }
        return table;
    }

private:
    std::shared_ptr<FieldDef> readField(const Json& object, const FieldDefs& fields) {
        if (object.is_object())
            if (const auto known = object.find("name"); known != object.end() && known->is_string())
                m_field = known->get<std::string>();
        expectObject(object, kFieldMembers, "a field");
        std::string name = text(member(object, "name"));
        if (name.empty())
            fail("a field needs a name");
        if (const auto other = fields.find(name)) {
            m_field = name;
            fail("the name is taken by an earlier field \"" + other->Name() +
                 "\" (names differ in more than letter case)");
        }
        m_path.pop_back();
        m_field = name;
        const std::int32_t code = whole(member(object, "fieldType"));
        if (!catalogue::findType(code))
            fail("the field type " + std::to_string(code) + " is not one this program knows");
        m_path.pop_back();

        auto field = std::make_shared<FieldDef>(std::move(name), code);
        field->SetDisplayName(textMember(object, "displayName"));
        field->SetDescription(textMember(object, "description"));
        field->SetSize(wholeMember(object, "size"));
        field->SetDefaultValue(textMember(object, "defaultValue"));
        field->SetValidation(wholeMember(object, "validation"));
        field->SetCreateOnDemand(flag(member(object, "createOnDemand")));
        m_path.pop_back();
        field->SetCtrlEdit(textMember(object, "ctrlEdit"));
        field->SetCtrlReadOnly(textMember(object, "ctrlReadOnly"));
        field->SetCtrlList(textMember(object, "ctrlList"));
        readStore(member(object, "properties"), field->Properties());
        m_path.pop_back();
        readStore(member(object, "listValues"), field->ListValues());
        m_path.pop_back();
        readStore(member(object, "locales"), field->Locales());
        m_path.pop_back();
        return field;
    }

    void readStore(const Json& entries, PropertyStore& store) {
        if (!entries.is_array())
            fail("a store must be an array of {key, kind, value}, found " +
                 std::string(jsonKindName(entries)));
        for (std::size_t i = 0; i < entries.size(); ++i) {
            m_path.emplace_back(i);
            const Json& entry = entries[i];
            expectObject(entry, kEntryMembers, "a stored value");
            const std::string key = text(member(entry, "key"));
            if (store.Lookup(key))
                fail("the key \"" + key + "\" is stored twice");
            m_path.pop_back();
            const std::string kind = text(member(entry, "kind"));
            m_path.pop_back();
            const Json& value = member(entry, "value");
            store.SetValue(key, valueOf(kind, value), true);
            m_path.pop_back();
            m_path.pop_back();
        }
    }

    Value valueOf(const std::string& kind, const Json& value) {
        if (kind == kindWord(Value::Kind::Empty)) {
            if (!value.is_null())
                fail("an Empty value must be null, found " + std::string(jsonKindName(value)));
            return {};
        }
        if (kind == kindWord(Value::Kind::Long))
            return Value(whole(value));
        if (kind == kindWord(Value::Kind::Text))
            return Value(text(value));
        if (kind == kindWord(Value::Kind::Boolean))
            return Value(flag(value));
        m_path.back() = std::string("kind");
        fail("the kind \"" + kind + "\" is none of Empty, Long, Text, Boolean");
    }

    // Checks that value is an object with exactly the members given, and enters it.
    void expectObject(const Json& value, std::span<const std::string_view> members,
                      const char* what) {
        if (!value.is_object())
            fail(std::string(what) + " must be an object, found " + jsonKindName(value));
        for (const auto& [key, ignored] : value.items()) {
            if (std::find(members.begin(), members.end(), key) == members.end()) {
                m_path.emplace_back(key);
                fail("\"" + key + "\" is not a member of " + what);
            }
        }
        for (std::string_view name : members)
            if (!value.contains(name))
                fail(std::string(what) + " has no \"" + std::string(name) + "\"");
    }

    // Enters the member (the caller leaves it again).
    const Json& member(const Json& object, std::string_view name) {
        m_path.emplace_back(std::string(name));
        return object.find(name).value();
    }
    std::string textMember(const Json& object, std::string_view name) {
        std::string result = text(member(object, name));
        m_path.pop_back();
        return result;
    }
    std::int32_t wholeMember(const Json& object, std::string_view name) {
        const std::int32_t result = whole(member(object, name));
        m_path.pop_back();
        return result;
    }

    std::string text(const Json& value) {
        if (!value.is_string())
            fail("expected a text, found " + std::string(jsonKindName(value)));
        return value.get<std::string>();
    }
    std::int32_t whole(const Json& value) {
        if (value.is_number_integer()) {
            const auto number = value.get<std::int64_t>();
            if (!value.is_number_unsigned() && number >= std::numeric_limits<std::int32_t>::min() &&
                number <= std::numeric_limits<std::int32_t>::max())
                return static_cast<std::int32_t>(number);
            if (value.is_number_unsigned() &&
                value.get<std::uint64_t>() <=
                    static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max()))
                return static_cast<std::int32_t>(value.get<std::uint64_t>());
            fail("the number is outside -2147483648 to 2147483647");
        }
        fail("expected a whole number, found " + std::string(jsonKindName(value)));
    }
    bool flag(const Json& value) {
        if (!value.is_boolean())
            fail("expected true or false, found " + std::string(jsonKindName(value)));
        return value.get<bool>();
    }

    [[noreturn]] void fail(const std::string& problem) const {
        const TextPosition at = locate(m_text, m_path);
        throw ImportError(problem, at.line, at.column, m_field);
    }

    std::string_view m_text;
    JsonPath m_path;
    std::string m_field;
};

} // namespace

std::string writeTableJson(const TableDocument& table) {
    DocumentWriter out;
    out.open('{');
    out.numberMember("format", kFormatVersion);
    out.key("table");
    out.open('{');
    out.textMember("name", table.name);
    out.textMember("displayName", table.displayName);
    out.numberMember("tableType", table.tableType);
    out.close('}');
    out.key("fields");
    out.open('[');
    for (const auto& field : *table.fields)
        writeField(out, *field);
    out.close(']');
    out.close('}');
    return out.take();
}

TableDocument readTableJson(std::string_view text) {
    Json root;
    try {
        root = Json::parse(text);
    } catch (const Json::parse_error& error) {
        const std::size_t offset = error.byte == 0 ? 0 : error.byte - 1;
        const TextPosition at = positionAt(text, offset);
        std::string reason = error.what();
        if (const auto colon = reason.find(": "); colon != std::string::npos)
            reason = reason.substr(colon + 2);
        throw ImportError("not valid JSON: " + reason, at.line, at.column,
                          fieldBefore(text, offset));
    }
    return DocumentReader(text).read(root);
}

} // namespace morvel::interchange
