// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/control_binder.h"

#include "qt/form_binding.h"

#include <QEvent>
#include <QFocusEvent>
#include <QWidget>

namespace morvel::qt {

ControlBinder::ControlBinder(FormBinding& binding, view::Control& control, QWidget& widget)
    : m_binding(binding)
    , m_control(control)
    , m_widget(widget) {
    m_widget.setObjectName(QString::fromStdString(control.name()));
    m_widget.installEventFilter(this);
    m_changed = m_control.changed.connect([this](view::Property what) {
        const FormBinding::Mirroring mirroring(m_binding);
        toWidget(what);
    });
}

ControlBinder::~ControlBinder() = default;

void ControlBinder::refresh() {
    using P = view::Property;
    for (P what : {P::Font, P::Columns, P::Items, P::Tabs, P::Text, P::Caption, P::ListIndex,
                   P::Value, P::Selection, P::Locked, P::Enabled, P::Geometry, P::Visible})
        toWidget(what);
}

void ControlBinder::toWidget(view::Property what) {
    switch (what) {
    case view::Property::Enabled:
        m_widget.setEnabled(m_control.enabled());
        return;
    case view::Property::Visible:
        m_widget.setVisible(m_control.visible());
        return;
    case view::Property::Geometry:
        m_widget.setGeometry(m_binding.placeOf(m_control));
        return;
    case view::Property::Font:
        if (!m_control.fontName().empty()) {
            QFont font = m_widget.font();
            font.setFamily(QString::fromStdString(m_control.fontName()));
            m_widget.setFont(font);
        }
        return;
    case view::Property::Focus:
        if (m_control.hasFocus())
            m_binding.mirrorFocus(m_widget);
        return;
    default:
        return;
    }
}

bool ControlBinder::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &m_widget)
        return false;
    if (event->type() == QEvent::FocusIn)
        m_binding.focusEntered(m_control);
    else if (event->type() == QEvent::FocusOut)
        m_binding.focusLeft(static_cast<QFocusEvent*>(event)->reason());
    return false;
}

} // namespace morvel::qt
