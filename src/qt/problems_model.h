// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "checks/problem_list.h"

#include <QAbstractTableModel>

namespace morvel::qt {

// A Qt table model that reads a problem list in place: severity, field, problem and fix. The
// list's row notifications become Qt's, so an edit repaints only the rows of the field it
// touched.
class ProblemsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { SeverityColumn, FieldColumn, ProblemColumn, FixColumn, ColumnCount };

    explicit ProblemsModel(checks::ProblemList& problems, QObject* parent = nullptr);

    const checks::ProblemList& problems() const { return m_problems; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    const checks::ProblemList& m_problems;
    Connections m_watch;
};

} // namespace morvel::qt
