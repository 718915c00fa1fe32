// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "headless_world.h"

#include "field_generator.h"

#include <map>
#include <stdexcept>

namespace morvel::bench {

HeadlessWorld::HeadlessWorld(std::int32_t fieldCount)
    : designer(prompter, modalHost)
    , defs(makeFieldDefs(fieldCount)) {
    designer.move(0, 0, 12000, 9000);
    // Existing fields stay fully editable, so that a type change is measured, not refused.
    designer.SetCanModifyExisting(true);
    const auto notified = [this](const FieldDefs::FieldPtr&) {
        if (onNotified)
            onNotified();
    };
    m_probes += defs->AfterAdd.connect(notified);
    m_probes += defs->AfterRemove.connect(notified);
    designer.SetFieldDefs(defs);
}

HeadlessWorld& HeadlessWorld::shared(std::int32_t fieldCount) {
    static std::map<std::int32_t, std::unique_ptr<HeadlessWorld>> worlds;
    auto& world = worlds[fieldCount];
    if (!world)
        world = std::make_unique<HeadlessWorld>(fieldCount);
    return *world;
}

std::string HeadlessWorld::lastOfType(std::int32_t fieldType, std::string_view withProperty) const {
    for (std::int32_t i = defs->Count(); i >= 1; --i) {
        const FieldDef& field = *defs->Item(i);
        if (field.FieldType() == fieldType &&
            (withProperty.empty() || field.Properties().Lookup(withProperty)))
            return field.Name();
    }
    throw std::logic_error("the generated table has no field of type " + std::to_string(fieldType));
}

void HeadlessWorld::clickRow(const std::string& name) {
    designer.lst.clickItem(designer.lst.item(name));
}

} // namespace morvel::bench
