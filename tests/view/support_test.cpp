#include "fields/signal.h"
#include "view/form.h"
#include "view/handler_policy.h"
#include "view/modal_host.h"
#include "view/scripted_prompter.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace morvel::view {
namespace {

TEST(Signal, ObserverDisconnectedDuringEmitIsNotCalledAgain) {
    Signal<int> signal;
    std::vector<std::string> calls;
    Connection second;
    auto first = signal.connect([&](int) {
        calls.push_back("first");
        second.disconnect();
    });
    second = signal.connect([&](int) { calls.push_back("second"); });
    signal.emit(1);
    signal.emit(2);
    EXPECT_EQ(calls, (std::vector<std::string>{"first", "first"}));
}

TEST(Signal, ConnectionGoingOutOfScopeDisconnects) {
    Signal<> signal;
    int calls = 0;
    {
        auto scoped = signal.connect([&] { ++calls; });
        signal.emit();
    }
    signal.emit();
    EXPECT_EQ(calls, 1);
}

TEST(HandlerPolicy, SkipFailingStepsRunsEveryOtherStep) {
    std::vector<int> ran;
    skipFailingSteps([&] { ran.push_back(1); }, [&] { throw std::runtime_error("no field"); },
                     [&] { ran.push_back(3); });
    EXPECT_EQ(ran, (std::vector<int>{1, 3}));
    bool after = false;
    endQuietly([&] {
        throw std::runtime_error("x");
        after = true;
    });
    EXPECT_FALSE(after);
}

TEST(ScriptedPrompter, AnswersInOrderAndFallsBackToTheSafestButton) {
    ScriptedPrompter prompter;
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
    ScriptedModalHost host;
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
