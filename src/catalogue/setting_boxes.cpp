// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/setting_boxes.h"

#include "catalogue/field_types.h"
#include "catalogue/property_keys.h"

#include <algorithm>
#include <array>

namespace morvel::catalogue {

namespace {

using enum Shown;
using enum Commit;

bool subTable(std::int32_t code) {
    return code == type::SubTable;
}
bool subLink(std::int32_t code) {
    return code == type::SubLink;
}
bool signature(std::int32_t code) {
    return code == type::Signature;
}
constexpr auto kDirectLink = &isDirectLinkType;
constexpr auto kAdoLink = &isAdoLinkType;
constexpr auto kDirectory = &isDirectoryType;
constexpr auto kEncrypted = &isEncryptedType;
constexpr bool kAnyType = true;

// box, types, key written, key shown, read default, shown as, written on, [any type, fill]
constexpr std::array<SettingBox, 36> kSettingBoxes{{
    // Encryption: the key lengths offered follow the cipher.
    {"cboEncryption", kEncrypted, kEncryptType, kEncryptType, "1", ItemData, Click, kAnyType},
    {"cboEncryptionKeyLen", kEncrypted, kEncryptKeyLen, kEncryptKeyLen, "0", ItemData, Click,
     kAnyType, Fill::CipherKeyLengths},
    // Signature: the key lengths offered follow the hash.
    {"cboSignatureHash", signature, kSignType, kSignType, "1", ItemData, Click, kAnyType},
    {"cboSignatureKeyLen", signature, kSignKeyLen, kSignKeyLen, "0", ItemData, Click, kAnyType,
     Fill::HashKeyLengths},
    {"txtSignatureFields", signature, kSignFields, kSignFields, "", Text, LostFocus, kAnyType},
    // Sub table: typed as a number without a database, picked from its tables with one.
    {"txtSubTableFieldID", subTable, kDirectSubTableField, kDirectSubTableField, "0", Number,
     Change},
    {"txtSubTable", subTable, kDirectSubTable, kDirectSubTable, "0", Number, Change},
    {"cboSubTable", subTable, kDirectSubTable, kDirectSubTable, "0", ItemData, Click, kAnyType,
     Fill::SubTables},
    // Database page of the directory types: the connection string alone.
    {"txtConnStr", kDirectory, kDirectConnStr, kDirectConnStr, "", Text, Change},
    // Database page of the ADO links. Three boxes write another key than they show.
    {"txtConnStr", kAdoLink, kAdoConnStr, kAdoConnStr, "", Text, Change},
    {"txtTable", kAdoLink, kAdoTable, kAdoTable, "", Text, Change},
    {"txtIDField", kAdoLink, kAdoId, kAdoIdField, "", Text, Change},
    {"txtDispField", kAdoLink, kAdoDisp, kAdoDispField, "", Text, Change},
    {"txtSQL", kAdoLink, kAdoSelect, kAdoSql, "", Text, Change},
    // The database page's boxes write the direct links' keys too, though a direct link's page is
    // the link page, which shows them.
    {"txtConnStr", kDirectLink, kDirectConnStr, {}, {}, Text, Change},
    {"txtTable", kDirectLink, kDirectTable, {}, {}, Text, Change},
    {"txtIDField", kDirectLink, kDirectId, {}, {}, Text, Change},
    {"txtDispField", kDirectLink, kDirectDisp, {}, {}, Text, Change},
    {"txtSQL", kDirectLink, kDirectSelect, {}, {}, Text, Change},
    // Link page of "Link" and "Multiple Link".
    {"txtObjectType", kDirectLink, kDirectObjectType, kDirectObjectType, "", Number, Change},
    {"txtCoreFilter", kDirectLink, kDirectCoreFilter, kDirectCoreFilter, "", Text, Change},
    {"txtAdditionalFilter", kDirectLink, kDirectAdditionalFilter, kDirectAdditionalFilter, "", Text,
     Change},
    {"txtStatus", kDirectLink, kDirectStatus, kDirectStatus, "", Number, Change},
    {"txtOrderField", kDirectLink, kDirectOrderBy, kDirectOrderBy, "DisplayName", Text, Change},
    {"txtLinkDisplayField", kDirectLink, kDirectDisp, kDirectDisp, "DisplayName", Text, Change},
    {"txtLinkDisplayField", kDirectLink, kDirectDispCopy, {}, {}, Text, Change},
    {"txtLinkIDField", kDirectLink, kDirectId, kDirectId, "zrID", Text, Change},
    {"txtLinkSelect", kDirectLink, kDirectSelect, kDirectSelect, "", Text, Change},
    {"txtLinkTableName", kDirectLink, kDirectTable, kDirectTable, "", Text, Change},
    {"cboLinkTableName", kDirectLink, kDirectTable, kDirectTable, "", Text, Change, !kAnyType,
     Fill::LinkTables},
    {"chkLinkParent", kDirectLink, kLinkParent, kLinkParent, "False", Checked, Click, kAnyType},
    // Sub link: the linking field is picked from the collection's links.
    {"cboLinkFields", subLink, kSubLinkField, kSubLinkField, "", EntryText, Click, kAnyType,
     Fill::LinkFields},
    {"txtSubLinkTable", subLink, kSubLinkTable, kSubLinkTable, "", Text, LostFocus, kAnyType},
    {"txtSubLinkPIDField", subLink, kSubLinkParentId, kSubLinkParentId, "", Text, LostFocus,
     kAnyType},
    {"txtSubLinkDisplayName", subLink, kSubLinkDisplayName, kSubLinkDisplayName, "", Text,
     LostFocus, kAnyType},
    {"txtSubLinkOrderBy", subLink, kSubLinkOrderBy, kSubLinkOrderBy, "", Text, LostFocus, kAnyType},
}};

} // namespace

std::span<const SettingBox> settingBoxes() {
    return kSettingBoxes;
}

const SettingBox& settingOf(std::string_view box) {
    return *std::find_if(kSettingBoxes.begin(), kSettingBoxes.end(),
                         [&](const SettingBox& row) { return row.box == box; });
}

} // namespace morvel::catalogue
