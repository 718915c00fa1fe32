// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/control.h"

#include <vector>

namespace morvel::view {

// A control that holds others (a panel, a form). Children register themselves on construction
// and are not owned: the form's class owns its controls as members.
class Container : public Control {
public:
    using Control::Control;

    const std::vector<Control*>& children() const { return m_children; }
    // The inner size that children are laid out in.
    virtual std::int32_t scaleWidth() const { return width(); }
    virtual std::int32_t scaleHeight() const { return height(); }

    // Raised when the size changes (not on a move alone).
    Signal<> Resize;

protected:
    void geometryChanged(const Rect& old) override;

private:
    friend class Control;
    std::vector<Control*> m_children;
};

// A picture-box panel: a plain container.
class Panel : public Container {
public:
    using Container::Container;
};

} // namespace morvel::view
