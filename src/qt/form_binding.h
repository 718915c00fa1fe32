// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "qt/twip_scale.h"
#include "view/form.h"

#include <QObject>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

class QWidget;

namespace morvel::qt {

class ControlBinder;

// Builds one real widget per headless control of a form inside a root widget that stands for
// the form itself, and keeps both in step: the model's changes show in the widgets, the person's
// input reaches the model through each control's own user actions, and failures stop at the
// binding's event boundary as a message box.
//
// Keyboard focus follows the model when its logic moves it on purpose (into the name box of a
// field the host added, say); a focus the person moves (a click, Tab) becomes the model's focus
// through Form::setFocusTo, so LostFocus handlers run in the model. Two kinds of move stay in the
// model: those Qt makes while it mirrors a model change (a focused widget hidden, say), and those
// the logic makes while it only shows data (see setShowingData). A combo box that a load left
// focused in the model would otherwise take the person's next arrow key for a new choice.
class FormBinding : public QObject {
public:
    // An embedded form's size follows its root widget; a dialog's root also follows the form
    // when the logic resizes it.
    enum class RootSize { FollowsWidget, FollowsForm };

    FormBinding(view::Form& form, QWidget& root, RootSize rootSize = RootSize::FollowsWidget);
    FormBinding(const FormBinding&) = delete;
    FormBinding& operator=(const FormBinding&) = delete;
    ~FormBinding() override;

    view::Form& form() const { return m_form; }
    QWidget& root() const { return m_root; }
    const TwipScale& scale() const { return m_scale; }

    // The widget of a control of the form, null for one it does not know.
    QWidget* widgetFor(const view::Control& control) const;
    template <typename W> W* widgetAs(const view::Control& control) const {
        return qobject_cast<W*>(widgetFor(control));
    }

    // While a hold lives, focus moves of the logic stay in the model; when the last one ends,
    // the keeper (if any) has the focus in both. A click on a list row holds it on the list;
    // handing the designer a new collection holds it wherever the person has it.
    class FocusHold {
    public:
        FocusHold(FormBinding& binding, view::Control* keeper);
        FocusHold(const FocusHold&) = delete;
        FocusHold& operator=(const FocusHold&) = delete;
        ~FocusHold();

    private:
        FormBinding& m_binding;
        view::Control* m_keeper;
    };

    // Marks a model-to-widget update, during which Qt's focus events are not fed back.
    class Mirroring {
    public:
        explicit Mirroring(FormBinding& binding)
            : m_binding(binding) {
            ++m_binding.m_mirroring;
        }
        Mirroring(const Mirroring&) = delete;
        Mirroring& operator=(const Mirroring&) = delete;
        ~Mirroring() { --m_binding.m_mirroring; }

    private:
        FormBinding& m_binding;
    };

    // Tells when the form's logic is only showing data (filling its boxes for another record):
    // the focus moves it makes meanwhile are its own bookkeeping and stay in the model, and the
    // keyboard stays where the person has it.
    void setShowingData(std::function<bool()> showingData) {
        m_showingData = std::move(showingData);
    }

    // Moves the border between two controls of the form stacked one above the other (a list above
    // a panel) by pixels: the upper one gives the lower one that much of its height, and every
    // control of the form below the border moves up with it. The model keeps its designed layout;
    // only the widgets move. 0 shows the design.
    void setSplit(const view::Control& upper, const view::Control& lower, int pixels);
    int split() const { return m_split.pixels; }
    // Where the widget of a control goes: its place in the model, moved by the split.
    QRect placeOf(const view::Control& control) const;

    // The person moved the focus out of the form, to another part of the host window: the
    // control that had it loses it, so its LostFocus handler commits what was typed.
    void releaseFocus();

    // For the control binders.
    void mirrorFocus(QWidget& widget);
    void focusEntered(view::Control& control);
    void focusLeft(Qt::FocusReason reason);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class RootBinder;

    void build(view::Container& container, QWidget& parent);
    void applyTabOrder();
    void rootResized();
    void showFormSize();

    view::Form& m_form;
    QWidget& m_root;
    TwipScale m_scale;
    RootSize m_rootSize;
    std::vector<std::unique_ptr<ControlBinder>> m_binders;
    std::unordered_map<const view::Control*, ControlBinder*> m_byControl;
    struct Split {
        const view::Control* upper = nullptr;
        const view::Control* lower = nullptr;
        int pixels = 0;
    };

    std::function<bool()> m_showingData;
    Split m_split;
    int m_focusHolds = 0;
    int m_mirroring = 0;
    bool m_resizingRoot = false;
};

} // namespace morvel::qt
