// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/handler_policy.h"
#include "base/text.h"
#include "control/morvel.h"

namespace morvel::control {

// Find and find next over the rows of the field list, as the list shows them: a row matches on
// its name or on its type name, letter case ignored.

namespace {

bool rowMatches(const view::ListItem& row, std::string_view searchText) {
    return containsIgnoringCase(row.text(), searchText) ||
           containsIgnoringCase(row.subItem(1), searchText);
}

// The 1-based position of the first matching row from first to last, 0 when there is none.
std::int32_t findRow(const view::ListView& list, std::string_view searchText, std::int32_t first,
                     std::int32_t last) {
    for (std::int32_t i = first; i <= last; ++i)
        if (rowMatches(list.item(i), searchText))
            return i;
    return 0;
}

} // namespace

// A cancelled input box gives the empty text, which is kept as well: Find Next then matches the
// very next row.
void Morvel::cmdFind_Click() {
    m_searchText =
        m_prompter.inputBox({"Enter the characters to find a field", "Find a Field", ""});
    if (!m_searchText.empty())
        cmdFindNext_Click();
}

// Searches below the selected row, then on request from the top down to just above it; the
// selected row itself is never a hit. Any failure, no selection included, ends the search.
void Morvel::cmdFindNext_Click() {
    endQuietly([&] {
        const view::ListItem* selected = lst.selectedItem();
        if (!selected)
            return;
        const std::int32_t rowCount = lst.count();
        std::int32_t start = selected->index();
        if (start > rowCount)
            start = 0;
        std::int32_t found = findRow(lst, m_searchText, start + 1, rowCount);
        if (found == 0) {
            if (start <= 1)
                return;
            const view::MessageBoxRequest question{
                "Find has reached the end of the field list. Do you want to start from the top?",
                view::MsgBoxButtons::YesNo, view::MsgBoxIcon::Question, ""};
            if (m_prompter.messageBox(question) != view::MsgBoxResult::Yes)
                return;
            found = findRow(lst, m_searchText, 1, start - 1);
            if (found == 0)
                return;
        }
        lst.setSelectedItem(nullptr);
        view::ListItem& row = lst.item(found);
        lst.setSelectedItem(&row);
        lst.ensureVisible(row);
        ShowSelectedRow();
    });
}

} // namespace morvel::control
