// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/choice.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace morvel::catalogue {

// Field type codes that the rules name.
namespace type {
inline constexpr std::int32_t Unknown = 0;
inline constexpr std::int32_t Long = 3;
inline constexpr std::int32_t VarChar = 8;
inline constexpr std::int32_t Text = 200;
inline constexpr std::int32_t Link = 1000;
inline constexpr std::int32_t LinkAdo = 1001;
inline constexpr std::int32_t SubLink = 1002;
inline constexpr std::int32_t MultipleLink = 1010;
inline constexpr std::int32_t MultipleLinkAdo = 1011;
inline constexpr std::int32_t List = 1100;
inline constexpr std::int32_t MultipleList = 1101;
inline constexpr std::int32_t BitMaskList = 1105;
inline constexpr std::int32_t MultipleBitMaskList = 1106;
inline constexpr std::int32_t Url = 2110;
inline constexpr std::int32_t DirectUser = 3000;
inline constexpr std::int32_t DirectGroup = 3001;
inline constexpr std::int32_t SubTable = 5000;
inline constexpr std::int32_t Tenant = 10008;
inline constexpr std::int32_t Signature = 10009;
inline constexpr std::int32_t VarCharEncrypted = 20008;
inline constexpr std::int32_t TextEncrypted = 20200;
} // namespace type

// The page a type's settings are edited on, behind the panel's second tab. The values are the
// numbers of the designer's panels; None has no second tab.
enum class TypePage : std::uint8_t {
    None = 0,
    Link = 2,
    Database = 3,
    SubTable = 4,
    SubLink = 5,
    Signature = 6,
    Encryption = 7,
};

// Families of type codes, as bits of TypeTraits::families.
namespace family {
inline constexpr std::uint16_t Link = 1U << 0;       // 1000, 1001, 1002, 1010, 1011
inline constexpr std::uint16_t DirectLink = 1U << 1; // 1000, 1010: settings under "zrDirect." keys
inline constexpr std::uint16_t AdoLink = 1U << 2;    // 1001, 1011: settings under "ADO." keys
inline constexpr std::uint16_t List = 1U << 3;       // 1100, 1101, 1105, 1106
inline constexpr std::uint16_t BitMask = 1U << 4;    // 1105, 1106
inline constexpr std::uint16_t FileLink = 1U << 5;   // 2000, 2010, 2020, 2100
inline constexpr std::uint16_t Directory = 1U << 6;  // 3000, 3001
inline constexpr std::uint16_t System = 1U << 7;     // 10000 to 10009
inline constexpr std::uint16_t Encrypted = 1U << 8;  // 20008, 20200
inline constexpr std::uint16_t Sized = 1U << 9;      // 8, 2110, 20008: a size of their own
} // namespace family

// Everything the designer knows of one type code. offered is the entry text of the type list,
// empty for a type that can only be shown; it differs from the name for 1002, whose entry is
// "Sub Link " with a trailing blank while its name has none.
struct TypeTraits {
    std::int32_t code;
    std::string_view name;
    std::string_view offered;
    std::uint16_t families;
    TypePage page;
};

// Every known type, the offered ones first in the order the type list adds them.
std::span<const TypeTraits> typeTraits();
// The traits of a known code; nullptr for any other.
const TypeTraits* findType(std::int32_t code);
// The caption of the second tab that shows the page; "" for None.
std::string_view tabCaption(TypePage page);
// The page of a type; None for an unknown code.
TypePage typePage(std::int32_t code);

// The 40 types a user can choose, in the order the type list adds them.
std::span<const Choice> offeredTypes();

// The display name of a type code: exact codes only; every other code is "Unknown".
std::string_view typeName(std::int32_t code);

// Families of type codes, each named once in the traits.
bool isLinkType(std::int32_t code);
bool isDirectLinkType(std::int32_t code);
bool isAdoLinkType(std::int32_t code);
bool isListType(std::int32_t code);
bool isBitMaskType(std::int32_t code);
bool isFileLinkType(std::int32_t code);
bool isDirectoryType(std::int32_t code);
bool isSystemType(std::int32_t code);
bool isEncryptedType(std::int32_t code);
bool hasSize(std::int32_t code);

} // namespace morvel::catalogue
