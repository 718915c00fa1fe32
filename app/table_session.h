// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "history/change_set.h"
#include "history/history.h"
#include "history/three_way_merge.h"
#include "store/schema_database.h"
#include "store/store_error.h"
#include "view/prompter.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace morvel::app {

// One table of a schema database, open for editing: loads it, knows whether it has unsaved edits,
// saves it (under its own name or as a new table) and loads it again, asking and telling the
// person through the prompter. It knows no window, so that every path runs with a scripted
// prompter; the window wires its actions to these calls and shows the state they announce.
class TableSession {
public:
    TableSession(std::shared_ptr<SchemaDatabase> database, view::Prompter& prompter);

    SchemaDatabase& database() const { return *m_database; }
    const std::shared_ptr<SchemaDatabase>& sharedDatabase() const { return m_database; }
    const TableDefinition& table() const { return m_table; }
    bool isOpen() const { return !m_table.info.name.empty(); }
    // Unsaved edits: the fields differ from the last load or save, however they got there (typing
    // a text and typing it back, an editor's OK that changed nothing, undo past the save).
    bool isModified() const { return m_modified; }
    bool isReadOnly() const { return m_readOnly; }

    // The undo history of the table open, new with every load; null while none is open.
    History* history() const { return m_history.get(); }
    // What differs from the table as loaded or last saved; null while none is open.
    ChangeSet* changes() const { return m_changes.get(); }

    // Asks the person to answer each conflict of a merge (mine or theirs); false cancels the merge.
    using ConflictResolver = std::function<bool(std::vector<MergeConflict>&)>;
    void setConflictResolver(ConflictResolver resolver) { m_resolve = std::move(resolver); }

    // Run before anything reads the fields: the designer ends the edit in progress.
    void setCommitEdit(std::function<void()> commitEdit) { m_commitEdit = std::move(commitEdit); }

    // Loads the table of that name; false when there is none. Throws StoreError when it cannot
    // be read. The edits of the table open until now are dropped: settle them first.
    bool open(std::string_view name);
    // Saves the table; a refusal or a failure is told with what the person can do, and the
    // edits stay. A save that someone else's save got ahead of offers the ways out.
    bool save();
    // Asks for a name and stores the fields as a new table of that name, which is then the one
    // open; asks again while the store refuses the name. False when the person cancels.
    bool saveAsNew();
    // Merges the table as someone else saved it into this one (three-way, from what was loaded),
    // with the person answering each conflict, as one undo step; what is left unsaved afterwards
    // is this person's own work. False when there was nothing to merge or the person cancelled.
    bool merge();
    // Loads the table again as stored, after warning that this drops the unsaved edits.
    bool reload();
    // Asks Save / Discard / Cancel when there are unsaved edits; false when the person cancels
    // (or the save fails).
    bool settleUnsavedEdits();

    // A table was loaded (or loaded again): the host hands its fields to the designer.
    Signal<> loaded;
    // The modified state, the table's name, the read-only state or the undo history changed.
    Signal<> stateChanged;

private:
    void load(TableDefinition table);
    void setModified(bool modified);
    // The present state is the stored one.
    void markSaved();
    void commitEdit() const;
    bool offerWaysOut();
    void tell(const std::string& message, view::MsgBoxIcon icon);
    std::string quotedName() const;

    std::shared_ptr<SchemaDatabase> m_database;
    view::Prompter& m_prompter;
    std::function<void()> m_commitEdit;
    ConflictResolver m_resolve;
    TableDefinition m_table;
    // Declared after the table: it watches the table's fields and must go first.
    std::unique_ptr<History> m_history;
    std::unique_ptr<ChangeSet> m_changes;
    Connections m_watch;
    bool m_modified = false;
    bool m_readOnly = false;
};

// The plain words for a save that failed: what happened, that the edits are still in the window,
// and what the person can do.
std::string describeSaveFailure(const StoreError& error);

} // namespace morvel::app
