// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "qt/control_binder.h"
#include "view/simple_controls.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace morvel::qt {

// Label -> QLabel: the caption, top-left aligned and clipped as a form's label is.
class LabelBinder : public ControlBinder {
public:
    LabelBinder(FormBinding& binding, view::Label& label, QWidget& parent);

private:
    void toWidget(view::Property what) override;
    view::Label& m_label;
    QLabel& m_widget;
};

// Button -> QPushButton: a click is Button::click.
class ButtonBinder : public ControlBinder {
public:
    ButtonBinder(FormBinding& binding, view::Button& button, QWidget& parent);

private:
    void toWidget(view::Property what) override;
    view::Button& m_button;
    QPushButton& m_widget;
};

// CheckBox -> QCheckBox: a click is CheckBox::click; the model's value (2 greyed) is what shows.
class CheckBoxBinder : public ControlBinder {
public:
    CheckBoxBinder(FormBinding& binding, view::CheckBox& box, QWidget& parent);

private:
    void toWidget(view::Property what) override;
    view::CheckBox& m_box;
    QCheckBox& m_widget;
};

} // namespace morvel::qt
