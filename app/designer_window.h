#pragma once

#include "base/signal.h"
#include "qt/morvel_widget.h"
#include "settings_property_bag.h"
#include "store/schema_database.h"

#include <QMainWindow>
#include <memory>

class QAction;
class QComboBox;

namespace morvel::app {

// The morvel-designer main window: a table picker, the designer for the picked table's fields,
// and the commands around it (add and remove a field, save, revert, whether existing fields may
// be changed). The title carries a modified marker while the table has unsaved edits; closing
// the window or picking another table then asks whether to save them.
class DesignerWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit DesignerWindow(std::shared_ptr<SchemaDatabase> database, QWidget* parent = nullptr);
    ~DesignerWindow() override;

    // Opens the table of that name; false when the database has none.
    bool openTable(const QString& name);
    // The table a person would start with: the first main table, else the first table.
    QString firstTable() const;

    qt::MorvelWidget& designer() const { return *m_designer; }
    const TableDefinition& table() const { return m_table; }
    bool isModified() const { return isWindowModified(); }

    // Saves the table; on failure the person is told why and the edits stay.
    bool save();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildActions();
    void fillTablePicker();
    void tablePicked(int index);
    // Asks Save / Discard / Cancel when there are unsaved edits; false when the person cancels.
    bool settleUnsavedEdits();
    void load(const TableInfo& info);
    void revert();
    void addField();
    void removeField();
    void allowChangesToggled(bool allowed);
    void showTitle();

    std::shared_ptr<SchemaDatabase> m_database;
    TableDefinition m_table;
    SettingsPropertyBag m_settings;
    qt::MorvelWidget* m_designer;
    QComboBox* m_tablePicker = nullptr;
    QAction* m_allowChanges = nullptr;
    QAction* m_removeField = nullptr;
    Connections m_tableWatch;
};

} // namespace morvel::app
