#include "designer_window.h"

#include "base/error.h"
#include "qt/error_boundary.h"
#include "store/store_error.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QSignalBlocker>
#include <QToolBar>

namespace morvel::app {

namespace {
QString toQString(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
} // namespace

DesignerWindow::DesignerWindow(std::shared_ptr<SchemaDatabase> database, QWidget* parent)
    : QMainWindow(parent)
    , m_database(std::move(database))
    , m_designer(new qt::MorvelWidget(this)) {
    setCentralWidget(m_designer);
    m_designer->setDatabase(m_database);
    m_designer->morvel().UserControl_ReadProperties(m_settings);
    buildActions();
    fillTablePicker();
    connect(m_designer, &qt::MorvelWidget::selectedFieldChanged, this,
            [this](const std::shared_ptr<FieldDef>& field) { m_removeField->setEnabled(!!field); });
    showTitle();
}

DesignerWindow::~DesignerWindow() = default;

void DesignerWindow::buildActions() {
    QMenu* file = menuBar()->addMenu(tr("&Table"));
    QAction* save = file->addAction(tr("&Save"), this, [this] { this->save(); });
    save->setShortcut(QKeySequence::Save);
    file->addAction(tr("&Revert"), this, &DesignerWindow::revert);
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);

    QMenu* fields = menuBar()->addMenu(tr("&Fields"));
    QAction* add = fields->addAction(tr("&Add field"), this, &DesignerWindow::addField);
    add->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    m_removeField = fields->addAction(tr("&Remove field"), this, &DesignerWindow::removeField);
    fields->addSeparator();
    m_allowChanges = fields->addAction(tr("Allow changes to &existing fields"));
    m_allowChanges->setCheckable(true);
    m_allowChanges->setChecked(m_designer->canModifyExisting());
    connect(m_allowChanges, &QAction::toggled, this, &DesignerWindow::allowChangesToggled);

