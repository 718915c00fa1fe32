// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "testing/scripted_modal_host.h"
#include "testing/scripted_prompter.h"
#include "view/form.h"
#include "view/modal_host.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace morvel::view {
namespace {

TEST(ScriptedPrompter, AnswersInOrderAndFallsBackToTheSafestButton) {
    testkit::ScriptedPrompter prompter;
    prompter.answer(MsgBoxResult::Yes);
    prompter.answer("abc");
    EXPECT_EQ(prompter.messageBox({"Sure?", MsgBoxButtons::YesNo, MsgBoxIcon::Question, ""}),
              MsgBoxResult::Yes);
    EXPECT_EQ(prompter.inputBox({"Text?", "Title", ""}), "abc");
    EXPECT_EQ(prompter.messageBox({"Again?", MsgBoxButtons::YesNo, MsgBoxIcon::None, ""}),
              MsgBoxResult::No);
    EXPECT_EQ(prompter.inputBox({"More?", "", "5"}), "");
    EXPECT_EQ(prompter.unanswered(), 2u);
    EXPECT_EQ(prompter.promptTexts(),
              (std::vector<std::string>{"Sure?", "Text?", "Again?", "More?"}));
}

TEST(ScriptedModalHost, FormIsOpenWhileTheScriptRunsAndClosedAfter) {
    testkit::ScriptedModalHost host;
    Form dialog("frm");
    bool openDuring = false;
    int closed = 0;
    auto c = dialog.Closed.connect([&] { ++closed; });
    host.setScript([&](Form& form) { openDuring = form.isOpen(); });
    host.showModal(dialog);
    EXPECT_TRUE(openDuring);
    EXPECT_FALSE(dialog.isOpen());
    EXPECT_EQ(closed, 1);
}

} // namespace
} // namespace morvel::view
