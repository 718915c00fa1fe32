// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/simple_binders.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace morvel::qt {

namespace {
template <typename W> W& make(QWidget& parent) {
    return *new W(&parent);
}
QString toQString(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
} // namespace

LabelBinder::LabelBinder(FormBinding& binding, view::Label& label, QWidget& parent)
    : ControlBinder(binding, label, make<QLabel>(parent))
    , m_label(label)
    , m_widget(static_cast<QLabel&>(widget())) {
    m_widget.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_widget.setTextFormat(Qt::PlainText);
}

void LabelBinder::toWidget(view::Property what) {
    if (what == view::Property::Caption) {
        m_widget.setText(toQString(m_label.caption()));
        return;
    }
    ControlBinder::toWidget(what);
}

ButtonBinder::ButtonBinder(FormBinding& binding, view::Button& button, QWidget& parent)
    : ControlBinder(binding, button, make<QPushButton>(parent))
    , m_button(button)
    , m_widget(static_cast<QPushButton&>(widget())) {
    m_widget.setAutoDefault(false);
    QObject::connect(&m_widget, &QPushButton::clicked, this,
                     [this] { act([&] { m_button.click(); }); });
}

void ButtonBinder::toWidget(view::Property what) {
    if (what == view::Property::Caption) {
        m_widget.setText(toQString(m_button.caption()));
        return;
    }
    ControlBinder::toWidget(what);
}

CheckBoxBinder::CheckBoxBinder(FormBinding& binding, view::CheckBox& box, QWidget& parent)
    : ControlBinder(binding, box, make<QCheckBox>(parent))
    , m_box(box)
    , m_widget(static_cast<QCheckBox&>(widget())) {
    QObject::connect(&m_widget, &QCheckBox::clicked, this, [this] {
        act([&] { m_box.click(); });
        // Qt toggled the box itself; the model decides what it shows.
        toWidget(view::Property::Value);
    });
}

void CheckBoxBinder::toWidget(view::Property what) {
    switch (what) {
    case view::Property::Caption:
        m_widget.setText(toQString(m_box.caption()));
        return;
    case view::Property::Value: {
        const QSignalBlocker blocker(m_widget);
        const std::int32_t value = m_box.value();
        m_widget.setCheckState(value == 1   ? Qt::Checked
                               : value == 2 ? Qt::PartiallyChecked
                                            : Qt::Unchecked);
        return;
    }
    default:
        ControlBinder::toWidget(what);
    }
}

} // namespace morvel::qt