    QToolBar* bar = addToolBar(tr("Table"));
    bar->setObjectName("tableBar");
    bar->setMovable(false);
    bar->addWidget(new QLabel(tr("Table: "), bar));
    m_tablePicker = new QComboBox(bar);
    m_tablePicker->setObjectName("tablePicker");
    m_tablePicker->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    bar->addWidget(m_tablePicker);
    connect(m_tablePicker, &QComboBox::activated, this, &DesignerWindow::tablePicked);
    bar->addSeparator();
    bar->addAction(add);
    bar->addAction(m_removeField);
    bar->addSeparator();
    bar->addAction(save);
    bar->addSeparator();
    bar->addAction(m_allowChanges);
}

void DesignerWindow::fillTablePicker() {
    const QSignalBlocker blocker(m_tablePicker);
    m_tablePicker->clear();
    for (const TableInfo& info : m_database->tables())
        m_tablePicker->addItem(toQString(info.displayName), toQString(info.name));
}

QString DesignerWindow::firstTable() const {
    const std::vector<TableInfo> tables = m_database->tables();
    for (const TableInfo& info : tables)
        if (info.tableType == table_type::kMain)
            return toQString(info.name);
    return tables.empty() ? QString() : toQString(tables.front().name);
}

bool DesignerWindow::openTable(const QString& name) {
    const std::optional<TableInfo> info = m_database->findTable(name.toStdString());
    if (!info)
        return false;
    load(*info);
    return true;
}

void DesignerWindow::load(const TableInfo& info) {
    m_tableWatch.clear();
    m_table = m_database->load(info.id);
    m_designer->setFieldDefs(m_table.fields);
    // Watched from here on, so that showing the table does not count as an edit.
    auto modified = [this](auto&&...) { setWindowModified(true); };
    FieldDefs& fields = *m_table.fields;
    m_tableWatch += fields.changed.connect(modified);
    m_tableWatch += fields.AfterAdd.connect(modified);
    m_tableWatch += fields.AfterRemove.connect(modified);
    setWindowModified(false);
    const QSignalBlocker blocker(m_tablePicker);
    m_tablePicker->setCurrentIndex(m_tablePicker->findData(toQString(m_table.info.name)));
    m_removeField->setEnabled(!!m_designer->selectedField());
    showTitle();
}

void DesignerWindow::tablePicked(int index) {
    const QString name = m_tablePicker->itemData(index).toString();
    if (name == toQString(m_table.info.name))
        return;
    if (!settleUnsavedEdits()) {
        const QSignalBlocker blocker(m_tablePicker);
        m_tablePicker->setCurrentIndex(m_tablePicker->findData(toQString(m_table.info.name)));
        return;
    }
    try {
        openTable(name);
    } catch (const Error& error) {
        QMessageBox::critical(this, QApplication::applicationDisplayName(),
                              toQString(error.what()));
    }
}

bool DesignerWindow::settleUnsavedEdits() {
    m_designer->commitEdit();
    if (!isWindowModified())
        return true;
    const auto answer = QMessageBox::question(
        this, QApplication::applicationDisplayName(),
        tr("The table \"%1\" has unsaved changes. Save them?")
            .arg(toQString(m_table.info.displayName)),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return save();
    return answer == QMessageBox::Discard;
}

bool DesignerWindow::save() {
    m_designer->commitEdit();
    try {
        m_database->save(m_table);
    } catch (const ConcurrentSaveError& error) {
        QMessageBox::warning(this, QApplication::applicationDisplayName(),
                             toQString(error.what()) + "\n\n" +
                                 tr("Your changes are still here; nothing was saved."));
        return false;
    } catch (const Error& error) {
        QMessageBox::critical(this, QApplication::applicationDisplayName(),
                              toQString(error.what()));
        return false;
    }
    setWindowModified(false);
    return true;
}

void DesignerWindow::revert() {
    m_designer->commitEdit();
    if (isWindowModified() &&
        QMessageBox::question(this, QApplication::applicationDisplayName(),
                              tr("Discard the unsaved changes to \"%1\"?")
                                  .arg(toQString(m_table.info.displayName))) != QMessageBox::Yes)
        return;
    try {
        openTable(toQString(m_table.info.name));
    } catch (const Error& error) {
        QMessageBox::critical(this, QApplication::applicationDisplayName(),
                              toQString(error.what()));
    }
}

void DesignerWindow::addField() {
    if (!m_table.fields)
        return;
    FieldDefs& fields = *m_table.fields;
    std::string name = "NewField";
    for (int n = 2; fields.find(name); ++n)
        name = "NewField" + std::to_string(n);
    // The designer follows the collection: it lists the field, selects it and puts the keyboard
    // into its name.
    qt::guarded(this, [&] { fields.Add(name, 200); });
}

void DesignerWindow::removeField() {
    const std::shared_ptr<FieldDef> field = m_designer->selectedField();
    if (!field || !m_table.fields)
        return;
    const QString name = toQString(field->Name());
    if (QMessageBox::question(this, QApplication::applicationDisplayName(),
                              tr("Remove the field \"%1\"?").arg(name)) != QMessageBox::Yes)
        return;
    qt::guarded(this, [&] { m_table.fields->Remove(field->Name()); });
}

void DesignerWindow::allowChangesToggled(bool allowed) {
    m_designer->setCanModifyExisting(allowed);
    m_designer->morvel().UserControl_WriteProperties(m_settings);
}

void DesignerWindow::showTitle() {
    const QString table =
        m_table.info.name.empty() ? tr("no table") : toQString(m_table.info.displayName);
    setWindowTitle(tr("%1[*] - %2 - %3")
                       .arg(table, toQString(m_database->path().filename().string()),
                            QApplication::applicationDisplayName()));
}

void DesignerWindow::closeEvent(QCloseEvent* event) {
    if (settleUnsavedEdits())
        event->accept();
    else
        event->ignore();
}

} // namespace morvel::app
