// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/field_commands.h"
#include "commands/history_commands.h"
#include "problems_panel.h"
#include "qt/history_model.h"
#include "qt/morvel_widget.h"
#include "qt/qt_prompter.h"
#include "table_session.h"

#include <QMainWindow>
#include <memory>

class QAction;
class QComboBox;
class QDockWidget;
class QLabel;
class QListView;
class QMenu;
class QTreeView;

namespace morvel::app {

class ChangeMarkers;

// The morvel-designer main window: a table picker, the designer for the picked table's fields,
// and the actions around it. The window only makes the actions and wires them: the table's load,
// save and reload are the session's, the commands on fields are FieldCommands', and every
// message box goes through the prompter (real boxes by default, a scripted one in tests).
//
// The title carries a modified marker while the table has unsaved edits and says "[read only]"
// for a database that cannot be written. Undo and Redo walk the open table's history, which is
// new with every load; the marker follows the history's saved point. The History dock (View >
// History) lists its steps; a click on one goes back or forward to it. "Allow changes to existing
// fields" starts off with every table and is not remembered; the status bar says so while it is on.
class DesignerWindow : public QMainWindow {
    Q_OBJECT

public:
    // prompter null: real message boxes over this window.
    explicit DesignerWindow(std::shared_ptr<SchemaDatabase> database,
                            view::Prompter* prompter = nullptr, QWidget* parent = nullptr);
    ~DesignerWindow() override;

    // Opens the table of that name; false when the database has none. Throws StoreError when the
    // table cannot be read.
    bool openTable(const QString& name);
    // The table a person would start with: the first main table, else the first table.
    QString firstTable() const;
    // Shows a note in the status bar until the next one.
    void showNote(const QString& text);

    qt::MorvelWidget& designer() const { return *m_designer; }
    QTreeView& fieldList() const;
    QDockWidget& historyDock() const { return *m_historyDock; }
    QListView& historyView() const { return *m_historyView; }
    TableSession& session() { return m_session; }
    ChangeMarkers& markers() const { return *m_markers; }
    ProblemsPanel& problemsPanel() const { return *m_problemsPanel; }
    const TableDefinition& table() const { return m_session.table(); }
    bool isModified() const { return m_session.isModified(); }
    bool save();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Where the person is in the field list: the field shown and the list's scroll position.
    struct Place {
        QString field;
        int scroll = 0;
    };

    void buildActions();
    void buildHistoryDock();
    // Export... and Import... of the Table menu (designer_window_interchange.cpp).
    void buildInterchangeActions(QMenu* table);
    void exportToFile();
    void importFromFile();
    void buildStatusBar();
    void fillTablePicker();
    void tablePicked(int index);
    void tableLoaded();
    // Where the designer's layout (column widths, split) is remembered for this database.
    QString layoutKey() const;
    void stateChanged();
    void undoRedoChanged();
    // Undoes (or redoes) the last step of the table's history.
    void stepBack(bool redo);
    // Goes to the state after the first `row` steps, as a click on that row of the History dock.
    void jumpTo(int row);
    // Shows every change since the load or the last save, with the ways to revert them.
    void reviewChanges();
    void allowChangesToggled(bool allowed);
    void removeField();
    Place place() const;
    void restorePlace(const Place& place);
    // Runs a step that reads the database; a failure is told, the window stays as it was.
    template <typename Step> void reading(Step&& step);

    std::unique_ptr<qt::QtPrompter> m_ownPrompter;
    view::Prompter& m_prompter;
    TableSession m_session;
    qt::MorvelWidget* m_designer;
    ChangeMarkers* m_markers = nullptr;
    commands::FieldCommands m_fields;
    commands::HistoryCommands m_steps;
    qt::HistoryModel* m_historyModel = nullptr;
    QDockWidget* m_historyDock = nullptr;
    QListView* m_historyView = nullptr;
    std::int32_t m_shownTable = 0;
    QComboBox* m_tablePicker = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_save = nullptr;
    QAction* m_saveAsNew = nullptr;
    QAction* m_revert = nullptr;
    QAction* m_review = nullptr;
    QAction* m_removeField = nullptr;
    QAction* m_allowChanges = nullptr;
    QLabel* m_note = nullptr;
    QLabel* m_unlockNote = nullptr;
    QLabel* m_readOnlyNote = nullptr;
    ProblemsPanel* m_problemsPanel = nullptr;
    Connections m_sessionWatch;
};

} // namespace morvel::app
