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

// The 40 types a user can choose, in the order the type list adds them. The entry text of 1002
// is "Sub Link " with a trailing blank, unlike its name.
std::span<const Choice> offeredTypes();

// The display name of a type code: exact codes only; every other code is "Unknown". Kept apart
// from offeredTypes() on purpose: 1002 is named without the blank, and 10005 "System Reference"
// is named but never offered.
std::string_view typeName(std::int32_t code);

// Families of type codes, each named once here.
bool isLinkType(std::int32_t code);       // 1000, 1001, 1002, 1010, 1011
bool isDirectLinkType(std::int32_t code); // 1000, 1010: settings under "zrDirect." keys
bool isAdoLinkType(std::int32_t code);    // 1001, 1011: settings under "ADO." keys
bool isListType(std::int32_t code);       // 1100, 1101, 1105, 1106
bool isBitMaskType(std::int32_t code);    // 1105, 1106
bool isFileLinkType(std::int32_t code);   // 2000, 2010, 2020, 2100
bool isDirectoryType(std::int32_t code);  // 3000, 3001
bool isSystemType(std::int32_t code);     // 10000 to 10009
bool isEncryptedType(std::int32_t code);  // 20008, 20200
bool hasSize(std::int32_t code);          // 8, 2110, 20008

} // namespace morvel::catalogue
