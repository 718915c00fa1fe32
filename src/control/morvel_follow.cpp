// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/scoped_flag.h"
#include "catalogue/field_types.h"
#include "control/morvel.h"
#include "control/row_cells.h"

#include <optional>

namespace morvel::control {

// The control follows its collection: undo and redo, a merge, a paste and the host write to the
// fields as well as the person does. A change that the control did not make shows in the
// field's row and, when the panel shows it, in a reloaded panel; LoadPanel writes nothing, so
// following never writes back. The control's own writes are not followed: the handlers that
// made them have shown them already, and a reload would fight the person's typing.
//
// Insertions and removals are shown by AfterAdd and AfterRemove; the positioned notifications
// that come after them put the row where the field is and keep the identity index.

void Morvel::runAsOwnAction(void (Morvel::*handler)(), std::string_view what) {
    // A copy: the step must end on the collection it began on, whatever the handler does.
    const FieldDefsPtr fields = moFieldDefs;
    std::optional<FieldDefs::Step> step;
    if (fields) {
        // The text is needed only when this action opens the step rather than joining one.
        if (!fields->inStep()) {
            const std::string_view field = m_currentField ? std::string_view(m_currentField->Name())
                                                          : std::string_view("fields");
            if (what.empty())
                m_stepText.assign("Edit ").append(field);
            else
                m_stepText.assign(what).append(" of ").append(field);
        }
        step.emplace(fields->beginStep(m_stepText, ChangeOrigin::Person));
    }
    const ScopedFlag ownAction(m_ownAction);
    (this->*handler)();
}

void Morvel::followCollection() {
    m_collectionWiring += moFieldDefs->changed.connect(
        [this](const FieldChange& change) { followFieldChange(change); });
    m_collectionWiring += moFieldDefs->inserted.connect(
        [this](const FieldPlaced& placed) { followInsertion(placed); });
    // A box that stores its text on leaving stores it while the collection is still whole, so
    // that a typed name is checked against every name that still has a row.
    m_collectionWiring +=
        moFieldDefs->aboutToRemove.connect([this](const FieldPlaced&) { leaveFocusedBox(); });
    m_collectionWiring +=
        moFieldDefs->removed.connect([this](const FieldPlaced& placed) { followRemoval(placed); });
    m_collectionWiring +=
        moFieldDefs->moved.connect([this](const FieldMoved& moved) { followMove(moved); });
}

// After a refill the rows stand in collection order.
void Morvel::indexRows() {
    m_rowById.clear();
    if (!moFieldDefs)
        return;
    m_rowById.reserve(static_cast<std::size_t>(moFieldDefs->Count()));
    std::int32_t position = 0;
    for (const FieldDefPtr& field : *moFieldDefs)
        m_rowById.set(field->id(), lst.item(++position));
}

view::ListItem* Morvel::rowOf(const morvel::FieldDef& field) const {
    return m_rowById.find(field.id());
}

bool Morvel::panelShows(const morvel::FieldDef& field, FieldMember member) const {
    // The panel shows neither the list values nor the locale texts.
    if (member == FieldMember::ListValues || member == FieldMember::ListValuesCommitted ||
        member == FieldMember::Locales || !m_currentField)
        return false;
    if (&field == m_currentField.get())
        return true;
    // The sub link page lists the collection's link fields by name.
    return m_currentField->FieldType() == catalogue::type::SubLink &&
           (member == FieldMember::Name || member == FieldMember::FieldType);
}

void Morvel::followFieldChange(const FieldChange& change) {
    if (m_ownAction)
        return;
    const morvel::FieldDef& field = change.field;
    if (view::ListItem* row = rowOf(field)) {
        if (change.member == FieldMember::Name) {
            // The row key stays the name, so that the selection routine finds the field by it.
            row->setText(field.Name());
            row->setKey(field.Name());
        } else {
            RowCells(lst).refresh(*row, field);
        }
    }
    if (panelShows(field, change.member))
        LoadPanel();
}

void Morvel::followInsertion(const FieldPlaced& placed) {
    // AfterAdd readies the name box for a new field's name. A field that undo or redo puts back
    // has its name already: the box is left without storing it, as the library would store the
    // box's text differently (a leading digit goes), and the host decides where the focus goes.
    const bool replayed =
        placed.step.origin == ChangeOrigin::Undo || placed.step.origin == ChangeOrigin::Redo;
    if (replayed && focused() == &txtName) {
        const ScopedFlag showing(m_panelLoading);
        clearFocus();
    }
    // AfterAdd has added the row at the end (or found one with the name).
    view::ListItem* row = lst.find(placed.field->Name());
    if (!row)
        return;
    m_rowById.set(placed.field->id(), *row);
    if (row->index() == placed.position || placed.position > lst.count())
        return;
    lst.moveItem(*row, placed.position);
    if (row->selected())
        lst.ensureVisible(*row);
}

void Morvel::followRemoval(const FieldPlaced& placed) {
    // AfterRemove has removed the row already.
    m_rowById.erase(placed.field->id());
}

void Morvel::followMove(const FieldMoved& moved) {
    view::ListItem* row = rowOf(*moved.field);
    if (!row || moved.to > lst.count())
        return;
    lst.moveItem(*row, moved.to);
    // The sub link page lists the link fields in collection order.
    if (m_currentField && m_currentField->FieldType() == catalogue::type::SubLink)
        LoadPanel();
}

} // namespace morvel::control
