// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace morvel::catalogue {

// The keys under which a field keeps its type-dependent settings in its property store. They are
// case-exact, stored in every table definition ever saved, and must never change spelling: the
// encryption keys really are "Encyrpt.", as the definitions on disk have them.

// Encryption ("VarChar Encrypted", "Text Encrypted").
inline constexpr std::string_view kEncryptType = "Encyrpt.Type";
inline constexpr std::string_view kEncryptKeyLen = "Encyrpt.KeyLen";

// Signature.
inline constexpr std::string_view kSignType = "Sign.Type";
inline constexpr std::string_view kSignKeyLen = "Sign.KeyLen";
inline constexpr std::string_view kSignFields = "Sign.Flds";

// Links through the system's own tables, the directory types' connection, the sub table.
inline constexpr std::string_view kDirectTable = "zrDirect.Table";
inline constexpr std::string_view kDirectId = "zrDirect.ID";
inline constexpr std::string_view kDirectDisp = "zrDirect.Disp";
// A copy of kDirectDisp that older readers of the definitions expect; never read back.
inline constexpr std::string_view kDirectDispCopy = "zrDirect.Disp123";
inline constexpr std::string_view kDirectSelect = "zrDirect.Select";
inline constexpr std::string_view kDirectConnStr = "zrDirect.ConnStr";
inline constexpr std::string_view kDirectCoreFilter = "zrDirect.Q";
inline constexpr std::string_view kDirectAdditionalFilter = "zrDirect.IQ";
inline constexpr std::string_view kDirectOrderBy = "zrDirect.OB";
inline constexpr std::string_view kDirectObjectType = "zrDirect.OT";
inline constexpr std::string_view kDirectStatus = "zrDirect.S";
inline constexpr std::string_view kDirectSubTable = "zrDirect.ST";
inline constexpr std::string_view kDirectSubTableField = "zrDirect.STF";
inline constexpr std::string_view kLinkParent = "Lnk.Parent";

// Links through an ADO connection. The boxes write kAdoId, kAdoDisp and kAdoSelect while the
// panel shows kAdoIdField, kAdoDispField and kAdoSql: readers of the definitions rely on both.
inline constexpr std::string_view kAdoConnStr = "ADO.ConnStr";
inline constexpr std::string_view kAdoTable = "ADO.Table";
inline constexpr std::string_view kAdoId = "ADO.ID";
inline constexpr std::string_view kAdoDisp = "ADO.Disp";
inline constexpr std::string_view kAdoSelect = "ADO.Select";
inline constexpr std::string_view kAdoIdField = "ADO.IDField";
inline constexpr std::string_view kAdoDispField = "ADO.DispField";
inline constexpr std::string_view kAdoSql = "ADO.SQL";

// Sub link.
inline constexpr std::string_view kSubLinkField = "SubLnk.Lnk";
inline constexpr std::string_view kSubLinkTable = "SubLnk.Tbl";
inline constexpr std::string_view kSubLinkParentId = "SubLnk.PID";
inline constexpr std::string_view kSubLinkDisplayName = "SubLnk.DN";
inline constexpr std::string_view kSubLinkOrderBy = "SubLnk.OB";

} // namespace morvel::catalogue
