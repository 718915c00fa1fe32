// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// Uses the installed headers and libraries the way a host does.
#include "catalogue/field_types.h"
#include "fields/field_defs.h"

#include <iostream>

int main() {
    morvel::FieldDefs defs;
    defs.Add("ID", 10000);
    defs.Add("Parent", morvel::catalogue::type::SubLink);
    std::cout << "fields=" << defs.Count() << " second=" << defs.Item(2)->Name()
              << " type=" << morvel::catalogue::typeName(defs.Item(2)->FieldType()) << "\n";
}
