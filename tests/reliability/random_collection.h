// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/field_defs.h"
#include "reliability/random_source.h"

#include <cstdint>
#include <memory>
#include <string>

namespace morvel::reliability {

// A field of a random type with random settings: members, the property keys its type family
// reads (in every value kind, not only the one the designer writes), list values and locales.
std::shared_ptr<FieldDef> randomField(RandomSource& random);

// What one write changed: the member, and for a store the key.
struct FieldWrite {
    FieldMember member;
    std::string key = {};
};

// One write of a random member or stored key, of any kind, as a host, undo or a merge makes it.
FieldWrite randomWrite(RandomSource& random, FieldDef& field);

// A collection of count fields with distinct names, made from the seed alone so that a run can be
// replayed from it.
std::shared_ptr<FieldDefs> randomCollection(std::uint64_t seed, std::int32_t count);

// A type code: mostly one the type list offers, now and then one it does not ("System
// Reference" 10005, or a code no catalogue knows).
std::int32_t randomTypeCode(RandomSource& random);

} // namespace morvel::reliability
