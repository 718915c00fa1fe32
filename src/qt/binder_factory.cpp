// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/control_binder.h"
#include "qt/list_view_binder.h"
#include "qt/simple_binders.h"
#include "qt/tab_strip_binder.h"
#include "qt/text_binders.h"
#include "view/container.h"

#include <QWidget>

namespace morvel::qt {

std::unique_ptr<ControlBinder> makeBinder(FormBinding& binding, view::Control& control,
                                          QWidget& parent) {
    if (auto* box = dynamic_cast<view::TextBox*>(&control))
        return std::make_unique<TextBoxBinder>(binding, *box, parent);
    if (auto* combo = dynamic_cast<view::ComboBox*>(&control))
        return std::make_unique<ComboBoxBinder>(binding, *combo, parent);
    if (auto* label = dynamic_cast<view::Label*>(&control))
        return std::make_unique<LabelBinder>(binding, *label, parent);
    if (auto* button = dynamic_cast<view::Button*>(&control))
        return std::make_unique<ButtonBinder>(binding, *button, parent);
    if (auto* check = dynamic_cast<view::CheckBox*>(&control))
        return std::make_unique<CheckBoxBinder>(binding, *check, parent);
    if (auto* list = dynamic_cast<view::ListView*>(&control))
        return std::make_unique<ListViewBinder>(binding, *list, parent);
    if (auto* strip = dynamic_cast<view::TabStrip*>(&control))
        return std::make_unique<TabStripBinder>(binding, *strip, parent);
    // A panel, or a control kind without a widget of its own: a plain widget that keeps its
    // place, visibility and children.
    return std::make_unique<ControlBinder>(binding, control, *new QWidget(&parent));
}

} // namespace morvel::qt
