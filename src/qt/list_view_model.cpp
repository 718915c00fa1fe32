// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/list_view_model.h"

#include "qt/error_boundary.h"

#include <QWidget>

namespace morvel::qt {

namespace {
QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
} // namespace

ListViewModel::ListViewModel(view::ListView& list, QObject* parent)
    : QAbstractTableModel(parent)
    , m_list(list)
    , m_rowCount(list.count())
    , m_columnCount(list.columnCount()) {
    m_rows = m_list.rowsChanged.connect([this](const view::ListChange& change) { apply(change); });
    m_columns = m_list.changed.connect([this](view::Property what) {
        if (what != view::Property::Columns)
            return;
        beginResetModel();
        m_columnCount = m_list.columnCount();
        m_rowCount = m_list.count();
        endResetModel();
    });
}

view::ListItem* ListViewModel::itemAt(int row) const {
    if (row < 0 || row >= m_list.count())
        return nullptr;
    return &m_list.item(row + 1);
}

int ListViewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rowCount;
}

int ListViewModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_columnCount;
}

void ListViewModel::setDecoration(Decoration decoration) {
    m_decoration = std::move(decoration);
    if (m_rowCount > 0)
        Q_EMIT dataChanged(index(0, 0), index(m_rowCount - 1, m_columnCount - 1),
                           {Qt::DecorationRole, Qt::ToolTipRole});
}

void ListViewModel::decorationChanged(const view::ListItem& row) {
    const int at = row.index() - 1;
    if (at < 0 || at >= m_rowCount)
        return;
    Q_EMIT dataChanged(index(at, 0), index(at, m_columnCount - 1),
                       {Qt::DecorationRole, Qt::ToolTipRole});
}

QVariant ListViewModel::data(const QModelIndex& index, int role) const {
    const view::ListItem* item = itemAt(index.row());
    if (!item)
        return {};
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return m_decoration ? m_decoration(*item, index.column(), role) : QVariant();
    return toQString(index.column() == 0 ? item->text() : item->subItem(index.column()));
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= m_list.columnCount())
        return {};
    return toQString(m_list.column(section + 1).text);
}

Qt::ItemFlags ListViewModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    // Editing is only ever started by the list itself (startLabelEdit), never by a Qt trigger.
    if (index.isValid() && index.column() == 0 && m_list.labelEditable())
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool ListViewModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    view::ListItem* item = itemAt(index.row());
    if (role != Qt::EditRole || index.column() != 0 || !item)
        return false;
    bool accepted = false;
    guarded(qobject_cast<QWidget*>(QObject::parent()),
            [&] { accepted = m_list.editLabel(*item, value.toString().toStdString()); });
    return accepted;
}

void ListViewModel::apply(const view::ListChange& change) {
    using Kind = view::ListChange::Kind;
    switch (change.kind) {
    case Kind::Reset:
        beginResetModel();
        m_rowCount = m_list.count();
        endResetModel();
        return;
    case Kind::Inserted:
        beginInsertRows({}, change.row, change.row + change.count - 1);
        m_rowCount += change.count;
        endInsertRows();
        return;
    case Kind::Removed:
        beginRemoveRows({}, change.row, change.row + change.count - 1);
        m_rowCount -= change.count;
        endRemoveRows();
        return;
    case Kind::CellChanged: {
        const QModelIndex cell = index(change.row, change.column);
        Q_EMIT dataChanged(cell, cell, {Qt::DisplayRole, Qt::EditRole});
        return;
    }
    case Kind::SelectionChanged:
    case Kind::EnsureVisible:
    case Kind::LabelEditStarted:
        // What a view does with these is the view binding's business.
        return;
    }
}

} // namespace morvel::qt
