// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"

#include <QIcon>
#include <QObject>
#include <QPointer>
#include <memory>

class QTreeView;

namespace morvel {
class ChangeSet;
class FieldDef;
class FieldDefs;
namespace view {
class ListItem;
class ListView;
} // namespace view
namespace qt {
class ListViewModel;
}
} // namespace morvel

namespace morvel::app {

// The field list's markers: a new, changed or moved field's row carries a dot of its own colour
// and a tip that says what changed. It reads the change set and the list, and holds no state of
// its own; a field's row repaints when the change set tells of that field.
class ChangeMarkers : public QObject {
    Q_OBJECT

public:
    ChangeMarkers(view::ListView& list, QTreeView& tree, QObject* parent = nullptr);
    ~ChangeMarkers() override;

    // The table shown now, and its change set (null for none); following the same again does
    // nothing.
    void follow(std::shared_ptr<FieldDefs> fields, ChangeSet* changes);

    // What the marker of the named field's row says: "new", "changed", "moved" or "".
    QString markerOf(const QString& field) const;

private:
    QString markerOf(const FieldDef* field) const;
    QVariant decoration(const view::ListItem& row, int column, int role) const;

    view::ListView& m_list;
    // Owned by the list's view, which may go first.
    QPointer<qt::ListViewModel> m_model;
    std::shared_ptr<FieldDefs> m_fields;
    ChangeSet* m_changes = nullptr;
    Connection m_watch;
    QIcon m_new;
    QIcon m_changed;
    QIcon m_moved;
};

} // namespace morvel::app
