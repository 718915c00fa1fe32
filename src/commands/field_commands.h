// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "control/morvel.h"
#include "fields/field_defs.h"
#include "view/prompter.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace morvel::commands {

// The commands a host runs on the fields of the table shown in a designer, without a window:
// each is one function over the designer's collection, asking the person through the prompter
// where it must. The designer follows the collection by itself; a command only adds what the
// person expects around it (which field is shown afterwards). Commands that come later (duplicate,
// paste, move, rename with the references) join here, each as one function of this kind.
class FieldCommands {
public:
    using FieldPtr = std::shared_ptr<FieldDef>;

    // The type a new field starts with: "Text".
    static constexpr std::int32_t kNewFieldType = 200;

    FieldCommands(control::Morvel& designer, view::Prompter& prompter)
        : m_designer(designer)
        , m_prompter(prompter) {}

    // "NewField", else "NewField2", "NewField3", ...: the first name no field of the collection
    // has (names compare without regard to letter case).
    static std::string newFieldName(const FieldDefs& fields);

    // Appends a "Text" field with the next free new-field name; the designer selects it and puts
    // the keyboard into its name. Null when no table is shown.
    FieldPtr newField();

    // Asks whether to remove the field shown and removes it on Yes. Afterwards the row that took
    // its place (or the new last row) is current and in view. False when nothing was removed.
    bool removeCurrentField();

    // Makes the field of that name current as a click on its row would; false when the designer
    // lists no field of that name.
    bool makeCurrent(std::string_view name);

private:
    control::Morvel& m_designer;
    view::Prompter& m_prompter;
};

} // namespace morvel::commands
