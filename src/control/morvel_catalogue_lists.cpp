// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/field_types.h"
#include "catalogue/security.h"
#include "catalogue/templates.h"
#include "catalogue/validation.h"
#include "control/morvel.h"
#include "control/morvel_helpers.h"

namespace morvel::control {

namespace {

// Clears the list and adds the choices in order, each carrying its number as item data.
void fillChoices(view::ComboBox& list, std::span<const catalogue::Choice> choices) {
    list.clear();
    for (const catalogue::Choice& choice : choices) {
        const std::int32_t index = list.addItem(std::string(choice.text));
        list.setItemData(index, choice.itemData);
    }
}

void addSuggestions(view::ComboBox& box, std::span<const std::string_view> templates) {
    for (std::string_view name : templates)
        box.addItem(std::string(name));
}

} // namespace

void Morvel::FillTypeList(view::ComboBox& list) {
    fillChoices(list, catalogue::offeredTypes());
}

std::string Morvel::GetTypeName(std::int32_t code) const {
    return std::string(catalogue::typeName(code));
}

void Morvel::FillValidationList(view::ComboBox& list) {
    fillChoices(list, catalogue::validationLevels());
}

std::string Morvel::GetValidationName(std::int32_t code) const {
    return std::string(catalogue::validationName(code));
}

void Morvel::FillEditTemplates(std::int32_t code) {
    txtCtrlEdit.clear();
    addSuggestions(txtCtrlEdit, catalogue::editTemplates(code));
}

void Morvel::FillReadOnlyTemplates(std::int32_t code) {
    txtCtrlReadOnly.clear();
    // A sub table's suggestion lands in the edit box, not here; the edit list is refilled right
    // after, which clears it again, so the read-only list of a sub table stays empty.
    if (code == catalogue::type::SubTable) {
        addSuggestions(txtCtrlEdit, catalogue::editTemplates(code));
        return;
    }
    addSuggestions(txtCtrlReadOnly, catalogue::readOnlyTemplates(code));
}

void Morvel::FillCipherList(view::ComboBox& list) {
    fillChoices(list, catalogue::ciphers());
}

void Morvel::FillHashList(view::ComboBox& list) {
    fillChoices(list, catalogue::hashes());
}

void Morvel::FillCipherKeyLengths(view::ComboBox& list, std::int32_t cipherCode) {
    fillChoices(list, catalogue::cipherKeyLengths(cipherCode));
}

void Morvel::FillHashKeyLengths(view::ComboBox& list, std::int32_t hashCode) {
    fillChoices(list, catalogue::hashKeyLengths(hashCode));
}

void Morvel::SelectByItemData(view::ComboBox& list, std::int32_t value) {
    if (list.listCount() == 0)
        return;
    ScopedFlag loading(m_loading);
    list.setListIndex(-1);
    for (std::int32_t i = 0; i < list.listCount(); ++i) {
        if (list.itemData(i) == value) {
            list.setListIndex(i);
            return;
        }
    }
}

} // namespace morvel::control
