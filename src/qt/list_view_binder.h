// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "qt/control_binder.h"
#include "view/list_view.h"

class QHelpEvent;
class QTreeView;

namespace morvel::qt {

class ListViewModel;

// ListView -> QTreeView over a ListViewModel: a flat report list with uniform rows, column
// widths from the model (hundredths of a millimetre) that the person may change, the last
// column filling the rest, and a tip with the whole text of a cut cell. A mouse press on a row or a
// keyboard move to a row is ListView::clickItem; a key press is ListView::keyDown with the key's
// Windows code; the end of an in-place edit is ListView::editLabel (through the model). The model's
// selection, ensureVisible and startLabelEdit show in the view; none of them does per-row work.
//
// A row click keeps the keyboard focus on the list even when the click's handlers move the
// model's focus elsewhere, so that the arrow keys go on moving through the rows.
class ListViewBinder : public ControlBinder {
public:
    ListViewBinder(FormBinding& binding, view::ListView& list, QWidget& parent);
    ~ListViewBinder() override;

    QTreeView& tree() const { return m_tree; }
    ListViewModel& model() const { return *m_model; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void toWidget(view::Property what) override;
    void rowsChanged(const view::ListChange& change);
    void applyColumnWidths();
    // Selects the 0-based row in the view, or nothing for -1.
    void showSelection(int row);
    void clickRow(int row);
    void showCutText(const QHelpEvent& help);

    view::ListView& m_list;
    QTreeView& m_tree;
    ListViewModel* m_model;
    Connection m_rows;
    bool m_showingSelection = false;
};

} // namespace morvel::qt
