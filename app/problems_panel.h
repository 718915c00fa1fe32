// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "checks/problem_list.h"

#include <QObject>
#include <memory>

class QDockWidget;
class QLabel;
class QMainWindow;
class QTableView;

namespace morvel::qt {
class MorvelWidget;
class ProblemsModel;
} // namespace morvel::qt

namespace morvel::app {

// The Problems dock of the designer window: every problem of the open table (severity, field,
// problem, fix), kept current by the table's problem list, and the counts in the status bar.
// Double-click or Enter on a row selects the field, opens the tab and focuses the box concerned.
// Nothing here blocks a save.
class ProblemsPanel : public QObject {
    Q_OBJECT

public:
    ProblemsPanel(QMainWindow& window, qt::MorvelWidget& designer);
    ~ProblemsPanel() override;

    // Checks the table that the window now shows; database null leaves table names unchecked.
    void setTable(std::shared_ptr<FieldDefs> fields, Database* database);

    checks::ProblemList* problems() const { return m_problems.get(); }
    QDockWidget& dock() const { return *m_dock; }
    QTableView& view() const { return *m_view; }
    QLabel& counts() const { return *m_counts; }
    // Shows the field and the box of the problem in that row.
    void activate(int row);

private:
    void showCounts();

    qt::MorvelWidget& m_designer;
    QDockWidget* m_dock;
    QTableView* m_view;
    QLabel* m_counts;
    std::unique_ptr<checks::ProblemList> m_problems;
    std::unique_ptr<qt::ProblemsModel> m_model;
    Connections m_watch;
};

} // namespace morvel::app
