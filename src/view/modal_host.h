// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace morvel::view {

class Form;

// Shows a form modally and returns when it is closed. The Qt front end runs a real dialog; tests
// run a script that drives the form and closes it.
class ModalHost {
public:
    virtual ~ModalHost() = default;
    virtual void showModal(Form& form) = 0;
};

} // namespace morvel::view
