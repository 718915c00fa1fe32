// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "fields/field_def.h"

#include "base/error.h"
#include "fields/field_defs.h"

#include <utility>

namespace morvel {

FieldDef::FieldDef(std::string name, std::int32_t fieldType)
    : m_name(std::move(name))
    , m_fieldType(fieldType) {
    if (m_name.empty())
        throw FieldNameError("A field needs a name.");
    m_properties.setObserver(this);
    m_listValues.setObserver(this);
    m_locales.setObserver(this);
}

FieldDef::~FieldDef() = default;

void FieldDef::SetName(std::string name) {
    if (name == m_name)
        return;
    if (name.empty())
        throw FieldNameError("A field needs a name.");
    std::string old = m_name;
    if (m_collection)
        m_collection->rename(*this, std::move(name));
    else
        m_name = std::move(name);
    notify({*this, FieldMember::Name, {}, {}, Value(std::move(old)), Value(m_name)});
}

void FieldDef::SetDescription(std::string text) {
    setText(m_description, std::move(text), FieldMember::Description);
}
void FieldDef::SetDisplayName(std::string text) {
    setText(m_displayName, std::move(text), FieldMember::DisplayName);
}
void FieldDef::SetFieldType(std::int32_t code) {
    setNumber(m_fieldType, code, FieldMember::FieldType);
}
void FieldDef::SetSize(std::int32_t size) {
    setNumber(m_size, size, FieldMember::Size);
}
void FieldDef::SetDefaultValue(std::string text) {
    setText(m_defaultValue, std::move(text), FieldMember::DefaultValue);
}
void FieldDef::SetCtrlEdit(std::string text) {
    setText(m_ctrlEdit, std::move(text), FieldMember::CtrlEdit);
}
void FieldDef::SetCtrlReadOnly(std::string text) {
    setText(m_ctrlReadOnly, std::move(text), FieldMember::CtrlReadOnly);
}
void FieldDef::SetCtrlList(std::string text) {
    setText(m_ctrlList, std::move(text), FieldMember::CtrlList);
}
void FieldDef::SetValidation(std::int32_t code) {
    setNumber(m_validation, code, FieldMember::Validation);
}

void FieldDef::SetCreateOnDemand(bool flag) {
    if (flag == m_createOnDemand)
        return;
    m_createOnDemand = flag;
    notify({*this, FieldMember::CreateOnDemand, {}, {}, Value(!flag), Value(flag)});
}

void FieldDef::CommitListValues() {
    m_listValues.endRewrite();
    notify({*this, FieldMember::ListValuesCommitted, {}, {}, {}, {}});
}

namespace {
// Appending instead of "D" + std::string(locale): GCC 12 at -O3 reports a false -Wrestrict for
// operator+ on a literal and a temporary.
std::string localeKey(std::string_view prefix, std::string_view locale) {
    std::string key(prefix);
    key += locale;
    return key;
}
} // namespace

std::string FieldDef::LocaleDescription(std::string_view locale) const {
    return m_locales.GetValue(localeKey("D", locale), Value(std::string())).toText();
}
void FieldDef::SetLocaleDescription(std::string_view locale, std::string text) {
    m_locales.SetValue(localeKey("D", locale), Value(std::move(text)), true);
}
std::string FieldDef::LocaleDisplayName(std::string_view locale) const {
    return m_locales.GetValue(localeKey("DN", locale), Value(std::string())).toText();
}
void FieldDef::SetLocaleDisplayName(std::string_view locale, std::string text) {
    m_locales.SetValue(localeKey("DN", locale), Value(std::move(text)), true);
}

std::shared_ptr<FieldDef> FieldDef::Clone() const {
    auto copy = std::make_shared<FieldDef>(m_name, m_fieldType);
    copy->m_description = m_description;
    copy->m_displayName = m_displayName;
    copy->m_defaultValue = m_defaultValue;
    copy->m_ctrlEdit = m_ctrlEdit;
    copy->m_ctrlReadOnly = m_ctrlReadOnly;
    copy->m_ctrlList = m_ctrlList;
    copy->m_size = m_size;
    copy->m_validation = m_validation;
    copy->m_createOnDemand = m_createOnDemand;
    // Nobody observes the copy yet, so filling its stores tells no one.
    for (const auto& [from, to] :
         {std::pair{&m_properties, &copy->m_properties},
          std::pair{&m_listValues, &copy->m_listValues}, std::pair{&m_locales, &copy->m_locales}})
        for (const ListEntry& entry : *from)
            to->SetValue(entry.Key, entry.Value, true);
    return copy;
}

void FieldDef::restoreId(FieldId id) {
    if (m_collection)
        throw InvalidOperationError("The field \"" + m_name +
                                    "\" is in a collection: its identity cannot change.");
    FieldId::reserve(id);
    m_id = id;
}

Connection FieldDef::onChanged(std::function<void(const FieldChange&)> handler) {
    if (!m_changed)
        m_changed = std::make_unique<Signal<const FieldChange&>>();
    return m_changed->connect(std::move(handler));
}

void FieldDef::storeChanged(const PropertyStore& store, const StoreChange& change) {
    FieldMember member = FieldMember::Locales;
    if (&store == &m_properties)
        member = FieldMember::Properties;
    else if (&store == &m_listValues)
        member = FieldMember::ListValues;
    notify({*this,
            member,
            change.action,
            change.key,
            change.oldValue,
            change.newValue,
            {},
            change.position,
            change.cleared});
}

void FieldDef::setText(std::string& member, std::string text, FieldMember which) {
    if (text == member)
        return;
    std::string old = std::exchange(member, std::move(text));
    notify({*this, which, {}, {}, Value(std::move(old)), Value(member)});
}

void FieldDef::setNumber(std::int32_t& member, std::int32_t number, FieldMember which) {
    if (number == member)
        return;
    const std::int32_t old = std::exchange(member, number);
    notify({*this, which, {}, {}, Value(old), Value(number)});
}

void FieldDef::notify(FieldChange change) {
    if (m_collection)
        change.step = m_collection->stepTag();
    if (m_changed)
        m_changed->notify(change);
    if (m_collection)
        m_collection->changed.notify(change);
}

const char* memberName(FieldMember member) {
    switch (member) {
    case FieldMember::Name:
        return "Name";
    case FieldMember::Description:
        return "Description";
    case FieldMember::DisplayName:
        return "DisplayName";
    case FieldMember::FieldType:
        return "FieldType";
    case FieldMember::Size:
        return "Size";
    case FieldMember::DefaultValue:
        return "DefaultValue";
    case FieldMember::Properties:
        return "Properties";
    case FieldMember::ListValues:
        return "ListValues";
    case FieldMember::ListValuesCommitted:
        return "CommitListValues";
    case FieldMember::Locales:
        return "Locales";
    case FieldMember::CtrlEdit:
        return "CtrlEdit";
    case FieldMember::CtrlReadOnly:
        return "CtrlReadOnly";
    case FieldMember::CtrlList:
        return "CtrlList";
    case FieldMember::Validation:
        return "Validation";
    case FieldMember::CreateOnDemand:
        return "CreateOnDemand";
    }
    return "";
}

} // namespace morvel
