// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "qt/control_binder.h"
#include "view/combo_box.h"
#include "view/text_box.h"

class QComboBox;
class QLineEdit;
class QPlainTextEdit;

namespace morvel::qt {

// TextBox -> QLineEdit, or QPlainTextEdit when multi-line. The person's typing is
// TextBox::type; a locked box is read-only; the model's selection is shown when code selects
// (the whole name after a field is added, say).
class TextBoxBinder : public ControlBinder {
public:
    TextBoxBinder(FormBinding& binding, view::TextBox& box, QWidget& parent);

private:
    void toWidget(view::Property what) override;
    void typed(const QString& text);

    view::TextBox& m_box;
    QLineEdit* m_line = nullptr;
    QPlainTextEdit* m_plain = nullptr;
};

// ComboBox -> QComboBox, editable or not. Picking an entry is ComboBox::pick, typing into an
// editable one is ComboBox::type. Typing is taken from the line edit's textEdited, which only the
// keyboard raises: a pick also changes the edit text, and must raise Click alone, not Change.
class ComboBoxBinder : public ControlBinder {
public:
    ComboBoxBinder(FormBinding& binding, view::ComboBox& box, QWidget& parent);

private:
    void toWidget(view::Property what) override;
    void syncItems();
    void syncSelection();

    view::ComboBox& m_box;
    QComboBox& m_widget;
};

} // namespace morvel::qt
