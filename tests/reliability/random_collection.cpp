// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "reliability/random_collection.h"

#include "base/error.h"
#include "catalogue/field_types.h"
#include "catalogue/property_keys.h"

#include <array>
#include <string_view>
#include <vector>

namespace morvel::reliability {

namespace {

using namespace catalogue;

// Every key the panel reads or the handlers write, so that loads meet stored values of every
// kind and edits meet keys that exist already. The order is part of every seed's run.
// clang-format off
constexpr std::array<std::string_view, 33> kPropertyKeys{
    kEncryptType, kEncryptKeyLen, kSignType, kSignKeyLen, kSignFields, kDirectSubTable,
    kDirectSubTableField, kDirectConnStr, kAdoConnStr, kAdoTable, kAdoId, kAdoIdField, kAdoDisp,
    kAdoDispField, kAdoSelect, kAdoSql, kSubLinkField, kSubLinkTable, kSubLinkParentId,
    kSubLinkDisplayName, kSubLinkOrderBy, kDirectObjectType, kDirectCoreFilter,
    kDirectAdditionalFilter, kDirectStatus, kDirectOrderBy, kDirectDisp, kDirectDispCopy, kDirectId,
    kDirectSelect, kDirectTable, kLinkParent, "LDN1036"};
// clang-format on

Value randomValue(RandomSource& random) {
    switch (random.between(0, 5)) {
    case 0:
        return Value(random.between(-3, 3));
    case 1:
        return Value(random.pick(std::vector<std::int32_t>{0, 1, 2, 64, 128, 192, 256, 448, 512}));
    case 2:
        return Value(random.chance(0.5));
    case 3:
        return Value(random.numberish());
    default:
        return Value(random.text());
    }
}

std::string localeNumber(RandomSource& random) {
    return std::to_string(random.pick(std::vector<std::int32_t>{1031, 1033, 1036, 2057, 3082}));
}

} // namespace

std::int32_t randomTypeCode(RandomSource& random) {
    if (random.chance(0.02))
        return random.chance(0.5) ? 10005 : random.between(-5, 99999);
    const auto types = catalogue::offeredTypes();
    return types[random.index(types.size())].itemData;
}

std::shared_ptr<FieldDef> randomField(RandomSource& random) {
    auto field = std::make_shared<FieldDef>(random.fieldName(), randomTypeCode(random));
    if (random.chance(0.6))
        field->SetDisplayName(random.text());
    if (random.chance(0.3))
        field->SetDescription(random.text());
    if (random.chance(0.3))
        field->SetDefaultValue(random.text());
    if (random.chance(0.5))
        field->SetSize(random.chance(0.9) ? random.between(0, 4000) : random.between(-9, -1));
    field->SetValidation(random.chance(0.95) ? random.between(0, 2) : random.between(3, 9));
    field->SetCreateOnDemand(random.chance(0.2));
    if (random.chance(0.5))
        field->SetCtrlEdit(random.chance(0.5) ? "TEXTBOX" : random.word(8));
    if (random.chance(0.5))
        field->SetCtrlReadOnly(random.chance(0.5) ? "LABEL" : random.word(8));
    if (random.chance(0.3))
        field->SetCtrlList(random.word(8));

    const std::int32_t settings = random.between(0, 8);
    for (std::int32_t i = 0; i < settings; ++i)
        field->Properties().SetValue(kPropertyKeys[random.index(kPropertyKeys.size())],
                                     randomValue(random), true);

    if (catalogue::isListType(field->FieldType()) || random.chance(0.05)) {
        const std::int32_t values = random.between(0, 6);
        for (std::int32_t i = 0; i < values; ++i) {
            const std::string key = random.chance(0.9)
                                        ? std::to_string(std::int64_t{1} << random.between(0, 31))
                                        : random.numberish();
            field->ListValues().SetValue(key, Value(random.word(8)), true);
        }
    }

    // Locales as the editor writes them, now and then with descriptions only, and rarely with keys
    // no editor writes.
    const std::int32_t locales = random.chance(0.7) ? 0 : random.between(1, 3);
    const bool descriptionsOnly = random.chance(0.2);
    for (std::int32_t i = 0; i < locales; ++i) {
        const std::string n = localeNumber(random);
        if (!descriptionsOnly)
            field->SetLocaleDisplayName(n, random.text());
        if (random.chance(0.7))
            field->SetLocaleDescription(n, random.text());
    }
    if (random.chance(0.01))
        field->Locales().SetValue(random.pick(std::vector<std::string>{"D", "DN", "X1", "DN 7"}),
                                  Value(random.word(4)), true);
    return field;
}

FieldWrite randomWrite(RandomSource& random, FieldDef& field) {
    const std::int32_t roll = random.between(0, 19);
    const auto text = [&] { return random.text(); };
    switch (roll) {
    case 0:
        field.SetDisplayName(text());
        return {FieldMember::DisplayName};
    case 1:
        field.SetDescription(text());
        return {FieldMember::Description};
    case 2:
        field.SetDefaultValue(text());
        return {FieldMember::DefaultValue};
    case 3:
    case 4:
        field.SetFieldType(randomTypeCode(random));
        return {FieldMember::FieldType};
    case 5:
        field.SetSize(random.between(-2, 4000));
        return {FieldMember::Size};
    case 6:
        field.SetValidation(random.between(0, 3));
        return {FieldMember::Validation};
    case 7:
        field.SetCtrlEdit(random.chance(0.5) ? "TEXTBOX" : random.word(8));
        return {FieldMember::CtrlEdit};
    case 8:
        field.SetCtrlReadOnly(random.word(8));
        return {FieldMember::CtrlReadOnly};
    case 9:
        field.SetCtrlList(random.word(8));
        return {FieldMember::CtrlList};
    case 10:
        field.SetCreateOnDemand(!field.CreateOnDemand());
        return {FieldMember::CreateOnDemand};
    case 11:
    case 12: {
        const std::string key(kPropertyKeys[random.index(kPropertyKeys.size())]);
        field.Properties().Remove(key);
        return {FieldMember::Properties, key};
    }
    case 17: {
        const std::string key = std::to_string(std::int64_t{1} << random.between(0, 31));
        field.ListValues().SetValue(key, Value(random.word(8)), true);
        return {FieldMember::ListValues, key};
    }
    case 18: {
        const std::string n = localeNumber(random);
        field.SetLocaleDisplayName(n, text());
        return {FieldMember::Locales, "DN" + n};
    }
    default: {
        const std::string key(kPropertyKeys[random.index(kPropertyKeys.size())]);
        field.Properties().SetValue(key, randomValue(random), true);
        return {FieldMember::Properties, key};
    }
    }
}

std::shared_ptr<FieldDefs> randomCollection(std::uint64_t seed, std::int32_t count) {
    RandomSource random(seed);
    auto fields = std::make_shared<FieldDefs>();
    while (fields->Count() < count) {
        auto field = randomField(random);
        if (!fields->find(field->Name()))
            fields->Add(std::move(field));
    }
    return fields;
}

} // namespace morvel::reliability
