// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "change_markers.h"

#include "history/change_set.h"
#include "qt/list_view_model.h"
#include "view/list_view.h"

#include <QPainter>
#include <QPixmap>
#include <QTreeView>

namespace morvel::app {

namespace {

QIcon dot(const QColor& colour) {
    QPixmap pixmap(12, 12);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour.darker(130));
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(1.5, 1.5, 9, 9));
    return QIcon(pixmap);
}

QString toQString(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

ChangeMarkers::ChangeMarkers(view::ListView& list, QTreeView& tree, QObject* parent)
    : QObject(parent)
    , m_list(list)
    , m_model(qobject_cast<qt::ListViewModel*>(tree.model()))
    , m_new(dot(QColor(0x2e, 0x9d, 0x4a)))
    , m_changed(dot(QColor(0xe0, 0x9a, 0x1b)))
    , m_moved(dot(QColor(0x3a, 0x78, 0xc9))) {
    m_model->setDecoration([this](const view::ListItem& row, int column, int role) {
        return decoration(row, column, role);
    });
}

ChangeMarkers::~ChangeMarkers() {
    if (m_model)
        m_model->setDecoration({});
}

void ChangeMarkers::follow(std::shared_ptr<FieldDefs> fields, ChangeSet* changes) {
    if (changes == m_changes && fields == m_fields)
        return;
    m_watch = {};
    m_fields = std::move(fields);
    m_changes = changes;
    if (m_changes)
        m_watch = m_changes->fieldChanged.connect([this](const FieldDef& field) {
            const view::ListItem* row = m_list.find(field.Name());
            if (row && m_model)
                m_model->decorationChanged(*row);
        });
    m_model->setDecoration([this](const view::ListItem& row, int column, int role) {
        return decoration(row, column, role);
    });
}

QString ChangeMarkers::markerOf(const QString& name) const {
    return m_fields ? markerOf(m_fields->find(name.toStdString()).get()) : QString();
}

QString ChangeMarkers::markerOf(const FieldDef* field) const {
    if (!m_changes || !field)
        return {};
    const FieldId id = field->id();
    if (m_changes->isAdded(id))
        return "new";
    if (m_changes->isChanged(id))
        return "changed";
    if (m_changes->isMoved(id))
        return "moved";
    return {};
}

QVariant ChangeMarkers::decoration(const view::ListItem& row, int column, int role) const {
    // Asked for every role of every cell painted: the cheap refusals come first.
    if (column != 0 || (role != Qt::DecorationRole && role != Qt::ToolTipRole) || !m_changes ||
        m_changes->empty() || !m_fields)
        return {};
    const auto field = m_fields->find(row.key());
    const QString marker = markerOf(field.get());
    if (marker.isEmpty())
        return {};
    if (role == Qt::ToolTipRole)
        return toQString(describe(m_changes->difference(field->id())));
    return marker == "new" ? m_new : marker == "changed" ? m_changed : m_moved;
}

} // namespace morvel::app
