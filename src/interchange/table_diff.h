// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/table_document.h"

#include <string>
#include <vector>

namespace morvel::interchange {

// What changed from before to after, one line a change as a reviewer reads it: the table's own
// entry, then field by field in after's order (added fields, renames in letter case, changed
// members and stored values, moves), then the removed fields. Fields are matched by name,
// ignoring letter case, so a rename shows as a removal and an addition. Empty when the two are
// the same definition. Linear in the fields, apart from the moves (n log n).
std::vector<std::string> diffTables(const TableDocument& before, const TableDocument& after);

} // namespace morvel::interchange
