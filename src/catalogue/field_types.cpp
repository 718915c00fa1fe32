#include "catalogue/field_types.h"

#include <algorithm>
#include <array>

namespace morvel::catalogue {

namespace {

constexpr std::array<Choice, 40> kOfferedTypes{{
    {"Bit Mask List", 1105},
    {"Boolean", 11},
    {"Currency", 6},
    {"Created By", 10006},
    {"Date Created", 10002},
    {"Date Modified", 10003},
    {"Date Time", 7},
    {"Date Only", 133},
    {"Direct User", 3000},
    {"Direct Group", 3001},
    {"Double", 5},
    {"Extension ID", 10004},
    {"File Link", 2000},
    {"File Link - Audio", 2010},
    {"File Link - Picture", 2100},
    {"File Link - Video", 2020},
    {"ID", 10000},
    {"Link", 1000},
    {"Link ADO", 1001},
    {"List", 1100},
    {"Long", 3},
    {"Tenant", 10008},
    {"Text", 200},
    {"Text - HTML", 220},
    {"Text - RTF", 210},
    {"Text Encrypted", 20200},
    {"Time Only", 145},
    {"Modified By", 10007},
    {"Multiple Bit Mask List", 1106},
    {"Multiple Link", 1010},
    {"Multiple Link ADO", 1011},
    {"Multiple List", 1101},
    {"Signature", 10009},
    {"Status", 10001},
    {"Sub Link ", 1002},
    {"Sub Table", 5000},
    {"URL", 2110},
    {"VarChar", 8},
    {"VarChar Encrypted", 20008},
    {"Unknown", 0},
}};

struct TypeName {
    std::int32_t code;
    std::string_view name;
};

// Sorted by code for a binary search.
constexpr std::array<TypeName, 41> kTypeNames{{
    {0, "Unknown"},
    {3, "Long"},
    {5, "Double"},
    {6, "Currency"},
    {7, "Date Time"},
    {8, "VarChar"},
    {11, "Boolean"},
    {133, "Date Only"},
    {145, "Time Only"},
    {200, "Text"},
    {210, "Text - RTF"},
    {220, "Text - HTML"},
    {1000, "Link"},
    {1001, "Link ADO"},
    {1002, "Sub Link"},
    {1010, "Multiple Link"},
    {1011, "Multiple Link ADO"},
    {1100, "List"},
    {1101, "Multiple List"},
    {1105, "Bit Mask List"},
    {1106, "Multiple Bit Mask List"},
    {2000, "File Link"},
    {2010, "File Link - Audio"},
    {2020, "File Link - Video"},
    {2100, "File Link - Picture"},
    {2110, "URL"},
    {3000, "Direct User"},
    {3001, "Direct Group"},
    {5000, "Sub Table"},
    {10000, "ID"},
    {10001, "Status"},
    {10002, "Date Created"},
    {10003, "Date Modified"},
    {10004, "Extension ID"},
    {10005, "System Reference"},
    {10006, "Created By"},
    {10007, "Modified By"},
    {10008, "Tenant"},
    {10009, "Signature"},
    {20008, "VarChar Encrypted"},
    {20200, "Text Encrypted"},
}};

template <std::size_t N> bool isOneOf(std::int32_t code, const std::int32_t (&codes)[N]) {
    return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

} // namespace

std::span<const Choice> offeredTypes() {
    return kOfferedTypes;
}

std::string_view typeName(std::int32_t code) {
    auto found =
        std::lower_bound(kTypeNames.begin(), kTypeNames.end(), code,
                         [](const TypeName& entry, std::int32_t c) { return entry.code < c; });
    return (found != kTypeNames.end() && found->code == code) ? found->name : "Unknown";
}

bool isLinkType(std::int32_t code) {
    return isOneOf(code, {1000, 1001, 1002, 1010, 1011});
}
bool isDirectLinkType(std::int32_t code) {
    return isOneOf(code, {1000, 1010});
}
bool isAdoLinkType(std::int32_t code) {
    return isOneOf(code, {1001, 1011});
}
bool isListType(std::int32_t code) {
    return isOneOf(code, {1100, 1101, 1105, 1106});
}
bool isBitMaskType(std::int32_t code) {
    return isOneOf(code, {1105, 1106});
}
bool isFileLinkType(std::int32_t code) {
    return isOneOf(code, {2000, 2010, 2020, 2100});
}
bool isDirectoryType(std::int32_t code) {
    return isOneOf(code, {3000, 3001});
}
bool isSystemType(std::int32_t code) {
    return code >= 10000 && code <= 10009;
}
bool isEncryptedType(std::int32_t code) {
    return isOneOf(code, {20008, 20200});
}
bool hasSize(std::int32_t code) {
    return isOneOf(code, {8, 2110, 20008});
}

} // namespace morvel::catalogue
