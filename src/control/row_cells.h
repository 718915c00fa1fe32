// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/field_types.h"
#include "catalogue/validation.h"
#include "fields/field_def.h"
#include "view/list_view.h"

#include <cstdint>
#include <string>

namespace morvel::control {

// The sub item of each column of the field list, looked up by key once rather than once per cell.
struct RowCells {
    explicit RowCells(const view::ListView& list)
        : type(list.columnIndex("Type") - 1)
        , size(list.columnIndex("Size") - 1)
        , displayName(list.columnIndex("DisplayName") - 1)
        , validation(list.columnIndex("Validation") - 1)
        , ctrlReadOnly(list.columnIndex("CtrlReadOnly") - 1)
        , ctrlEdit(list.columnIndex("CtrlEdit") - 1)
        , ctrlList(list.columnIndex("CtrlList") - 1) {}

    // Fills a new row's cells.
    void fill(view::ListItem& row, const FieldDef& field) const {
        row.setSubItem(displayName, field.DisplayName());
        row.setSubItem(type, catalogue::typeName(field.FieldType()));
        // Only the text-like types have a size worth showing.
        if (catalogue::hasSize(field.FieldType()))
            row.setSubItem(size, std::to_string(field.Size()));
        row.setSubItem(validation, catalogue::validationName(field.Validation()));
        row.setSubItem(ctrlReadOnly, field.CtrlReadOnly());
        row.setSubItem(ctrlEdit, field.CtrlEdit());
        row.setSubItem(ctrlList, field.CtrlList());
    }

    // Brings a row's cells up to date with its field; a cell that shows its value already is
    // not told as changed.
    void refresh(view::ListItem& row, const FieldDef& field) const {
        fill(row, field);
        if (!catalogue::hasSize(field.FieldType()))
            row.setSubItem(size, "");
    }

    std::int32_t type, size, displayName, validation, ctrlReadOnly, ctrlEdit, ctrlList;
};

} // namespace morvel::control
