// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "designer_window.h"

#include "change_dialogs.h"
#include "change_markers.h"
#include "qt/error_boundary.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QCryptographicHash>
#include <QDockWidget>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>

namespace morvel::app {

namespace {

QString toQString(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

constexpr const char* kReadOnlyReason =
    "The database file cannot be written, so changes cannot be saved.";

} // namespace

DesignerWindow::DesignerWindow(std::shared_ptr<SchemaDatabase> database, view::Prompter* prompter,
                               QWidget* parent)
    : QMainWindow(parent)
    , m_ownPrompter(prompter ? nullptr : std::make_unique<qt::QtPrompter>(this))
    , m_prompter(prompter ? *prompter : *m_ownPrompter)
    , m_session(std::move(database), m_prompter)
    , m_designer(new qt::MorvelWidget(this))
    , m_fields(m_designer->morvel(), m_prompter)
    , m_steps(m_designer->morvel()) {
    setCentralWidget(m_designer);
    m_markers = new ChangeMarkers(m_designer->morvel().lst, fieldList(), this);
    m_designer->setDatabase(m_session.sharedDatabase());
    m_session.setCommitEdit([this] { m_designer->commitEdit(); });
    m_sessionWatch += m_session.loaded.connect([this] { tableLoaded(); });
    m_sessionWatch += m_session.stateChanged.connect([this] { stateChanged(); });
    buildHistoryDock();
    buildActions();
    buildStatusBar();
    m_problemsPanel = new ProblemsPanel(*this, *m_designer);
    fillTablePicker();
    m_designer->restoreLayoutState(QSettings().value(layoutKey()).toByteArray());
    connect(m_designer, &qt::MorvelWidget::selectedFieldChanged, this,
            [this](const std::shared_ptr<FieldDef>& field) { m_removeField->setEnabled(!!field); });
    stateChanged();
}

DesignerWindow::~DesignerWindow() {
    qApp->removeEventFilter(this);
    m_sessionWatch.clear();
}

QTreeView& DesignerWindow::fieldList() const {
    return *m_designer->binding().widgetAs<QTreeView>(m_designer->morvel().lst);
}

void DesignerWindow::buildActions() {
    QMenu* table = menuBar()->addMenu(tr("&Table"));
    m_save = table->addAction(tr("&Save"), QKeySequence::Save, this, [this] { save(); });
    m_saveAsNew = table->addAction(tr("Save as &New Table..."),
                                   QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), this,
                                   [this] { reading([&] { m_session.saveAsNew(); }); });
    m_revert = table->addAction(tr("&Revert to Saved"), QKeySequence(Qt::CTRL | Qt::Key_R), this,
                                [this] { reading([&] { m_session.reload(); }); });
    table->addSeparator();
    buildInterchangeActions(table);
    table->addSeparator();
    table->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    m_undo = edit->addAction(tr("&Undo"), QKeySequence::Undo, this, [this] { stepBack(false); });
    m_redo = edit->addAction(tr("&Redo"), this, [this] { stepBack(true); });
    m_redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    // A text box takes these keys for its own undo, which would write the box's old text as a new
    // step; in this window they are the table's.
    qApp->installEventFilter(this);
    // Keystrokes in one box are one step; in the next box (or the same one again) a new one.
    connect(qApp, &QApplication::focusChanged, this, [this] {
        if (History* history = m_session.history())
            history->breakMerge();
    });
    m_review =
        edit->addAction(tr("Review &Changes..."), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R),
                        this, &DesignerWindow::reviewChanges);
    m_session.setConflictResolver([this](std::vector<MergeConflict>& conflicts) {
        MergeConflictsDialog dialog(conflicts, this);
        return dialog.exec() == QDialog::Accepted;
    });
    edit->addSeparator();
    // The designer's own Find and Find Next: they end the edit in progress and leave the keyboard
    // on the field list, whatever had the focus in the window.
    QAction* find =
        edit->addAction(tr("&Find..."), QKeySequence::Find, m_designer, &qt::MorvelWidget::find);
    QAction* findNext = edit->addAction(tr("Find &Next"), QKeySequence(Qt::Key_F3), m_designer,
                                        &qt::MorvelWidget::findNext);
    // The designer's own shortcuts for these keys would make each key ambiguous, and neither
    // would run.
    for (QShortcut* shortcut : m_designer->findChildren<QShortcut*>())
        if (shortcut->key() == find->shortcut() || shortcut->key() == findNext->shortcut())
            shortcut->setEnabled(false);

