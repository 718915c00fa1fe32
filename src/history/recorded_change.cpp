// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "history/recorded_change.h"

#include <string_view>
#include <utility>

namespace morvel {

namespace {

PropertyStore& storeOf(FieldDef& field, FieldMember member) {
    if (member == FieldMember::Properties)
        return field.Properties();
    if (member == FieldMember::ListValues)
        return field.ListValues();
    return field.Locales();
}

void setMember(FieldDef& field, FieldMember member, const Value& value) {
    switch (member) {
    case FieldMember::Name:
        return field.SetName(value.asText());
    case FieldMember::Description:
        return field.SetDescription(value.asText());
    case FieldMember::DisplayName:
        return field.SetDisplayName(value.asText());
    case FieldMember::FieldType:
        return field.SetFieldType(value.asLong());
    case FieldMember::Size:
        return field.SetSize(value.asLong());
    case FieldMember::DefaultValue:
        return field.SetDefaultValue(value.asText());
    case FieldMember::CtrlEdit:
        return field.SetCtrlEdit(value.asText());
    case FieldMember::CtrlReadOnly:
        return field.SetCtrlReadOnly(value.asText());
    case FieldMember::CtrlList:
        return field.SetCtrlList(value.asText());
    case FieldMember::Validation:
        return field.SetValidation(value.asLong());
    case FieldMember::CreateOnDemand:
        return field.SetCreateOnDemand(value.asBoolean());
    case FieldMember::ListValuesCommitted:
    case FieldMember::Properties:
    case FieldMember::ListValues:
    case FieldMember::Locales:
        return;
    }
}

std::size_t textBytes(const std::string& text) {
    // Short texts live inside the string object itself.
    return text.capacity() > 15 ? text.capacity() + 1 : 0;
}

std::size_t valueBytes(const Value& value) {
    return value.kind() == Value::Kind::Text ? textBytes(value.asText()) : 0;
}

std::size_t storeBytes(const PropertyStore& store) {
    std::size_t bytes = 0;
    for (const ListEntry& entry : store)
        bytes += sizeof(ListEntry) + textBytes(entry.Key) + valueBytes(entry.Value);
    return bytes;
}

} // namespace

RecordedChange RecordedChange::of(std::shared_ptr<FieldDef> field, const FieldChange& change) {
    RecordedChange recorded;
    const bool inStore = change.member == FieldMember::Properties ||
                         change.member == FieldMember::ListValues ||
                         change.member == FieldMember::Locales;
    recorded.kind = inStore ? Kind::Store : Kind::Member;
    recorded.member = change.member;
    recorded.action = change.storeAction;
    recorded.field = std::move(field);
    recorded.key = change.key;
    recorded.oldValue = change.oldValue;
    recorded.newValue = change.newValue;
    recorded.from = change.position;
    recorded.cleared = change.cleared;
    return recorded;
}

void RecordedChange::undo(FieldDefs& fields) const {
    switch (kind) {
    case Kind::Member:
        return setMember(*field, member, oldValue);
    case Kind::Insert:
        return fields.Remove(field->Name());
    case Kind::Remove:
        fields.Insert(from, field);
        return;
    case Kind::Move:
        return fields.Move(to, from);
    case Kind::Store:
        break;
    }
    PropertyStore& store = storeOf(*field, member);
    switch (action) {
    case StoreChange::Action::Added:
        return store.Remove(key);
    case StoreChange::Action::Changed:
        store.SetValue(key, oldValue, true);
        return;
    case StoreChange::Action::Removed:
        return store.Insert(from, key, oldValue);
    case StoreChange::Action::Cleared:
        // The store is empty again here: every later write of this step was undone first.
        for (const ListEntry& entry : *cleared)
            store.SetValue(entry.Key, entry.Value, true);
        return;
    }
}

void RecordedChange::redo(FieldDefs& fields) const {
    switch (kind) {
    case Kind::Member:
        if (member == FieldMember::ListValuesCommitted)
            return field->CommitListValues();
        return setMember(*field, member, newValue);
    case Kind::Insert:
        fields.Insert(from, field);
        return;
    case Kind::Remove:
        return fields.Remove(field->Name());
    case Kind::Move:
        return fields.Move(from, to);
    case Kind::Store:
        break;
    }
    PropertyStore& store = storeOf(*field, member);
    switch (action) {
    case StoreChange::Action::Added:
        return store.Insert(from, key, newValue);
    case StoreChange::Action::Changed:
        store.SetValue(key, newValue, true);
        return;
    case StoreChange::Action::Removed:
        return store.Remove(key);
    case StoreChange::Action::Cleared:
        return store.Clear();
    }
}

bool RecordedChange::mergeable() const {
    if (kind == Kind::Member)
        return member != FieldMember::ListValuesCommitted;
    return kind == Kind::Store &&
           (action == StoreChange::Action::Added || action == StoreChange::Action::Changed);
}

bool RecordedChange::sameTarget(const RecordedChange& other) const {
    return kind == other.kind && field == other.field && member == other.member && key == other.key;
}

void RecordedChange::absorb(RecordedChange&& later) {
    // An entry added by the first keystroke stays an addition at its place; only the value moves.
    newValue = std::move(later.newValue);
}

std::string RecordedChange::text() const {
    const std::string& name = field->Name();
    switch (kind) {
    case Kind::Insert:
        return "Add field " + name;
    case Kind::Remove:
        return "Remove field " + name;
    case Kind::Move:
        return "Move field " + name;
    case Kind::Member:
    case Kind::Store:
        break;
    }
    std::string text = "Change ";
    text += memberName(member);
    if (kind == Kind::Store && !key.empty())
        text += " " + key;
    return text + " of " + name;
}

std::size_t RecordedChange::bytes() const {
    std::size_t bytes =
        sizeof(RecordedChange) + textBytes(key) + valueBytes(oldValue) + valueBytes(newValue);
    if (cleared) {
        for (const ListEntry& entry : *cleared)
            bytes += sizeof(ListEntry) + textBytes(entry.Key) + valueBytes(entry.Value);
    }
    if (kind == Kind::Remove) {
        bytes += sizeof(FieldDef) + storeBytes(field->Properties()) +
                 storeBytes(field->ListValues()) + storeBytes(field->Locales());
    }
    return bytes;
}

} // namespace morvel
