// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "table_session.h"

namespace morvel::app {

namespace {

constexpr const char* kEditsKept = "Your changes are still in the window.";

std::string whatToDo(StoreFailure failure) {
    switch (failure) {
    case StoreFailure::Busy:
        return "Save again in a moment.";
    case StoreFailure::DiskFull:
        return "Make room on the disk, then save again.";
    case StoreFailure::ReadOnly:
        return "Open a copy of the database that can be written to keep them.";
    case StoreFailure::CannotWrite:
        return "Make sure the folder can be written, then save again.";
    case StoreFailure::Other:
        break;
    }
    return "Try to save again.";
}

} // namespace

std::string describeSaveFailure(const StoreError& error) {
    return std::string("The table was not saved. ") + error.what() + "\n\n" + kEditsKept + " " +
           whatToDo(error.failure());
}

TableSession::TableSession(std::shared_ptr<SchemaDatabase> database, view::Prompter& prompter)
    : m_database(std::move(database))
    , m_prompter(prompter)
    , m_readOnly(m_database->isReadOnly()) {}

bool TableSession::open(std::string_view name) {
    const std::optional<TableInfo> info = m_database->findTable(name);
    if (!info)
        return false;
    load(m_database->load(info->id));
    return true;
}

void TableSession::load(TableDefinition table) {
    m_watch.clear();
    m_changes.reset();
    m_history.reset();
    m_table = std::move(table);
    loaded.notify();
    // Recorded only from here on: handing the fields to the designer is no edit.
    m_history = std::make_unique<History>(*m_table.fields);
    m_changes = std::make_unique<ChangeSet>(*m_table.fields);
    m_watch += m_history->stateChanged.connect([this] { stateChanged.notify(); });
    m_watch += m_changes->emptyChanged.connect([this] { setModified(!m_changes->empty()); });
    m_modified = false;
    stateChanged.notify();
}

void TableSession::setModified(bool modified) {
    if (modified == m_modified)
        return;
    m_modified = modified;
    stateChanged.notify();
}

void TableSession::markSaved() {
    m_history->setClean();
    m_changes->rebase();
    setModified(false);
}

void TableSession::commitEdit() const {
    if (m_commitEdit)
        m_commitEdit();
}

std::string TableSession::quotedName() const {
    return "\"" + m_table.info.displayName + "\"";
}

void TableSession::tell(const std::string& message, view::MsgBoxIcon icon) {
    m_prompter.messageBox({message, view::MsgBoxButtons::OK, icon, ""});
}

bool TableSession::save() {
    commitEdit();
    if (!isOpen())
        return false;
    try {
        m_database->save(m_table, m_changes.get());
    } catch (const ConcurrentSaveError&) {
        return offerWaysOut();
    } catch (const StoreError& error) {
        tell(describeSaveFailure(error), view::MsgBoxIcon::Exclamation);
        return false;
    } catch (const Error& error) {
        tell(std::string("The table was not saved. ") + error.what() + "\n\n" + kEditsKept,
             view::MsgBoxIcon::Exclamation);
        return false;
    }
    markSaved();
    return true;
}

bool TableSession::offerWaysOut() {
    // The table may be gone altogether; then there is nothing to load again.
    if (!m_database->findTable(m_table.info.id)) {
        const view::MsgBoxResult answer = m_prompter.messageBox(
            {"The table " + quotedName() + " was removed from the database by someone else, so " +
                 "your changes were not saved. They are still in the window; to keep them, save " +
                 "them as a new table.",
             view::MsgBoxButtons::OKCancel,
             view::MsgBoxIcon::Exclamation,
             "",
             {"Save as New Table...", "Cancel"}});
        return answer == view::MsgBoxResult::OK && saveAsNew();
    }
    const view::MsgBoxResult answer = m_prompter.messageBox(
        {"Someone else changed and saved the table " + quotedName() + " after you opened it, " +
             "so your changes were not saved. They are still in the window.\n\nMerge their " +
             "changes into yours (you choose where both of you changed the same thing), save " +
             "yours as a new table, or reload the table as it is now saved (this drops your " +
             "changes).",
         view::MsgBoxButtons::YesNoOKCancel,
         view::MsgBoxIcon::Exclamation,
         "",
         {"Save as New Table...", "Reload", "Merge...", "Cancel"}});
    if (answer == view::MsgBoxResult::Yes)
        return saveAsNew();
    if (answer == view::MsgBoxResult::No)
        reload();
    if (answer == view::MsgBoxResult::OK)
        merge();
    return false;
}

bool TableSession::merge() {
    commitEdit();
    if (!isOpen())
        return false;
    const std::optional<TableInfo> info = m_database->findTable(m_table.info.id);
    if (!info || info->revision == m_table.info.revision)
        return false;
    TableDefinition theirs = m_database->load(info->id);
    ThreeWayMerge merging(*m_table.fields, *m_changes, *theirs.fields);
    if (!merging.conflicts().empty() && (!m_resolve || !m_resolve(merging.conflicts())))
        return false;
    merging.apply();
    m_table.info = theirs.info;
    setModified(!m_changes->empty());
    stateChanged.notify();
    tell("Their changes are merged into yours. Review the result (Edit > Review Changes) and "
         "save it.",
         view::MsgBoxIcon::Information);
    return true;
}

bool TableSession::saveAsNew() {
    commitEdit();
    if (!isOpen())
        return false;
    std::string name = m_table.info.name + "Copy";
    for (;;) {
        name = m_prompter.inputBox({"Your changes are saved as a new table of this name; " +
                                        quotedName() + " stays as it was saved.",
                                    "Save as New Table", name});
        if (name.empty())
            return false;
        TableDefinition copy{m_table.info, m_table.fields};
        copy.info.name = name;
        copy.info.displayName = name;
        try {
            m_database->saveAsNew(copy);
        } catch (const TableNameError& error) {
            // The store's name rules: say why, and ask again.
            tell(error.what(), view::MsgBoxIcon::Information);
            continue;
        } catch (const StoreError& error) {
            tell(describeSaveFailure(error), view::MsgBoxIcon::Exclamation);
            return false;
        }
        m_table.info = copy.info;
        markSaved();
        stateChanged.notify();
        return true;
    }
}

bool TableSession::reload() {
    commitEdit();
    if (!isOpen())
        return false;
    if (m_modified &&
        m_prompter.messageBox({"Reload " + quotedName() + " as it is saved? This drops the " +
                                   "changes you have not saved.",
                               view::MsgBoxButtons::YesNo,
                               view::MsgBoxIcon::Question,
                               "",
                               {"Reload", "Keep My Changes"}}) != view::MsgBoxResult::Yes)
        return false;
    const std::optional<TableInfo> info = m_database->findTable(m_table.info.id);
    if (!info) {
        tell("The table " + quotedName() + " is no longer in the database. " + kEditsKept,
             view::MsgBoxIcon::Information);
        return false;
    }
    load(m_database->load(info->id));
    return true;
}

bool TableSession::settleUnsavedEdits() {
    commitEdit();
    if (!m_modified)
        return true;
    const view::MsgBoxResult answer = m_prompter.messageBox(
        {"The table " + quotedName() + " has changes that are not saved. Save them?",
         view::MsgBoxButtons::YesNoCancel,
         view::MsgBoxIcon::Question,
         "",
         {"Save", "Discard", "Cancel"}});
    if (answer == view::MsgBoxResult::Yes)
        return save();
    return answer == view::MsgBoxResult::No;
}

} // namespace morvel::app
