// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "control/morvel.h"
#include "fields/field_defs.h"
#include "testing/scripted_modal_host.h"
#include "testing/scripted_prompter.h"
#include "view/modal_host.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace morvel::bench {

// A headless designer holding a generated table of a given size, driven as a person would drive
// it, with the scripted prompter answering its boxes.
struct HeadlessWorld {
    explicit HeadlessWorld(std::int32_t fieldCount);

    // The world of that size, built once per process: building 100,000 fields takes longer than
    // the operations measured on them, and every benchmark leaves the world as it found it.
    static HeadlessWorld& shared(std::int32_t fieldCount);

    // The name of the last field of that type (and with that stored property, when a key is
    // given), searching from the end of the collection.
    std::string lastOfType(std::int32_t fieldType, std::string_view withProperty = {}) const;
    // Clicks the row of that field, as the user would.
    void clickRow(const std::string& name);

    // Called when the collection raises AfterAdd or AfterRemove, before the designer hears of it:
    // the moment the designer's own work begins.
    std::function<void()> onNotified;

    testkit::ScriptedPrompter prompter;
    testkit::ScriptedModalHost modalHost;
    control::Morvel designer;
    std::shared_ptr<FieldDefs> defs;

private:
    Connections m_probes;
};

} // namespace morvel::bench
