// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "control/designer_fixture.h"
#include "dialogs/frm_edit_list.h"
#include "dialogs/frm_locale.h"

namespace morvel::testing {
namespace {

TEST_F(DesignerTest, EditorButtonsOpenTheEditorsModallyForTheCurrentField) {
    auto defs = give({{"Colour", 1100}});
    std::vector<std::string> seen;
    modalHost.setScript([&](view::Form& form) {
        if (auto* list = dynamic_cast<dialogs::frmEditList*>(&form))
            seen.push_back("list " + list->FieldDef()->Name());
        if (dynamic_cast<dialogs::frmLocale*>(&form))
            seen.push_back("locale");
    });
    designer.cmdList.click();
    designer.cmdLocale.click();
    EXPECT_EQ(seen, (std::vector<std::string>{"list Colour", "locale"}));
}

} // namespace
} // namespace morvel::testing
