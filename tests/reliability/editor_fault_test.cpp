// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// Stored data that no editor writes but a database or a host may hold: the editors must open it
// without an error escaping.

#include "dialogs/frm_edit_list.h"
#include "dialogs/frm_locale.h"
#include "testing/scripted_modal_host.h"
#include "testing/scripted_prompter.h"
#include "view/modal_host.h"

#include <gtest/gtest.h>

namespace morvel::reliability {
namespace {

// Found by the random run: the descriptions-only reading takes each key from its second
// character on, which does not exist in an empty key.
TEST(EditorFaults, LocaleEditorOpensLocalesWithAnEmptyKey) {
    testkit::ScriptedPrompter prompter;
    testkit::ScriptedModalHost host;
    auto field = std::make_shared<FieldDef>("Notes", 200);
    field->Locales().SetValue("", Value("stray"), true);
    dialogs::frmLocale form(prompter, host);
    ASSERT_NO_THROW(form.ShowForm(field));
    EXPECT_EQ(host.shown(), 1);
}

TEST(EditorFaults, ListValuesEditorOpensKeysThatAreNoNumbers) {
    testkit::ScriptedPrompter prompter;
    auto field = std::make_shared<FieldDef>("Colour", 1100);
    for (const char* key : {"", "x", " 7", "99999999999"})
        field->ListValues().SetValue(key, Value(key), true);
    dialogs::frmEditList form(prompter);
    form.SetFieldDef(field);
    ASSERT_NO_THROW(form.LoadData());
    EXPECT_EQ(form.lstValues.count(), 4);
    form.cmdOK_Click();
    EXPECT_EQ(field->ListValues().Count(), 4);
}

} // namespace
} // namespace morvel::reliability
