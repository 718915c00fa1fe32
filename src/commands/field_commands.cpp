// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "commands/field_commands.h"

#include <algorithm>

namespace morvel::commands {

std::string FieldCommands::newFieldName(const FieldDefs& fields) {
    const std::string stem = "NewField";
    std::string name = stem;
    for (int n = 2; fields.find(name); ++n)
        name = stem + std::to_string(n);
    return name;
}

FieldCommands::FieldPtr FieldCommands::newField() {
    const auto& fields = m_designer.FieldDefs();
    if (!fields)
        return nullptr;
    const std::string name = newFieldName(*fields);
    // Named for the history, so that Undo says what it takes back.
    const FieldDefs::Step step = fields->beginStep("Add field " + name, ChangeOrigin::Host);
    return fields->Add(name, kNewFieldType);
}

bool FieldCommands::removeCurrentField() {
    const auto& fields = m_designer.FieldDefs();
    const FieldPtr field = m_designer.SelectedFieldDef();
    if (!fields || !field)
        return false;
    const std::string name = field->Name();
    const view::MessageBoxRequest question{"Remove the field \"" + name + "\"?",
                                           view::MsgBoxButtons::YesNo, view::MsgBoxIcon::Question,
                                           ""};
    if (m_prompter.messageBox(question) != view::MsgBoxResult::Yes)
        return false;
    // The row's place, read from the list (keyed, no scan of the collection).
    const view::ListItem* row = m_designer.lst.find(name);
    const std::int32_t place = row ? row->index() : 1;
    {
        const FieldDefs::Step step = fields->beginStep("Remove field " + name, ChangeOrigin::Host);
        fields->Remove(name);
    }
    // The designer shows its first row after a removal; a person expects to stay where they were.
    const std::int32_t count = m_designer.lst.count();
    if (count == 0)
        return true;
    const view::ListItem& next = m_designer.lst.item(std::min(place, count));
    makeCurrent(std::string(next.key()));
    return true;
}

bool FieldCommands::makeCurrent(std::string_view name) {
    return m_designer.SelectFieldByName(name);
}

} // namespace morvel::commands
