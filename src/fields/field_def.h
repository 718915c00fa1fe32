// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "fields/field_change.h"
#include "fields/field_id.h"
#include "fields/property_store.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace morvel {

class FieldDefs;

// One field definition of a table. Shared by reference (std::shared_ptr) among the host, the
// designer and its dialogs; every write takes effect at once and raises changed() when it changes
// something (a write of the value already held raises nothing).
//
// Names: an empty name is refused, and so is a name that equals another field's name of the same
// collection when letter case is ignored; both throw FieldNameError. A field may change only the
// letter case of its own name.
class FieldDef final : private StoreObserver {
public:
    explicit FieldDef(std::string name = "NewField", std::int32_t fieldType = 200);
    FieldDef(const FieldDef&) = delete;
    FieldDef& operator=(const FieldDef&) = delete;
    ~FieldDef() override;

    const std::string& Name() const { return m_name; }
    void SetName(std::string name);
    const std::string& Description() const { return m_description; }
    void SetDescription(std::string text);
    const std::string& DisplayName() const { return m_displayName; }
    void SetDisplayName(std::string text);
    std::int32_t FieldType() const { return m_fieldType; }
    void SetFieldType(std::int32_t code);
    std::int32_t Size() const { return m_size; }
    void SetSize(std::int32_t size);
    const std::string& DefaultValue() const { return m_defaultValue; }
    void SetDefaultValue(std::string text);

    PropertyStore& Properties() { return m_properties; }
    const PropertyStore& Properties() const { return m_properties; }
    PropertyStore& ListValues() { return m_listValues; }
    const PropertyStore& ListValues() const { return m_listValues; }
    // Ends a rewrite of ListValues (Clear followed by SetValue for every entry) and tells observers
    // that the list is complete again.
    void CommitListValues();

    // Per-locale texts live in Locales under "DN" & locale and "D" & locale.
    std::string LocaleDescription(std::string_view locale) const;
    void SetLocaleDescription(std::string_view locale, std::string text);
    std::string LocaleDisplayName(std::string_view locale) const;
    void SetLocaleDisplayName(std::string_view locale, std::string text);
    PropertyStore& Locales() { return m_locales; }
    const PropertyStore& Locales() const { return m_locales; }

    const std::string& CtrlEdit() const { return m_ctrlEdit; }
    void SetCtrlEdit(std::string text);
    const std::string& CtrlReadOnly() const { return m_ctrlReadOnly; }
    void SetCtrlReadOnly(std::string text);
    const std::string& CtrlList() const { return m_ctrlList; }
    void SetCtrlList(std::string text);
    std::int32_t Validation() const { return m_validation; }
    void SetValidation(std::int32_t code);
    bool CreateOnDemand() const { return m_createOnDemand; }
    void SetCreateOnDemand(bool flag);

    // A new field with every member and every stored entry of this one (kinds and order kept),
    // in no collection, with an identity of its own.
    std::shared_ptr<FieldDef> Clone() const;

    // Given when the field is made and kept for its life, through renames and moves.
    FieldId id() const { return m_id; }
    // For a load only: gives the field back the identity it was saved with. Refused
    // (InvalidOperationError) while the field is in a collection, whose listeners know it by id.
    void restoreId(FieldId id);

    // Observes this field alone; a collection's changed() observes all of its fields.
    [[nodiscard]] Connection onChanged(std::function<void(const FieldChange&)> handler);

    // The collection that holds this field, or null.
    FieldDefs* collection() const { return m_collection; }

private:
    friend class FieldDefs;

    void storeChanged(const PropertyStore& store, const StoreChange& change) override;
    void setText(std::string& member, std::string text, FieldMember which);
    void setNumber(std::int32_t& member, std::int32_t number, FieldMember which);
    void notify(FieldChange change);

    std::string m_name;
    std::string m_description;
    std::string m_displayName;
    std::string m_defaultValue;
    std::string m_ctrlEdit;
    std::string m_ctrlReadOnly;
    std::string m_ctrlList;
    PropertyStore m_properties;
    PropertyStore m_listValues;
    PropertyStore m_locales;
    std::int32_t m_fieldType;
    std::int32_t m_size = 0;
    std::int32_t m_validation = 0;
    bool m_createOnDemand = false;
    FieldId m_id = FieldId::fresh();
    FieldDefs* m_collection = nullptr;
    // Most fields are never observed one by one; the signal is made on the first connect.
    std::unique_ptr<Signal<const FieldChange&>> m_changed;
};

} // namespace morvel
