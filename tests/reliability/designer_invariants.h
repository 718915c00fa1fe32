// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "control/morvel.h"
#include "dialogs/frm_locale.h"
#include "fields/field_defs.h"

#include <optional>
#include <set>
#include <string>

namespace morvel::reliability {

// What must hold after every event, read from the public state alone: the rows are the
// collection's fields (key and text the field's name, cells its values); SelectedFieldDef is the
// selected row's field (none with an empty list); at most two tabs, the second one the current
// type's; exactly the panel the selected tab calls for is visible; every value the panel shows is
// the stored value or its read default. Controls named in pending are exempt from the last rule
// (typed or picked but not yet stored, as the designer's rules allow). Returns what is broken.
std::optional<std::string> checkDesigner(const control::Morvel& designer, const FieldDefs* fields,
                                         const std::set<std::string>& pending);

// In the locale editor every row shows the field's stored texts of its locale, except the cells in
// blank ("K" & locale, then 1 for the display name or 2 for the description): a locale added with
// "Add" shows empty boxes until something is typed, whatever the field holds for it.
std::optional<std::string> checkLocaleEditor(const dialogs::frmLocale& form, const FieldDef& field,
                                             const std::set<std::pair<std::string, int>>& blank);

} // namespace morvel::reliability
