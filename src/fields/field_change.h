// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/change_step.h"
#include "fields/store_change.h"
#include "fields/value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace morvel {

class FieldDef;

// The member of a FieldDef that a write changed.
enum class FieldMember : std::uint8_t {
    Name,
    Description,
    DisplayName,
    FieldType,
    Size,
    DefaultValue,
    Properties,
    ListValues,
    ListValuesCommitted,
    Locales,
    CtrlEdit,
    CtrlReadOnly,
    CtrlList,
    Validation,
    CreateOnDemand,
};

// One change of one field: for a member its old and new value; for one of the three stores the
// store's own change (key, old and new value, the entry's position, the entries a Clear took);
// and the step it belongs to. Enough for dirty tracking and for undo.
struct FieldChange {
    FieldDef& field;
    FieldMember member;
    StoreChange::Action storeAction = StoreChange::Action::Changed;
    std::string key;
    Value oldValue;
    Value newValue;
    StepTag step = {};
    std::int32_t position = 0;
    std::shared_ptr<const std::vector<ListEntry>> cleared = {};
};

const char* memberName(FieldMember member);

} // namespace morvel
