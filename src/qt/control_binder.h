// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "qt/error_boundary.h"
#include "view/control.h"

#include <QObject>
#include <memory>

class QWidget;

namespace morvel::qt {

class FormBinding;

// Keeps one headless control and its real widget in step. Two directions, each small:
// toWidget mirrors one changed property into the widget (signals blocked, so nothing echoes
// back), and the widget's user signals call the control's own user-action methods through act(),
// so that each event fires once, in the headless model. This base mirrors what every control
// has (geometry, visibility, enabled state, font, focus); each kind adds its own.
class ControlBinder : public QObject {
public:
    ControlBinder(FormBinding& binding, view::Control& control, QWidget& widget);
    ~ControlBinder() override;

    view::Control& control() const { return m_control; }
    QWidget& widget() const { return m_widget; }
    // Mirrors every property, as when the widget is made.
    void refresh();

protected:
    virtual void toWidget(view::Property what);
    // Runs a person's action on the model at the binding's event boundary.
    template <typename Action> bool act(Action&& action) {
        return guarded(&m_widget, std::forward<Action>(action));
    }
    FormBinding& binding() const { return m_binding; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    FormBinding& m_binding;
    view::Control& m_control;
    QWidget& m_widget;
    Connection m_changed;
};

// The binder of a control of any kind, with its widget made inside parent.
std::unique_ptr<ControlBinder> makeBinder(FormBinding& binding, view::Control& control,
                                          QWidget& parent);

} // namespace morvel::qt
