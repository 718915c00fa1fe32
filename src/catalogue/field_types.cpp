// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/field_types.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace morvel::catalogue {

namespace {

namespace f = family;
using enum TypePage;

constexpr std::uint16_t kLinkDirect = f::Link | f::DirectLink;
constexpr std::uint16_t kLinkAdo = f::Link | f::AdoLink;
constexpr std::uint16_t kBitMaskList = f::List | f::BitMask;

// The offered types in the order the type list adds them (not alphabetical, and it need not be:
// the type box sorts its entries), then the one type that is named but never offered.
constexpr std::array<TypeTraits, 41> kTypes{{
    {1105, "Bit Mask List", "Bit Mask List", kBitMaskList, None},
    {11, "Boolean", "Boolean", 0, None},
    {6, "Currency", "Currency", 0, None},
    {10006, "Created By", "Created By", f::System, None},
    {10002, "Date Created", "Date Created", f::System, None},
    {10003, "Date Modified", "Date Modified", f::System, None},
    {7, "Date Time", "Date Time", 0, None},
    {133, "Date Only", "Date Only", 0, None},
    {3000, "Direct User", "Direct User", f::Directory, Database},
    {3001, "Direct Group", "Direct Group", f::Directory, Database},
    {5, "Double", "Double", 0, None},
    {10004, "Extension ID", "Extension ID", f::System, None},
    {2000, "File Link", "File Link", f::FileLink, None},
    {2010, "File Link - Audio", "File Link - Audio", f::FileLink, None},
    {2100, "File Link - Picture", "File Link - Picture", f::FileLink, None},
    {2020, "File Link - Video", "File Link - Video", f::FileLink, None},
    {10000, "ID", "ID", f::System, None},
    {1000, "Link", "Link", kLinkDirect, Link},
    {1001, "Link ADO", "Link ADO", kLinkAdo, Database},
    {1100, "List", "List", f::List, None},
    {3, "Long", "Long", 0, None},
    {10008, "Tenant", "Tenant", f::System, None},
    {200, "Text", "Text", 0, None},
    {220, "Text - HTML", "Text - HTML", 0, None},
    {210, "Text - RTF", "Text - RTF", 0, None},
    {20200, "Text Encrypted", "Text Encrypted", f::Encrypted, Encryption},
    {145, "Time Only", "Time Only", 0, None},
    {10007, "Modified By", "Modified By", f::System, None},
    {1106, "Multiple Bit Mask List", "Multiple Bit Mask List", kBitMaskList, None},
    {1010, "Multiple Link", "Multiple Link", kLinkDirect, Link},
    {1011, "Multiple Link ADO", "Multiple Link ADO", kLinkAdo, Database},
    {1101, "Multiple List", "Multiple List", f::List, None},
    {10009, "Signature", "Signature", f::System, Signature},
    {10001, "Status", "Status", f::System, None},
    {1002, "Sub Link", "Sub Link ", f::Link, SubLink},
    {5000, "Sub Table", "Sub Table", 0, SubTable},
    {2110, "URL", "URL", f::Sized, None},
    {8, "VarChar", "VarChar", f::Sized, None},
    {20008, "VarChar Encrypted", "VarChar Encrypted", f::Encrypted | f::Sized, Encryption},
    {0, "Unknown", "Unknown", 0, None},
    {10005, "System Reference", "", f::System, None},
}};

constexpr std::size_t kOfferedCount = static_cast<std::size_t>(std::count_if(
    kTypes.begin(), kTypes.end(), [](const TypeTraits& t) { return !t.offered.empty(); }));

constexpr auto kOffered = [] {
    std::array<Choice, kOfferedCount> offered{};
    std::size_t next = 0;
    for (const TypeTraits& traits : kTypes)
        if (!traits.offered.empty())
            offered[next++] = Choice{traits.offered, traits.code};
    return offered;
}();

// Positions in kTypes sorted by code, for a binary search.
constexpr auto kByCode = [] {
    std::array<std::uint8_t, kTypes.size()> order{};
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<std::uint8_t>(i);
    std::sort(order.begin(), order.end(),
              [](std::uint8_t a, std::uint8_t b) { return kTypes[a].code < kTypes[b].code; });
    return order;
}();

bool inFamily(std::int32_t code, std::uint16_t bits) {
    const TypeTraits* traits = findType(code);
    return traits && (traits->families & bits) != 0;
}

} // namespace

std::span<const TypeTraits> typeTraits() {
    return kTypes;
}

const TypeTraits* findType(std::int32_t code) {
    const auto found =
        std::lower_bound(kByCode.begin(), kByCode.end(), code,
                         [](std::uint8_t index, std::int32_t c) { return kTypes[index].code < c; });
    return (found != kByCode.end() && kTypes[*found].code == code) ? &kTypes[*found] : nullptr;
}

std::string_view tabCaption(TypePage page) {
    switch (page) {
    case None:
        return {};
    case Link:
        return "Link Properties";
    case Database:
        return "Database";
    case SubTable:
        return "Sub Table";
    case SubLink:
        return "Sub Link";
    case Signature:
        return "Signature";
    case Encryption:
        return "Encryption";
    }
    return {};
}

TypePage typePage(std::int32_t code) {
    const TypeTraits* traits = findType(code);
    return traits ? traits->page : None;
}

std::span<const Choice> offeredTypes() {
    return kOffered;
}

std::string_view typeName(std::int32_t code) {
    const TypeTraits* traits = findType(code);
    return traits ? traits->name : "Unknown";
}

bool isLinkType(std::int32_t code) {
    return inFamily(code, f::Link);
}
bool isDirectLinkType(std::int32_t code) {
    return inFamily(code, f::DirectLink);
}
bool isAdoLinkType(std::int32_t code) {
    return inFamily(code, f::AdoLink);
}
bool isListType(std::int32_t code) {
    return inFamily(code, f::List);
}
bool isBitMaskType(std::int32_t code) {
    return inFamily(code, f::BitMask);
}
bool isFileLinkType(std::int32_t code) {
    return inFamily(code, f::FileLink);
}
bool isDirectoryType(std::int32_t code) {
    return inFamily(code, f::Directory);
}
bool isSystemType(std::int32_t code) {
    return inFamily(code, f::System);
}
bool isEncryptedType(std::int32_t code) {
    return inFamily(code, f::Encrypted);
}
bool hasSize(std::int32_t code) {
    return inFamily(code, f::Sized);
}

} // namespace morvel::catalogue
