// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "history/change_review.h"
#include "history/three_way_merge.h"

#include <QDialog>

class QTreeWidget;
class QPushButton;

namespace morvel::app {

// "Review Changes": every change of the open table, field by field, old and new side by side,
// with Revert Field (the selected row's field) and Revert All. The list is read again from the
// change set after each revert; the dialog keeps nothing of its own.
class ReviewChangesDialog : public QDialog {
    Q_OBJECT

public:
    ReviewChangesDialog(ChangeReview review, QWidget* parent = nullptr);

    QTreeWidget& list() const { return *m_list; }
    void revertSelectedField();
    void revertAll();

private:
    void refill();

    ChangeReview m_review;
    QTreeWidget* m_list;
    QPushButton* m_revertField;
    QPushButton* m_revertAll;
};

// The conflicts of one merge in one dialog: each with its field and item, both values, and a
// choice of mine or theirs (mine at first). Accepting writes the choices into the conflicts.
class MergeConflictsDialog : public QDialog {
    Q_OBJECT

public:
    MergeConflictsDialog(std::vector<MergeConflict>& conflicts, QWidget* parent = nullptr);

    QTreeWidget& list() const { return *m_list; }
    // Row i takes theirs (or mine again).
    void choose(int row, bool mine);
    void accept() override;

private:
    std::vector<MergeConflict>& m_conflicts;
    QTreeWidget* m_list;
};

} // namespace morvel::app
