// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "problems_panel.h"

#include "qt/form_binding.h"
#include "qt/morvel_widget.h"
#include "qt/problems_model.h"

#include <QAction>
#include <QDockWidget>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTableView>

namespace morvel::app {

namespace {

// The View menu, made when the window has none yet.
QMenu* viewMenu(QMainWindow& window) {
    for (QAction* action : window.menuBar()->actions())
        if (action->menu() && action->text().remove(QLatin1Char('&')) == QLatin1String("View"))
            return action->menu();
    return window.menuBar()->addMenu(QObject::tr("&View"));
}

// The designer's box that a problem names.
view::Control* boxNamed(control::Morvel& m, std::string_view name) {
    const std::pair<std::string_view, view::Control*> boxes[] = {
        {"txtName", &m.txtName},
        {"cboType", &m.cboType},
        {"cmdList", &m.cmdList},
        {"txtDefault", &m.txtDefault},
        {"txtSize", &m.txtSize},
        {"txtCtrlEdit", &m.txtCtrlEdit},
        {"txtCtrlReadOnly", &m.txtCtrlReadOnly},
        {"cboLinkTableName", &m.cboLinkTableName},
        {"txtTable", &m.txtTable},
        {"cboSubTable", &m.cboSubTable},
        {"txtSubLinkTable", &m.txtSubLinkTable},
        {"cboLinkFields", &m.cboLinkFields},
        {"txtSignatureFields", &m.txtSignatureFields},
    };
    for (const auto& [each, control] : boxes)
        if (each == name)
            return control;
    return nullptr;
}

// Enter in the list acts as a double-click does.
class EnterActivates : public QObject {
public:
    EnterActivates(QTableView& view, ProblemsPanel& panel)
        : QObject(&view)
        , m_view(view)
        , m_panel(panel) {}

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key != Qt::Key_Return && key != Qt::Key_Enter) || !m_view.currentIndex().isValid())
            return false;
        m_panel.activate(m_view.currentIndex().row());
        return true;
    }

private:
    QTableView& m_view;
    ProblemsPanel& m_panel;
};

} // namespace

ProblemsPanel::ProblemsPanel(QMainWindow& window, qt::MorvelWidget& designer)
    : QObject(&window)
    , m_designer(designer)
    , m_dock(new QDockWidget(tr("Problems"), &window))
    , m_view(new QTableView(m_dock))
    , m_counts(new QLabel(&window)) {
    m_dock->setObjectName(QStringLiteral("problems"));
    m_view->setObjectName(QStringLiteral("problemsView"));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->verticalHeader()->hide();
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->setWordWrap(false);
    m_view->installEventFilter(new EnterActivates(*m_view, *this));
    connect(m_view, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& index) { activate(index.row()); });
    m_dock->setWidget(m_view);
    window.addDockWidget(Qt::BottomDockWidgetArea, m_dock);
    m_dock->hide();

    QAction* toggle = m_dock->toggleViewAction();
    toggle->setText(tr("&Problems"));
    toggle->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
    viewMenu(window)->addAction(toggle);
    window.statusBar()->addPermanentWidget(m_counts);
}

ProblemsPanel::~ProblemsPanel() {
    m_view->setModel(nullptr);
}

void ProblemsPanel::setTable(std::shared_ptr<FieldDefs> fields, Database* database) {
    m_view->setModel(nullptr);
    m_watch.clear();
    m_model.reset();
    m_problems.reset();
    if (fields) {
        m_problems = std::make_unique<checks::ProblemList>(std::move(fields), database);
        m_model = std::make_unique<qt::ProblemsModel>(*m_problems);
        m_view->setModel(m_model.get());
        m_view->resizeColumnToContents(qt::ProblemsModel::SeverityColumn);
        m_view->setColumnWidth(qt::ProblemsModel::FieldColumn, 140);
        m_view->setColumnWidth(qt::ProblemsModel::ProblemColumn, 380);
        m_watch += m_problems->countsChanged.connect([this] { showCounts(); });
    }
    showCounts();
}

void ProblemsPanel::activate(int row) {
    if (!m_problems || row < 0 || row >= m_problems->rowCount())
        return;
    const checks::Problem& problem = m_problems->row(row);
    const FieldDef* field = m_problems->field(problem.field);
    const checks::ProblemBox box = problem.box;
    control::Morvel& morvel = m_designer.morvel();
    if (!field || !morvel.SelectFieldByName(field->Name()))
        return;
    if (morvel.TabStrip.count() >= box.tab)
        morvel.TabStrip.click(box.tab);
    view::Control* control = boxNamed(morvel, box.control);
    if (!control || !control->setFocus())
        return;
    if (QWidget* widget = m_designer.binding().widgetFor(*control)) {
        widget->activateWindow();
        widget->setFocus(Qt::OtherFocusReason);
    }
}

void ProblemsPanel::showCounts() {
    if (!m_problems) {
        m_counts->clear();
        return;
    }
    const int errors = m_problems->errorCount();
    const int warnings = m_problems->warningCount();
    const auto counted = [](int count, const QString& one, const QString& many) {
        return count == 1 ? one : many.arg(count);
    };
    QStringList parts;
    if (errors != 0)
        parts << counted(errors, tr("1 error"), tr("%1 errors"));
    if (warnings != 0)
        parts << counted(warnings, tr("1 warning"), tr("%1 warnings"));
    m_counts->setText(parts.isEmpty() ? tr("No problems") : parts.join(QStringLiteral(", ")));
}

} // namespace morvel::app
