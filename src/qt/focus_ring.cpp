// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/focus_ring.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QPainter>

namespace morvel::qt {

namespace {
constexpr int kRingWidth = 2;
} // namespace

FocusRing::FocusRing(QWidget& root)
    : QWidget(&root)
    , m_root(root) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { follow(now); });
}

void FocusRing::follow(QWidget* focus) {
    if (m_target)
        m_target->removeEventFilter(this);
    m_target = nullptr;
    // The line edit inside an editable drop-down has the focus; the ring goes round the whole.
    if (focus && qobject_cast<QComboBox*>(focus->parentWidget()))
        focus = focus->parentWidget();
    if (!focus || focus == &m_root || !m_root.isAncestorOf(focus) || !focus->parentWidget()) {
        hide();
        return;
    }
    m_target = focus;
    m_target->installEventFilter(this);
    place();
}

void FocusRing::place() {
    if (!m_target || !m_target->isVisible()) {
        hide();
        return;
    }
    QWidget* parent = m_target->parentWidget();
    if (parentWidget() != parent)
        setParent(parent);
    // A widget at the edge of its parent (the field list fills the top of the designer) gets
    // the ring on its own border there, where a ring outside it would be cut off.
    const QRect outer = m_target->geometry()
                            .adjusted(-kRingWidth, -kRingWidth, kRingWidth, kRingWidth)
                            .intersected(parent->rect());
    setGeometry(outer);
    const QRect inner = rect().adjusted(kRingWidth, kRingWidth, -kRingWidth, -kRingWidth);
    setMask(QRegion(rect()).subtracted(QRegion(inner)));
    raise();
    show();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_target) {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
            place();
            break;
        default:
            break;
        }
    }
    return false;
}

void FocusRing::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Active, QPalette::Highlight));
}

} // namespace morvel::qt
