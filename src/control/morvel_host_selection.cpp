// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/morvel.h"

namespace morvel::control {

bool Morvel::SelectFieldByName(std::string_view name) {
    // The collection's look-up ignores letter case; the row's key is the field's own name.
    const FieldDefPtr field = moFieldDefs ? moFieldDefs->find(name) : nullptr;
    view::ListItem* row = field ? lst.find(field->Name()) : nullptr;
    if (!row)
        return false;
    leaveFocusedBox();
    lst.setSelectedItem(row);
    lst.ensureVisible(*row);
    ShowSelectedRow();
    // Showing a field may put the focus into its type box; the keyboard belongs on the list, as
    // after a person's click, so that the next key moves in the list and changes no field.
    lst.setFocus();
    return true;
}

} // namespace morvel::control
