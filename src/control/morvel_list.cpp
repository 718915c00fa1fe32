// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/handler_policy.h"
#include "control/morvel.h"
#include "control/row_cells.h"

#include <string>

namespace morvel::control {

namespace {

constexpr std::string_view kNoModifyTag = ":NOMODIFY:";

} // namespace

void Morvel::FillList() {
    m_currentRow = nullptr;
    {
        // The front end hears of the refill once, as a reset, not once per row and cell.
        const view::ListView::Batch batch(lst);
        lst.clear();
        if (!moFieldDefs)
            return;
        lst.reserve(static_cast<std::size_t>(moFieldDefs->Count()));
        const RowCells cells(lst);
        for (const FieldDefPtr& field : *moFieldDefs) {
            view::ListItem& row = lst.add(field->Name(), field->Name());
            cells.fill(row, *field);
            // Fields handed over with the collection; CanModifyExisting decides what they may
            // change.
            row.setTag(kNoModifyTag);
        }
    }
    if (moFieldDefs->Count() != 0)
        lst.setSelectedItem(&lst.item(1));
}

void Morvel::ShowSelectedRow() {
    if (lst.count() == 0) {
        setCurrent(nullptr, nullptr);
        LoadPanel();
        return;
    }
    view::ListItem* row = lst.selectedItem();
    if (!row) {
        setCurrent(nullptr, nullptr);
        LoadPanel();
        return;
    }
    // Keyed: the row's key is its field's name.
    setCurrent(moFieldDefs->Item(row->key()), row);
    LoadPanel();
}

void Morvel::moFieldDefs_AfterAdd(const FieldDefPtr& eoFieldDef) {
    if (lst.find(eoFieldDef->Name()))
        return;
    leaveFocusedBox();
    view::ListItem& row = lst.add(eoFieldDef->Name(), eoFieldDef->Name());
    RowCells(lst).fill(row, *eoFieldDef);
    lst.setSelectedItem(&row);
    setCurrent(eoFieldDef, &row);
    lst.ensureVisible(row);
    LoadPanel();
    // The new field usually carries a default name: ready to be typed over.
    txtName.setFocus();
    txtName.selectAll();
}

void Morvel::moFieldDefs_AfterRemove(const FieldDefPtr& eoFieldDef) {
    skipFailingSteps([&] { leaveFocusedBox(); },
                     [&] {
                         view::ListItem& row = lst.item(eoFieldDef->Name());
                         // The row goes away; nothing may point at it until the selection
                         // routine runs.
                         if (m_currentRow == &row)
                             m_currentRow = nullptr;
                         lst.remove(eoFieldDef->Name());
                     },
                     [&] { lst.setSelectedItem(nullptr); },
                     [&] { lst.setSelectedItem(&lst.item(1)); },
                     [&] {
                         if (view::ListItem* selected = lst.selectedItem())
                             lst.ensureVisible(*selected);
                     },
                     [&] { ShowSelectedRow(); });
}

void Morvel::lst_ItemClick(view::ListItem&) {
    ShowSelectedRow();
}

void Morvel::lst_Click() {
    ShowSelectedRow();
}

} // namespace morvel::control
