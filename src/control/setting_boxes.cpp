#include "control/setting_boxes.h"

#include "catalogue/field_types.h"
#include "catalogue/property_keys.h"
#include "fields/field_utility.h"

#include <algorithm>
#include <array>

namespace morvel::control {

namespace {

using C = MorvelControls;
using enum Shown;
using enum Commit;
namespace c = catalogue;

bool subTable(std::int32_t code) {
    return code == c::type::SubTable;
}
bool subLink(std::int32_t code) {
    return code == c::type::SubLink;
}
bool signature(std::int32_t code) {
    return code == c::type::Signature;
}
constexpr auto directLink = &c::isDirectLinkType;
constexpr auto adoLink = &c::isAdoLinkType;
constexpr auto directory = &c::isDirectoryType;
constexpr auto encrypted = &c::isEncryptedType;
constexpr bool kAnyType = true;

// box, types, key written, key shown, read default, shown as, written on, [any type, fill]
constexpr std::array kSettingBoxes{
    // Encryption: the key lengths offered follow the cipher.
    SettingBox{&C::cboEncryption, encrypted, c::kEncryptType, c::kEncryptType, "1", ItemData, Click,
               kAnyType},
    SettingBox{&C::cboEncryptionKeyLen, encrypted, c::kEncryptKeyLen, c::kEncryptKeyLen, "0",
               ItemData, Click, kAnyType, Fill::CipherKeyLengths},
    // Signature: the key lengths offered follow the hash.
    SettingBox{&C::cboSignatureHash, signature, c::kSignType, c::kSignType, "1", ItemData, Click,
               kAnyType},
    SettingBox{&C::cboSignatureKeyLen, signature, c::kSignKeyLen, c::kSignKeyLen, "0", ItemData,
               Click, kAnyType, Fill::HashKeyLengths},
    SettingBox{&C::txtSignatureFields, signature, c::kSignFields, c::kSignFields, "", Text,
               LostFocus, kAnyType},
    // Sub table: typed as a number without a database, picked from its tables with one.
    SettingBox{&C::txtSubTableFieldID, subTable, c::kDirectSubTableField, c::kDirectSubTableField,
               "0", Number, Change},
    SettingBox{&C::txtSubTable, subTable, c::kDirectSubTable, c::kDirectSubTable, "0", Number,
               Change},
    SettingBox{&C::cboSubTable, subTable, c::kDirectSubTable, c::kDirectSubTable, "0", ItemData,
               Click, kAnyType, Fill::SubTables},
    // Database page of the directory types: the connection string alone.
    SettingBox{&C::txtConnStr, directory, c::kDirectConnStr, c::kDirectConnStr, "", Text, Change},
    // Database page of the ADO links. Three boxes write another key than they show.
    SettingBox{&C::txtConnStr, adoLink, c::kAdoConnStr, c::kAdoConnStr, "", Text, Change},
    SettingBox{&C::txtTable, adoLink, c::kAdoTable, c::kAdoTable, "", Text, Change},
    SettingBox{&C::txtIDField, adoLink, c::kAdoId, c::kAdoIdField, "", Text, Change},
    SettingBox{&C::txtDispField, adoLink, c::kAdoDisp, c::kAdoDispField, "", Text, Change},
    SettingBox{&C::txtSQL, adoLink, c::kAdoSelect, c::kAdoSql, "", Text, Change},
    // The database page's boxes write the direct links' keys too, though a direct link's page is
    // the link page, which shows them.
    SettingBox{&C::txtConnStr, directLink, c::kDirectConnStr, {}, {}, Text, Change},
    SettingBox{&C::txtTable, directLink, c::kDirectTable, {}, {}, Text, Change},
    SettingBox{&C::txtIDField, directLink, c::kDirectId, {}, {}, Text, Change},
    SettingBox{&C::txtDispField, directLink, c::kDirectDisp, {}, {}, Text, Change},
    SettingBox{&C::txtSQL, directLink, c::kDirectSelect, {}, {}, Text, Change},
    // Link page of "Link" and "Multiple Link".
    SettingBox{&C::txtObjectType, directLink, c::kDirectObjectType, c::kDirectObjectType, "",
               Number, Change},
    SettingBox{&C::txtCoreFilter, directLink, c::kDirectCoreFilter, c::kDirectCoreFilter, "", Text,
               Change},
    SettingBox{&C::txtAdditionalFilter, directLink, c::kDirectAdditionalFilter,
               c::kDirectAdditionalFilter, "", Text, Change},
    SettingBox{&C::txtStatus, directLink, c::kDirectStatus, c::kDirectStatus, "", Number, Change},
    SettingBox{&C::txtOrderField, directLink, c::kDirectOrderBy, c::kDirectOrderBy, "DisplayName",
               Text, Change},
    SettingBox{&C::txtLinkDisplayField, directLink, c::kDirectDisp, c::kDirectDisp, "DisplayName",
               Text, Change},
    SettingBox{&C::txtLinkDisplayField, directLink, c::kDirectDispCopy, {}, {}, Text, Change},
    SettingBox{&C::txtLinkIDField, directLink, c::kDirectId, c::kDirectId, "zrID", Text, Change},
    SettingBox{&C::txtLinkSelect, directLink, c::kDirectSelect, c::kDirectSelect, "", Text, Change},
    SettingBox{&C::txtLinkTableName, directLink, c::kDirectTable, c::kDirectTable, "", Text,
               Change},
    SettingBox{&C::cboLinkTableName, directLink, c::kDirectTable, c::kDirectTable, "", Text, Change,
               !kAnyType, Fill::LinkTables},
    SettingBox{&C::chkLinkParent, directLink, c::kLinkParent, c::kLinkParent, "False", Checked,
               Click, kAnyType},
    // Sub link: the linking field is picked from the collection's links.
    SettingBox{&C::cboLinkFields, subLink, c::kSubLinkField, c::kSubLinkField, "", EntryText, Click,
               kAnyType, Fill::LinkFields},
    SettingBox{&C::txtSubLinkTable, subLink, c::kSubLinkTable, c::kSubLinkTable, "", Text,
               LostFocus, kAnyType},
    SettingBox{&C::txtSubLinkPIDField, subLink, c::kSubLinkParentId, c::kSubLinkParentId, "", Text,
               LostFocus, kAnyType},
    SettingBox{&C::txtSubLinkDisplayName, subLink, c::kSubLinkDisplayName, c::kSubLinkDisplayName,
               "", Text, LostFocus, kAnyType},
    SettingBox{&C::txtSubLinkOrderBy, subLink, c::kSubLinkOrderBy, c::kSubLinkOrderBy, "", Text,
               LostFocus, kAnyType},
};

} // namespace

view::Control& BoxRef::in(MorvelControls& controls) const {
    return std::visit([&](auto member) -> view::Control& { return controls.*member; }, m_box);
}

const view::Control& BoxRef::in(const MorvelControls& controls) const {
    return std::visit([&](auto member) -> const view::Control& { return controls.*member; }, m_box);
}

std::string BoxRef::text(const MorvelControls& controls) const {
    if (const auto* box = std::get_if<view::TextBox MorvelControls::*>(&m_box))
        return (controls.**box).text();
    if (const auto* combo = std::get_if<view::ComboBox MorvelControls::*>(&m_box))
        return (controls.**combo).text();
    return {};
}

void BoxRef::setText(MorvelControls& controls, std::string text) const {
    if (const auto* box = std::get_if<view::TextBox MorvelControls::*>(&m_box))
        (controls.**box).setText(std::move(text));
    else if (const auto* combo = std::get_if<view::ComboBox MorvelControls::*>(&m_box))
        (controls.**combo).setText(std::move(text));
}

std::span<const SettingBox> settingBoxes() {
    return kSettingBoxes;
}

const SettingBox& settingOf(BoxRef box) {
    return *std::find_if(kSettingBoxes.begin(), kSettingBoxes.end(),
                         [&](const SettingBox& row) { return row.box == box; });
}

Value shownValue(const SettingBox& row, const PropertyStore& stored) {
    return stored.GetValue(row.shownKey, Value(std::string(row.readDefault)));
}

std::string shownText(const SettingBox& row, const PropertyStore& stored) {
    return shownValue(row, stored).toText();
}

std::int32_t shownNumber(const SettingBox& row, const PropertyStore& stored) {
    return FieldUtility::ToLong(shownValue(row, stored));
}

} // namespace morvel::control
