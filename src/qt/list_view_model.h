// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "view/list_view.h"

#include <QAbstractTableModel>
#include <functional>

namespace morvel::qt {

// A Qt table model that reads a headless list view in place: no copy of the rows. Each row or
// cell notification of the list becomes the matching fine-grained Qt notification, so a view
// repaints only what changed and stays fast at 100,000 rows.
//
// The list tells its observers after a change has happened; the model keeps its own row count
// so that Qt's begin/end protocol still sees the count change between begin and end.
class ListViewModel : public QAbstractTableModel {
    Q_OBJECT

public:
    // What a host lays over a row beside its text: a marker (Qt::DecorationRole), a tip
    // (Qt::ToolTipRole). Asked for column and role of the row, as Qt asks; an invalid QVariant
    // for nothing. The list view itself knows nothing of it.
    using Decoration = std::function<QVariant(const view::ListItem& row, int column, int role)>;

    explicit ListViewModel(view::ListView& list, QObject* parent = nullptr);

    void setDecoration(Decoration decoration);
    // The decoration of that row reads differently now: its views repaint it.
    void decorationChanged(const view::ListItem& row);

    view::ListView& list() const { return m_list; }
    // The row at a 0-based Qt row; null outside the list.
    view::ListItem* itemAt(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // The end of an in-place edit of a row's text: the list's AfterLabelEdit may refuse it.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    void apply(const view::ListChange& change);

    view::ListView& m_list;
    Decoration m_decoration;
    int m_rowCount = 0;
    int m_columnCount = 0;
    Connection m_rows;
    Connection m_columns;
};

} // namespace morvel::qt
