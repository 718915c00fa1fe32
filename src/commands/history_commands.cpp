// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "commands/history_commands.h"

#include <algorithm>

namespace morvel::commands {

namespace {

constexpr std::int32_t kBasicPage = 1;
constexpr std::int32_t kTypePage = 2;

// The page on which the designer shows what a change changed; 0 where the page stays as it is
// (a field that came, went or moved).
std::int32_t pageOf(const RecordedChange& change) {
    if (change.kind == RecordedChange::Kind::Member)
        return kBasicPage;
    if (change.kind != RecordedChange::Kind::Store)
        return 0;
    // The type's settings are stored as properties; the list values and locale texts have their
    // buttons on the first page.
    return change.member == FieldMember::Properties ? kTypePage : kBasicPage;
}

} // namespace

// Ending the edit may record a step, which moves the present state: each command reads the
// history only after it.

bool HistoryCommands::undo(History& history) {
    commitEdit();
    return history.canUndo() && goTo(history, history.index() - 1);
}

bool HistoryCommands::redo(History& history) {
    commitEdit();
    return history.canRedo() && goTo(history, history.index() + 1);
}

bool HistoryCommands::jumpTo(History& history, std::size_t index) {
    commitEdit();
    return goTo(history, index);
}

bool HistoryCommands::goTo(History& history, std::size_t index) {
    if (index > history.count() || index == history.index())
        return false;
    const bool back = index < history.index();
    history.setIndex(index);
    showStep(history, back ? index : index - 1);
    return true;
}

void HistoryCommands::commitEdit() {
    view::Control* focused = m_designer.focused();
    if (!focused || focused == &m_designer.lst)
        return;
    if (!m_designer.lst.setFocus())
        m_designer.clearFocus();
}

void HistoryCommands::showStep(const History& history, std::size_t i) {
    const auto& fields = m_designer.FieldDefs();
    if (!fields)
        return;
    const std::span<const RecordedChange> changes = history.changes(i);
    // The first field of the step that is still in the collection (keyed look-ups, one per change
    // at most).
    for (const RecordedChange& change : changes) {
        if (!change.field || fields->find(change.field->Name()) != change.field)
            continue;
        if (!m_designer.SelectFieldByName(change.field->Name()))
            return;
        const std::int32_t page = pageOf(change);
        if (page != 0 && page <= m_designer.TabStrip.count())
            m_designer.TabStrip.setSelectedIndex(page);
        return;
    }
    // The step took its field away: the row that took its place is shown, as after a removal.
    const std::int32_t count = m_designer.lst.count();
    if (changes.empty() || count == 0)
        return;
    const view::ListItem& row = m_designer.lst.item(std::clamp(changes.front().from, 1, count));
    m_designer.SelectFieldByName(row.key());
}

} // namespace morvel::commands
