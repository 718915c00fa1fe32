// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/problems_model.h"

#include <QApplication>
#include <QStyle>

namespace morvel::qt {

namespace {

QString toQString(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

ProblemsModel::ProblemsModel(checks::ProblemList& problems, QObject* parent)
    : QAbstractTableModel(parent)
    , m_problems(problems) {
    auto& list = problems;
    m_watch += list.rowsAboutToBeRemoved.connect([this](const checks::ProblemRows& rows) {
        beginRemoveRows({}, rows.first, rows.first + rows.count - 1);
    });
    m_watch += list.rowsRemoved.connect([this](const checks::ProblemRows&) { endRemoveRows(); });
    m_watch += list.rowsAboutToBeInserted.connect([this](const checks::ProblemRows& rows) {
        beginInsertRows({}, rows.first, rows.first + rows.count - 1);
    });
    m_watch += list.rowsInserted.connect([this](const checks::ProblemRows&) { endInsertRows(); });
}

int ProblemsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_problems.rowCount();
}

int ProblemsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ProblemsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_problems.rowCount())
        return {};
    const checks::Problem& problem = m_problems.row(index.row());
    if (role == Qt::DecorationRole && index.column() == SeverityColumn)
        return QApplication::style()->standardIcon(problem.severity == checks::Severity::Error
                                                       ? QStyle::SP_MessageBoxCritical
                                                       : QStyle::SP_MessageBoxWarning);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    switch (index.column()) {
    case SeverityColumn:
        return tr(checks::severityName(problem.severity));
    case FieldColumn: {
        const FieldDef* field = m_problems.field(problem.field);
        return field ? toQString(field->Name()) : QString();
    }
    case ProblemColumn:
        return toQString(problem.what);
    case FixColumn:
        return toQString(problem.fix);
    default:
        return {};
    }
}

QVariant ProblemsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case SeverityColumn:
        return tr("Severity");
    case FieldColumn:
        return tr("Field");
    case ProblemColumn:
        return tr("Problem");
    case FixColumn:
        return tr("Fix");
    default:
        return {};
    }
}

} // namespace morvel::qt
