// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/history_model.h"

#include <QApplication>
#include <QFont>
#include <QStyle>
#include <utility>

namespace morvel::qt {

HistoryModel::HistoryModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_cleanIcon(QApplication::style()->standardIcon(QStyle::SP_DialogSaveButton)) {}

void HistoryModel::setHistory(History* history) {
    beginResetModel();
    m_watch.clear();
    m_history = history;
    m_rows = history ? static_cast<int>(history->count()) + 1 : 0;
    m_current = history ? static_cast<int>(history->index()) : 0;
    m_clean = cleanRow();
    if (history) {
        m_watch += history->stepsChanged.connect(
            [this](const StepsChange& change) { stepsChanged(change); });
        m_watch += history->stateChanged.connect([this] { stateChanged(); });
    }
    endResetModel();
    emit currentRowChanged(m_current);
}

int HistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const {
    if (!m_history || !index.isValid() || index.row() >= m_rows)
        return {};
    const int row = index.row();
    switch (role) {
    case Qt::DisplayRole: {
        if (row == 0)
            return tr("<empty>");
        const std::string_view text = m_history->text(static_cast<std::size_t>(row - 1));
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
    case Qt::DecorationRole:
        return row == m_clean ? m_cleanIcon : QVariant();
    case Qt::ToolTipRole:
        return row == m_clean ? tr("The saved state") : QVariant();
    case Qt::FontRole: {
        if (row != m_current)
            return {};
        QFont font;
        font.setBold(true);
        return font;
    }
    default:
        return {};
    }
}

void HistoryModel::stepsChanged(const StepsChange& change) {
    // The history has changed already; the model's own count carries Qt's begin/end protocol.
    const int first = static_cast<int>(change.first) + 1;
    const int count = static_cast<int>(change.count);
    switch (change.kind) {
    case StepsChange::Kind::Inserted:
        beginInsertRows({}, first, first + count - 1);
        m_rows += count;
        endInsertRows();
        return;
    case StepsChange::Kind::Removed:
        beginRemoveRows({}, first, first + count - 1);
        m_rows -= count;
        endRemoveRows();
        return;
    case StepsChange::Kind::Reset:
        beginResetModel();
        m_rows = static_cast<int>(m_history->count()) + 1;
        endResetModel();
        return;
    }
}

void HistoryModel::stateChanged() {
    const int current = static_cast<int>(m_history->index());
    const int clean = cleanRow();
    // A step dropped from the front moves every row up: the rows kept are not those marked before.
    const int oldCurrent = std::exchange(m_current, current);
    const int oldClean = std::exchange(m_clean, clean);
    for (int row : {oldCurrent, current, oldClean, clean})
        rowChanged(row);
    if (oldCurrent != current)
        emit currentRowChanged(current);
}

int HistoryModel::cleanRow() const {
    if (!m_history || !m_history->cleanIndex())
        return -1;
    return static_cast<int>(*m_history->cleanIndex());
}

void HistoryModel::rowChanged(int row) {
    if (row < 0 || row >= m_rows)
        return;
    const QModelIndex at = index(row);
    emit dataChanged(at, at, {Qt::DecorationRole, Qt::ToolTipRole, Qt::FontRole});
}

} // namespace morvel::qt
