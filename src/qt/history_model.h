// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "history/history.h"

#include <QAbstractListModel>
#include <QIcon>

namespace morvel::qt {

// The steps of a headless History as a Qt list: row 0 is the state before any step ("<empty>"),
// row n the state after the first n steps. The row of the present state is bold and the saved
// state carries an icon. It reads the history in place and follows its stepsChanged row by row.
//
// Not QUndoStack: the history already holds every step and applies it through the library, so
// that every writer is recorded; a QUndoStack would hold each step a second time, as commands of
// its own, and would have to be kept in step with it.
class HistoryModel : public QAbstractListModel {
    Q_OBJECT

public:
    explicit HistoryModel(QObject* parent = nullptr);

    // The history shown (null: none); the model is reset. It must outlive its use here or be
    // replaced first.
    void setHistory(History* history);
    History* history() const { return m_history; }
    // The row of the present state.
    int currentRow() const { return m_current; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    // The present state moved to another row (an undo, a redo, a jump, a new step).
    void currentRowChanged(int row);

private:
    void stepsChanged(const StepsChange& change);
    void stateChanged();
    int cleanRow() const;
    void rowChanged(int row);

    History* m_history = nullptr;
    int m_rows = 0;
    int m_current = 0;
    int m_clean = -1;
    QIcon m_cleanIcon;
    Connections m_watch;
};

} // namespace morvel::qt