    QMenu* viewMenu = menuBar()->addMenu(tr("&View"));
    QAction* showHistory = m_historyDock->toggleViewAction();
    showHistory->setText(tr("&History"));
    showHistory->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_H));
    viewMenu->addAction(showHistory);

    QMenu* fields = menuBar()->addMenu(tr("F&ields"));
    QAction* add = fields->addAction(tr("&Add Field"), QKeySequence(Qt::CTRL | Qt::Key_N), this,
                                     [this] { qt::guarded(this, [&] { m_fields.newField(); }); });
    m_removeField =
        fields->addAction(tr("&Remove Field..."), QKeySequence(Qt::CTRL | Qt::Key_Delete), this,
                          &DesignerWindow::removeField);
    fields->addSeparator();
    m_allowChanges = fields->addAction(tr("Allow Changes to &Existing Fields"));
    m_allowChanges->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E));
    m_allowChanges->setCheckable(true);
    connect(m_allowChanges, &QAction::toggled, this, &DesignerWindow::allowChangesToggled);

    // Delete removes the selected field only while the field list has the keyboard: in a box it
    // deletes text, and a combo box must never take it as a removal.
    auto* deleteInList = new QAction(tr("Remove Field"), &fieldList());
    deleteInList->setShortcut(QKeySequence::Delete);
    deleteInList->setShortcutContext(Qt::WidgetShortcut);
    connect(deleteInList, &QAction::triggered, this, &DesignerWindow::removeField);
    fieldList().addAction(deleteInList);

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
    bar->addAction(m_save);
    bar->addSeparator();
    bar->addAction(m_allowChanges);
}

void DesignerWindow::buildHistoryDock() {
    m_historyModel = new qt::HistoryModel(this);
    m_historyView = new QListView(this);
    m_historyView->setObjectName("historyView");
    m_historyView->setModel(m_historyModel);
    m_historyView->setUniformItemSizes(true);
    m_historyView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(m_historyView, &QListView::clicked, this,
            [this](const QModelIndex& index) { jumpTo(index.row()); });
    // The row of the present state stays the view's current one, however it was reached.
    connect(m_historyModel, &qt::HistoryModel::currentRowChanged, this, [this](int row) {
        const QModelIndex index = m_historyModel->index(row);
        m_historyView->setCurrentIndex(index);
        m_historyView->scrollTo(index);
    });
    m_historyDock = new QDockWidget(tr("History"), this);
    m_historyDock->setObjectName("historyDock");
    m_historyDock->setWidget(m_historyView);
    addDockWidget(Qt::RightDockWidgetArea, m_historyDock);
    m_historyDock->hide();
}

void DesignerWindow::buildStatusBar() {
    // A note stays until the next one: hovering a menu must not wipe what the start said.
    m_note = new QLabel(this);
    m_note->setObjectName("note");
    statusBar()->addWidget(m_note, 1);
    m_unlockNote = new QLabel(tr("Existing fields can be changed"), this);
    m_unlockNote->setObjectName("unlockNote");
    m_unlockNote->setStyleSheet("QLabel { color: #a33; font-weight: bold; }");
    m_unlockNote->hide();
    statusBar()->addPermanentWidget(m_unlockNote);
    m_readOnlyNote = new QLabel(tr("Read only: %1").arg(tr(kReadOnlyReason)), this);
    m_readOnlyNote->setObjectName("readOnlyNote");
    m_readOnlyNote->setVisible(m_session.isReadOnly());
    statusBar()->addPermanentWidget(m_readOnlyNote);
}

void DesignerWindow::showNote(const QString& text) {
    m_note->setText(text);
}

void DesignerWindow::fillTablePicker() {
    const QSignalBlocker blocker(m_tablePicker);
    m_tablePicker->clear();
    for (const TableInfo& info : m_session.database().tables())
        m_tablePicker->addItem(toQString(info.displayName), toQString(info.name));
    m_tablePicker->setCurrentIndex(m_tablePicker->findData(toQString(table().info.name)));
}

QString DesignerWindow::firstTable() const {
    const std::vector<TableInfo> tables = m_session.database().tables();
    for (const TableInfo& info : tables)
        if (info.tableType == table_type::kMain)
            return toQString(info.name);
    return tables.empty() ? QString() : toQString(tables.front().name);
}

bool DesignerWindow::openTable(const QString& name) {
    return m_session.open(name.toStdString());
}

template <typename Step> void DesignerWindow::reading(Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const Error& error) {
        m_prompter.messageBox(
            {error.what(), view::MsgBoxButtons::OK, view::MsgBoxIcon::Critical, ""});
    }
}

void DesignerWindow::tablePicked(int index) {
    const QString name = m_tablePicker->itemData(index).toString();
    if (name == toQString(table().info.name))
        return;
    if (!m_session.settleUnsavedEdits()) {
        fillTablePicker();
        return;
    }
    reading([&] { m_session.open(name.toStdString()); });
}

void DesignerWindow::tableLoaded() {
    // The change set of the table shown until now is gone; the new one comes with the state.
    m_markers->follow(nullptr, nullptr);
    // Loading the table shown again (Revert, Reload) keeps the person's place in it.
    const bool again = m_designer->fieldDefs() && m_shownTable == table().info.id;
    const Place kept = again ? place() : Place{};
    // The history of the table shown until now has gone with it; the new one comes with the state.
    m_historyModel->setHistory(nullptr);
    // The unlock is for the table it was given for, and is never carried over.
    m_allowChanges->setChecked(false);
    m_designer->setFieldDefs(table().fields);
    m_problemsPanel->setTable(table().fields, &m_session.database());
    m_shownTable = table().info.id;
    if (again)
        restorePlace(kept);
    fillTablePicker();
}

