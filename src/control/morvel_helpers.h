// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/scoped_flag.h"
#include "view/control.h"

#include <initializer_list>

namespace morvel::control {

inline void setAllVisible(std::initializer_list<view::Control*> controls, bool visible) {
    for (view::Control* control : controls)
        control->setVisible(visible);
}

inline void setAllEnabled(std::initializer_list<view::Control*> controls, bool enabled) {
    for (view::Control* control : controls)
        control->setEnabled(enabled);
}

} // namespace morvel::control
