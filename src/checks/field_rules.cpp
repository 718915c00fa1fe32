// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "checks/field_rules.h"

#include "base/text.h"
#include "catalogue/field_types.h"
#include "catalogue/property_keys.h"
#include "catalogue/templates.h"
#include "checks/name_text.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <span>

namespace morvel::checks {

namespace {

using namespace catalogue;

std::string quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

// The parts of a comma-separated list, trimmed, empty ones left out.
std::vector<std::string_view> listParts(std::string_view text) {
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const auto comma = text.find(',');
        if (const auto part = trimmed(text.substr(0, comma)); !part.empty())
            parts.push_back(part);
        if (comma == std::string_view::npos)
            break;
        text.remove_prefix(comma + 1);
    }
    return parts;
}

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : ", ") + part;
    return text;
}

// A whole number written plainly: an optional sign and decimal digits, nothing else.
std::optional<std::int64_t> plainWhole(std::string_view text) {
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

bool isDecimal(std::string_view text) {
    const auto point = text.find('.');
    if (point == std::string_view::npos)
        return plainWhole(text).has_value();
    const std::string_view fraction = text.substr(point + 1);
    return (point == 0 || plainWhole(text.substr(0, point)) || text.substr(0, point) == "-") &&
           !fraction.empty() && std::all_of(fraction.begin(), fraction.end(), [](char c) {
               return c >= '0' && c <= '9';
           });
}

// A stored bit of a bit mask: one of 1, 2, 4, ... 2^31 (that last also as the Long -2^31).
bool isSingleBit(std::int64_t value) {
    if (value == -2147483648LL)
        return true;
    return value > 0 && value <= 2147483648LL && (value & (value - 1)) == 0;
}

std::string settingText(const FieldDef& field, std::string_view key) {
    const ListEntry* entry = field.Properties().Lookup(key);
    return entry ? std::string(trimmed(entry->Value.toText())) : std::string();
}

class Checker {
public:
    Checker(const FieldDef& field, const CheckContext& context)
        : m_field(field)
        , m_context(context)
        , m_type(field.FieldType()) {}

    std::vector<Problem> run() {
        checkName();
        checkLinks();
        checkReferences();
        checkListValues();
        checkDefault();
        checkTemplates();
        checkSize();
        return std::move(m_problems);
    }

private:
    void add(Rule rule, Severity severity, std::string what, std::string fix, ProblemBox box) {
        m_problems.push_back({m_field.id(), rule, severity, std::move(what), std::move(fix), box});
    }

    void checkName() {
        const std::string& name = m_field.Name();
        const ProblemBox box{"txtName"};
        if (trimmed(name).empty()) {
            add(Rule::NameBlank, Severity::Error, "The name is blank.",
                "Give the field a name of letters, digits and underscores.", box);
            return;
        }
        if (!isIdentifier(name))
            add(Rule::NameCharacters, Severity::Error,
                name.find(' ') != std::string::npos
                    ? "The name contains a blank."
                    : "The name contains characters other than letters, digits and underscore.",
                "Use only letters, digits and underscores (Order_Date, not Order Date).", box);
        if (const std::size_t length = characterCount(name); length > kMaxNameLength)
            add(Rule::NameTooLong, Severity::Error,
                "The name has " + std::to_string(length) + " characters, more than " +
                    std::to_string(kMaxNameLength) + ".",
                "Shorten the name to " + std::to_string(kMaxNameLength) + " characters at most.",
                box);
        if (m_context.caseTwin)
            if (const FieldDef* twin = m_context.caseTwin(m_field))
                add(Rule::NameCaseOnly, Severity::Error,
                    "The name differs from the field " + quoted(twin->Name()) +
                        " only in letter case.",
                    "Rename one of the two fields.", box);
        if (name.size() >= 2 && equalsIgnoringCase(std::string_view(name).substr(0, 2), "zr") &&
            !isSystemType(m_type))
            add(Rule::ReservedPrefix, Severity::Warning,
                "Names starting with \"zr\" are kept for the fields the system maintains.",
                "Rename the field, or give it one of the system types.", box);
    }

    bool tableKnown(const Value& value) const {
        const KnownTables& tables = *m_context.tables;
        if (value.kind() == Value::Kind::Long)
            return tables.ids.count(value.asLong()) != 0;
        const std::string text(trimmed(value.toText()));
        if (const auto id = plainWhole(text);
            id && tables.ids.count(static_cast<std::int32_t>(*id)))
            return true;
        std::string folded = text;
        for (char& c : folded)
            c = foldAscii(c);
        return tables.foldedNames.count(folded) != 0;
    }

    // A table named under key must be one of the database's.
    void checkTableSetting(std::string_view key, ProblemBox box) {
        const ListEntry* entry = m_field.Properties().Lookup(key);
        if (!m_context.tables || !entry || trimmed(entry->Value.toText()).empty() ||
            tableKnown(entry->Value))
            return;
        add(Rule::UnknownTable, Severity::Error,
            "The table " + quoted(entry->Value.toText()) + " is not in the database.",
            "Pick one of the database's tables.", box);
    }

    void checkLinks() {
        if (isDirectLinkType(m_type)) {
            const ProblemBox box{"cboLinkTableName", 2};
            const std::string objectType = settingText(m_field, kDirectObjectType);
            if (settingText(m_field, kDirectTable).empty() &&
                (objectType.empty() || objectType == "0"))
                add(Rule::LinkWithoutTarget, Severity::Error,
                    "The link names neither a table nor an object type.",
                    "Pick the table it links to, or give the object type.", box);
            checkTableSetting(kDirectTable, box);
        } else if (isAdoLinkType(m_type)) {
            if (settingText(m_field, kAdoTable).empty() && settingText(m_field, kAdoSql).empty() &&
                settingText(m_field, kAdoSelect).empty())
                add(Rule::LinkWithoutTarget, Severity::Error,
                    "The link names neither a table nor a query.",
                    "Give the table it links to, or the query that reads it.", {"txtTable", 2});
        } else if (m_type == type::SubTable) {
            checkTableSetting(kDirectSubTable, {"cboSubTable", 2});
        } else if (m_type == type::SubLink) {
            checkTableSetting(kSubLinkTable, {"txtSubLinkTable", 2});
        }
    }

    void checkReferences() {
        if (m_type == type::SubLink) {
            const ProblemBox box{"cboLinkFields", 2};
            const std::string name = settingText(m_field, kSubLinkField);
            const auto link = name.empty() ? nullptr : m_context.fields.find(name);
            if (name.empty())
                add(Rule::SubLinkField, Severity::Error, "The sub link names no link field.",
                    "Pick the Link field it follows.", box);
            else if (!link)
                add(Rule::SubLinkField, Severity::Error,
                    "The link field " + quoted(name) + " does not exist.",
                    "Pick one of the table's Link fields.", box);
            else if (link->FieldType() != type::Link)
                add(Rule::SubLinkField, Severity::Error,
                    "The field " + quoted(link->Name()) + " is of type " +
                        std::string(typeName(link->FieldType())) + ", not Link.",
                    "Pick one of the table's Link fields.", box);
        }
        if (m_type == type::Signature) {
            std::vector<std::string> missing;
            const std::string signedFields = settingText(m_field, kSignFields);
            for (std::string_view name : listParts(signedFields))
                if (!m_context.fields.find(name))
                    missing.push_back(quoted(name));
            if (!missing.empty())
                add(Rule::SignatureFields, Severity::Error,
                    "The signature covers fields that do not exist: " + joined(missing) + ".",
                    "Take them out of the signed fields, or add the fields.",
                    {"txtSignatureFields", 2});
        }
    }

    void checkListValues() {
        if (!isListType(m_type))
            return;
        if (m_field.ListValues().Count() == 0) {
            add(Rule::ListWithoutValues, Severity::Error, "The list has no values.",
                "Add its values with the list editor.", {"cmdList"});
            return;
        }
        if (!isBitMaskType(m_type))
            return;
        std::vector<std::string> odd;
        for (const ListEntry& entry : m_field.ListValues())
            if (const auto value = plainWhole(entry.Key); !value || !isSingleBit(*value))
                odd.push_back(quoted(entry.Key));
        if (!odd.empty())
            add(Rule::BitMaskValues, Severity::Error,
                "The bit mask values " + joined(odd) + " are not single bits.",
                "Use 1, 2, 4, 8 and so on, one bit a value.", {"cmdList"});
    }

    // Whether a default fits the type; an empty default always does.
    std::optional<std::string> defaultMismatch(std::string_view text) const {
        if (m_type == type::Long) {
            const auto number = plainWhole(text);
            if (!number || *number < -2147483648LL || *number > 2147483647LL)
                return "is not a whole number";
            return std::nullopt;
        }
        if (m_type == 5 || m_type == 6)
            return isDecimal(text) ? std::nullopt : std::optional<std::string>("is not a number");
        if (m_type == 11)
            return equalsIgnoringCase(text, "True") || equalsIgnoringCase(text, "False")
                       ? std::nullopt
                       : std::optional<std::string>("is neither True nor False");
        if (isBitMaskType(m_type)) {
            std::int64_t bits = 0;
            for (const ListEntry& entry : m_field.ListValues())
                bits |= plainWhole(entry.Key).value_or(0);
            const auto number = plainWhole(text);
            if (!number || (*number & ~bits) != 0)
                return "is not made of the stored bit values";
            return std::nullopt;
        }
        if (isListType(m_type)) {
            const bool multiple = m_type == type::MultipleList;
            for (std::string_view part : multiple ? listParts(text) : std::vector{text})
                if (!m_field.ListValues().Lookup(part))
                    return "is not one of the stored list values";
        }
        return std::nullopt;
    }

    void checkDefault() {
        const std::string& text = m_field.DefaultValue();
        if (text.empty())
            return;
        if (const auto mismatch = defaultMismatch(text))
            add(Rule::DefaultValue, Severity::Error,
                "The default value " + quoted(text) + " " + *mismatch + ".",
                "Give a default that a " + std::string(typeName(m_type)) +
                    " field can hold, or leave it empty.",
                {"txtDefault"});
    }

    void checkTemplate(const std::string& chosen, std::span<const std::string_view> offered,
                       Rule rule, const char* what, ProblemBox box) {
        if (chosen.empty() || std::find(offered.begin(), offered.end(), chosen) != offered.end())
            return;
        std::string choices;
        for (std::string_view each : offered)
            choices += (choices.empty() ? "" : ", ") + std::string(each);
        add(rule, Severity::Warning,
            std::string("The ") + what + " template " + quoted(chosen) +
                " is not one offered for " + std::string(typeName(m_type)) + " fields.",
            choices.empty() ? "Leave it empty." : "Pick one of " + choices + ".", box);
    }

    void checkTemplates() {
        checkTemplate(m_field.CtrlEdit(), editTemplates(m_type), Rule::EditTemplate, "edit",
                      {"txtCtrlEdit"});
        checkTemplate(m_field.CtrlReadOnly(), readOnlyTemplates(m_type), Rule::ReadOnlyTemplate,
                      "read-only", {"txtCtrlReadOnly"});
    }

    void checkSize() {
        const std::int32_t size = m_field.Size();
        if (hasSize(m_type) && (size < kMinSize || size > kMaxSize))
            add(Rule::Size, Severity::Error,
                "The size " + std::to_string(size) + " is outside " + std::to_string(kMinSize) +
                    " to " + std::to_string(kMaxSize) + ".",
                "Give a size from " + std::to_string(kMinSize) + " to " + std::to_string(kMaxSize) +
                    ".",
                {"txtSize"});
        else if (!hasSize(m_type) && size != 0)
            add(Rule::Size, Severity::Warning,
                std::string(typeName(m_type)) + " fields have no size; " + std::to_string(size) +
                    " is ignored.",
                "Set the size to 0 (change the type to VarChar and back to clear it).",
                {"cboType"});
    }

    const FieldDef& m_field;
    const CheckContext& m_context;
    std::int32_t m_type;
    std::vector<Problem> m_problems;
};

} // namespace

std::vector<Problem> checkField(const FieldDef& field, const CheckContext& context) {
    return Checker(field, context).run();
}

std::vector<std::string> referencedNames(const FieldDef& field) {
    std::vector<std::string> names;
    if (field.FieldType() == type::SubLink)
        if (std::string name = settingText(field, kSubLinkField); !name.empty())
            names.push_back(std::move(name));
    if (field.FieldType() == type::Signature) {
        const std::string signedFields = settingText(field, kSignFields);
        for (std::string_view name : listParts(signedFields))
            names.emplace_back(name);
    }
    return names;
}

const char* severityName(Severity severity) {
    return severity == Severity::Error ? "Error" : "Warning";
}

} // namespace morvel::checks