void DesignerWindow::stateChanged() {
    const bool open = m_session.isOpen();
    const bool readOnly = m_session.isReadOnly();
    setWindowModified(m_session.isModified());
    m_markers->follow(table().fields, m_session.changes());
    m_save->setEnabled(open && !readOnly);
    m_saveAsNew->setEnabled(open && !readOnly);
    m_save->setToolTip(
        readOnly
            ? tr(kReadOnlyReason)
            : tr("Save the table (%1)").arg(m_save->shortcut().toString(QKeySequence::NativeText)));
    m_revert->setEnabled(open);
    if (m_historyModel->history() != m_session.history())
        m_historyModel->setHistory(m_session.history());
    m_review->setEnabled(m_session.isModified());
    undoRedoChanged();
    m_removeField->setEnabled(!!m_designer->selectedField());
    const QString name = open ? toQString(table().info.displayName) : tr("no table");
    const QString file = toQString(m_session.database().path().filename().string());
    setWindowTitle(tr("%1[*] - %2%3 - %4")
                       .arg(name, file, readOnly ? tr(" [read only]") : QString(),
                            QApplication::applicationDisplayName()));
    if (open && m_tablePicker->currentData().toString() != toQString(table().info.name))
        fillTablePicker();
}

void DesignerWindow::undoRedoChanged() {
    const History* history = m_session.history();
    const bool canUndo = history && history->canUndo();
    const bool canRedo = history && history->canRedo();
    m_undo->setEnabled(canUndo);
    m_redo->setEnabled(canRedo);
    m_undo->setText(canUndo ? tr("&Undo %1").arg(toQString(std::string(history->undoText())))
                            : tr("&Undo"));
    m_redo->setText(canRedo ? tr("&Redo %1").arg(toQString(std::string(history->redoText())))
                            : tr("&Redo"));
}

void DesignerWindow::stepBack(bool redo) {
    History* history = m_session.history();
    if (!history)
        return;
    history->breakMerge();
    qt::guarded(this, [&] { redo ? m_steps.redo(*history) : m_steps.undo(*history); });
}

void DesignerWindow::jumpTo(int row) {
    History* history = m_session.history();
    if (!history || row < 0)
        return;
    history->breakMerge();
    qt::guarded(this, [&] { m_steps.jumpTo(*history, static_cast<std::size_t>(row)); });
    // A click that changed nothing (the present row) leaves the view where the state is.
    const QModelIndex present = m_historyModel->index(m_historyModel->currentRow());
    m_historyView->setCurrentIndex(present);
}

bool DesignerWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool override = event->type() == QEvent::ShortcutOverride;
    if ((!override && event->type() != QEvent::KeyPress) || !watched->isWidgetType() ||
        !isAncestorOf(static_cast<QWidget*>(watched)))
        return false;
    auto* key = static_cast<QKeyEvent*>(event);
    const QKeySequence pressed(key->keyCombination());
    const bool redo = m_redo->shortcuts().contains(pressed);
    if (pressed != m_undo->shortcut() && !redo)
        return false;
    // Left unaccepted and kept from the box, the key goes on to the window's shortcuts.
    if (override) {
        key->ignore();
        return true;
    }
    // A disabled action takes no key, and the box would take it next. Disabled may only mean
    // that the edit in progress is not a step yet: ending it first can make one.
    stepBack(redo);
    return true;
}

void DesignerWindow::reviewChanges() {
    m_designer->commitEdit();
    ChangeSet* changes = m_session.changes();
    if (!changes)
        return;
    ReviewChangesDialog dialog(ChangeReview(*table().fields, *changes), this);
    dialog.exec();
}

void DesignerWindow::allowChangesToggled(bool allowed) {
    m_designer->setCanModifyExisting(allowed);
    m_unlockNote->setVisible(allowed);
}

void DesignerWindow::removeField() {
    qt::guarded(this, [&] { m_fields.removeCurrentField(); });
}

DesignerWindow::Place DesignerWindow::place() const {
    const std::shared_ptr<FieldDef> field = m_designer->selectedField();
    return {field ? toQString(field->Name()) : QString(), fieldList().verticalScrollBar()->value()};
}

void DesignerWindow::restorePlace(const Place& kept) {
    if (!kept.field.isEmpty())
        qt::guarded(this, [&] { m_fields.makeCurrent(kept.field.toStdString()); });
    fieldList().verticalScrollBar()->setValue(kept.scroll);
}

bool DesignerWindow::save() {
    bool saved = false;
    reading([&] { saved = m_session.save(); });
    return saved;
}

void DesignerWindow::closeEvent(QCloseEvent* event) {
    if (!m_session.settleUnsavedEdits()) {
        event->ignore();
        return;
    }
    QSettings().setValue(layoutKey(), m_designer->saveLayoutState());
    event->accept();
}

QString DesignerWindow::layoutKey() const {
    // One layout per database file, under a key that no path's characters can break.
    const QByteArray path = QFileInfo(QString::fromStdString(m_session.database().path().string()))
                                .absoluteFilePath()
                                .toUtf8();
    return QStringLiteral("layout/") +
           QString::fromLatin1(QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex());
}

} // namespace morvel::app
