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
constexpr auto directLink = &isDirectLinkType;
constexpr auto adoLink = &isAdoLinkType;
constexpr auto directory = &isDirectoryType;
constexpr auto encrypted = &isEncryptedType;
constexpr bool kAnyType = true;

// box, types, key written, key shown, read default, shown as, written on, [any type, fill]
constexpr std::array<SettingBox, 36> kSettingBoxes{{
    // Encryption: the key lengths offered follow the cipher.
    {"cboEncryption", encrypted, kEncryptType, kEncryptType, "1", ItemData, Click, kAnyType},
    {"cboEncryptionKeyLen", encrypted, kEncryptKeyLen, kEncryptKeyLen, "0", ItemData, Click,
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
    {"txtConnStr", directory, kDirectConnStr, kDirectConnStr, "", Text, Change},
    // Database page of the ADO links. Three boxes write another key than they show.
    {"txtConnStr", adoLink, kAdoConnStr, kAdoConnStr, "", Text, Change},
    {"txtTable", adoLink, kAdoTable, kAdoTable, "", Text, Change},
    {"txtIDField", adoLink, kAdoId, kAdoIdField, "", Text, Change},
    {"txtDispField", adoLink, kAdoDisp, kAdoDispField, "", Text, Change},
    {"txtSQL", adoLink, kAdoSelect, kAdoSql, "", Text, Change},
    // The database page's boxes write the direct links' keys too, though a direct link's page is
    // the link page, which shows them.
    {"txtConnStr", directLink, kDirectConnStr, {}, {}, Text, Change},
    {"txtTable", directLink, kDirectTable, {}, {}, Text, Change},
    {"txtIDField", directLink, kDirectId, {}, {}, Text, Change},
    {"txtDispField", directLink, kDirectDisp, {}, {}, Text, Change},
    {"txtSQL", directLink, kDirectSelect, {}, {}, Text, Change},
    // Link page of "Link" and "Multiple Link".
    {"txtObjectType", directLink, kDirectObjectType, kDirectObjectType, "", Number, Change},
    {"txtCoreFilter", directLink, kDirectCoreFilter, kDirectCoreFilter, "", Text, Change},
    {"txtAdditionalFilter", directLink, kDirectAdditionalFilter, kDirectAdditionalFilter, "", Text,
     Change},
    {"txtStatus", directLink, kDirectStatus, kDirectStatus, "", Number, Change},
    {"txtOrderField", directLink, kDirectOrderBy, kDirectOrderBy, "DisplayName", Text, Change},
    {"txtLinkDisplayField", directLink, kDirectDisp, kDirectDisp, "DisplayName", Text, Change},
    {"txtLinkDisplayField", directLink, kDirectDispCopy, {}, {}, Text, Change},
    {"txtLinkIDField", directLink, kDirectId, kDirectId, "zrID", Text, Change},
    {"txtLinkSelect", directLink, kDirectSelect, kDirectSelect, "", Text, Change},
    {"txtLinkTableName", directLink, kDirectTable, kDirectTable, "", Text, Change},
    {"cboLinkTableName", directLink, kDirectTable, kDirectTable, "", Text, Change, !kAnyType,
     Fill::LinkTables},
    {"chkLinkParent", directLink, kLinkParent, kLinkParent, "False", Checked, Click, kAnyType},
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
