// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/split_handle.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace morvel::qt {

SplitHandle::SplitHandle(QWidget& parent, std::function<void()> started, Dragged dragged)
    : QWidget(&parent)
    , m_started(std::move(started))
    , m_dragged(std::move(dragged)) {
    setCursor(Qt::SplitVCursor);
    setToolTip(QStringLiteral("Drag to share the height between the field list and the panel"));
}

QSize SplitHandle::sizeHint() const {
    return {0, style()->pixelMetric(QStyle::PM_SplitterWidth, nullptr, this)};
}

void SplitHandle::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    option.state |= QStyle::State_Horizontal;
    if (underMouse())
        option.state |= QStyle::State_MouseOver;
    style()->drawControl(QStyle::CE_Splitter, &option, &painter, this);
}

void SplitHandle::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_pressedAt = event->globalPosition().toPoint().y();
    m_started();
}

void SplitHandle::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton)
        m_dragged(event->globalPosition().toPoint().y() - m_pressedAt);
}

} // namespace morvel::qt
