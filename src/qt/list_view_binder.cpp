// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/list_view_binder.h"

#include "qt/form_binding.h"
#include "qt/list_view_model.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QTreeView>

namespace morvel::qt {

namespace {

// The Windows virtual-key code of a Qt key, 0 for keys that have none here.
std::int32_t windowsKeyCode(int key) {
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))
        return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return 112 + (key - Qt::Key_F1);
    switch (key) {
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Tab:
        return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Space:
        return 32;
    case Qt::Key_PageUp:
        return 33;
    case Qt::Key_PageDown:
        return 34;
    case Qt::Key_End:
        return 35;
    case Qt::Key_Home:
        return 36;
    case Qt::Key_Left:
        return 37;
    case Qt::Key_Up:
        return 38;
    case Qt::Key_Right:
        return 39;
    case Qt::Key_Down:
        return 40;
    case Qt::Key_Insert:
        return 45;
    case Qt::Key_Delete:
        return 46;
    default:
        return 0;
    }
}

// Shift 1, Ctrl 2, Alt 4, as a form's KeyDown reports them.
std::int32_t shiftState(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

} // namespace

ListViewBinder::ListViewBinder(FormBinding& binding, view::ListView& list, QWidget& parent)
    : ControlBinder(binding, list, *new QTreeView(&parent))
    , m_list(list)
    , m_tree(static_cast<QTreeView&>(widget()))
    , m_model(new ListViewModel(list, &m_tree)) {
    // Rows that come and go move Qt's current row by themselves (the view hands a removed current
    // row's place to a neighbour): that is no person's click. The hold is connected before the
    // view gets the model, so that it is on before the view reacts, and rowsChanged lifts it once
    // every view of the model has caught up, showing the headless selection again.
    auto holdSelection = [this] { m_showingSelection = true; };
    QObject::connect(m_model, &QAbstractItemModel::rowsAboutToBeRemoved, this, holdSelection);
    QObject::connect(m_model, &QAbstractItemModel::rowsAboutToBeInserted, this, holdSelection);
    m_tree.setModel(m_model);
    m_tree.setUniformRowHeights(true);
    m_tree.setRootIsDecorated(false);
    m_tree.setItemsExpandable(false);
    m_tree.setAllColumnsShowFocus(true);
    m_tree.setSelectionMode(QAbstractItemView::SingleSelection);
    m_tree.setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tree.setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree.setSortingEnabled(false);
    // The person sizes the columns; the last one takes whatever width is left.
    m_tree.header()->setStretchLastSection(true);
    m_tree.header()->setSectionsMovable(false);
    m_tree.header()->setSectionResizeMode(QHeaderView::Interactive);
    m_tree.viewport()->installEventFilter(this);

    // Connected after the model's own observer, so rows exist in the view before they are
    // selected or scrolled to.
    m_rows = m_list.rowsChanged.connect([this](const view::ListChange& change) {
        const FormBinding::Mirroring mirroring(this->binding());
        rowsChanged(change);
    });
    QObject::connect(m_tree.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                     [this](const QModelIndex& current) {
                         if (!m_showingSelection && current.isValid())
                             clickRow(current.row());
                     });
    applyColumnWidths();
}

ListViewBinder::~ListViewBinder() = default;

void ListViewBinder::toWidget(view::Property what) {
    if (what == view::Property::Columns) {
        applyColumnWidths();
        return;
    }
    ControlBinder::toWidget(what);
}

void ListViewBinder::rowsChanged(const view::ListChange& change) {
    using Kind = view::ListChange::Kind;
    switch (change.kind) {
    case Kind::Reset:
        showSelection(m_list.selectedItem() ? m_list.selectedItem()->index() - 1 : -1);
        return;
    case Kind::SelectionChanged:
        showSelection(change.row);
        return;
    case Kind::Inserted:
    case Kind::Removed:
        showSelection(m_list.selectedItem() ? m_list.selectedItem()->index() - 1 : -1);
        return;
    case Kind::EnsureVisible:
        m_tree.scrollTo(m_model->index(change.row, 0));
        return;
    case Kind::LabelEditStarted:
        m_tree.edit(m_model->index(change.row, 0));
        return;
    default:
        return;
    }
}

void ListViewBinder::applyColumnWidths() {
    const TwipScale& scale = binding().scale();
    for (int i = 0; i < m_list.columnCount(); ++i)
        m_tree.header()->resizeSection(i, scale.columnPixels(m_list.column(i + 1).width));
}

void ListViewBinder::showSelection(int row) {
    m_showingSelection = true;
    QItemSelectionModel& selection = *m_tree.selectionModel();
    if (row >= 0) {
        const QModelIndex index = m_model->index(row, 0);
        selection.setCurrentIndex(index,
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    } else {
        selection.clearSelection();
        selection.setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }
    m_showingSelection = false;
}

void ListViewBinder::clickRow(int row) {
    view::ListItem* item = m_model->itemAt(row);
    if (!item)
        return;
    const FormBinding::FocusHold hold(binding(), &m_list);
    act([&] { m_list.clickItem(*item); });
}

void ListViewBinder::showCutText(const QHelpEvent& help) {
    const QModelIndex index = m_tree.indexAt(help.pos());
    const QString text = index.data().toString();
    const QString note = index.data(Qt::ToolTipRole).toString();
    const QRect cell = m_tree.visualRect(index);
    // A cell's text has a margin of a few pixels either side; a cut text shows whole in a tip.
    const int margin = 2 * (m_tree.style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    const bool cut =
        index.isValid() && m_tree.fontMetrics().horizontalAdvance(text) + margin > cell.width();
    if (!cut && note.isEmpty()) {
        QToolTip::hideText();
        return;
    }
    // A host's note on the row (what changed in it) goes under the whole text.
    const QString tip = cut && !note.isEmpty() ? text + "\n\n" + note : cut ? text : note;
    QToolTip::showText(help.globalPos(), tip, m_tree.viewport(), cell);
}

bool ListViewBinder::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_tree.viewport() && event->type() == QEvent::ToolTip) {
        showCutText(*static_cast<QHelpEvent*>(event));
        return true;
    }
    if (watched == m_tree.viewport() && event->type() == QEvent::MouseButtonPress) {
        const auto* press = static_cast<QMouseEvent*>(event);
        const QModelIndex index = m_tree.indexAt(press->position().toPoint());
        // The click goes to the model first; Qt then finds the row selected already.
        if (press->button() == Qt::LeftButton && index.isValid())
            clickRow(index.row());
        return false;
    }
    if (watched == &m_tree && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (const std::int32_t code = windowsKeyCode(key->key()))
            act([&] { m_list.keyDown(code, shiftState(key->modifiers())); });
        return false;
    }
    return ControlBinder::eventFilter(watched, event);
}

} // namespace morvel::qt
