// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// Undo and redo without a screen: what recording a change costs, and what taking a step back or
// forward costs in the history and in the designer that follows it, at N fields. Each benchmark
// leaves the shared designer as it found it and drops the history it made.

#include "bench_plan.h"
#include "commands/history_commands.h"
#include "field_generator.h"
#include "headless_world.h"
#include "history/history.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <string>

namespace morvel::bench {
namespace {

using benchmark::State;

constexpr std::int32_t kVarChar = 8;
constexpr int kKeystrokeSteps = 1000;

std::int32_t fieldCount(const State& state) {
    return static_cast<std::int32_t>(state.range(0));
}

// A write outside any step: recorded as a step of its own, the oldest dropped at the limit. No
// designer listens, so the figure is the library's write and the history's record.
void History_RecordChange(State& state) {
    const auto defs = makeFieldDefs(fieldCount(state));
    History history(*defs);
    FieldDef& field = *defs->Item(defs->Count() - 1);
    bool odd = false;
    for (auto _ : state) {
        odd = !odd;
        field.SetDisplayName(odd ? "Shown name 1" : "Shown name 2");
    }
    if (history.count() == 0)
        state.SkipWithError("nothing was recorded");
}

// One step back and one forward in turn, as Ctrl+Z and Ctrl+Shift+Z run them: the library's
// write, the designer following it, and the changed field shown again.
void History_UndoRedoStep(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    History history(*world.defs);
    commands::HistoryCommands commands(world.designer);
    world.clickRow(world.lastOfType(kVarChar));
    world.designer.txtDisplayName.type(world.designer.txtDisplayName.text() + "0");
    bool back = false;
    for (auto _ : state) {
        back = !back;
        if (!(back ? commands.undo(history) : commands.redo(history)))
            state.SkipWithError("there was no step to take");
    }
    if (!back)
        commands.undo(history);
}

// The removal of the field in the middle, undone and redone in turn: the field goes back at its
// place with its row, then goes again.
void History_UndoRemoval(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    History history(*world.defs);
    commands::HistoryCommands commands(world.designer);
    const std::int32_t middle = world.defs->Count() / 2;
    const std::string name = world.defs->Item(middle)->Name();
    {
        const auto step = world.defs->beginStep("Remove field " + name, ChangeOrigin::Host);
        world.defs->Remove(name);
    }
    bool back = false;
    for (auto _ : state) {
        back = !back;
        if (!(back ? commands.undo(history) : commands.redo(history)))
            state.SkipWithError("there was no step to take");
    }
    if (!back)
        commands.undo(history);
    if (world.defs->Item(middle)->Name() != name)
        state.SkipWithError("the field did not come back at its place");
    world.clickRow(world.defs->Item(1)->Name());
}

// 1,000 keystrokes, each a step of its own (the focus left the box between them), undone one by
// one. Also what a keystroke step holds: the box's whole text before and after, and the step.
void History_Undo1000Keystrokes(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    History history(*world.defs);
    commands::HistoryCommands commands(world.designer);
    world.clickRow(world.lastOfType(kVarChar));
    view::TextBox& box = world.designer.txtDisplayName;
    const std::string before = box.text();
    for (auto _ : state) {
        state.PauseTiming();
        // A letter and its backspace in turn: the box's text stays of a display name's length.
        for (int i = 0; i < kKeystrokeSteps; ++i) {
            box.type(i % 2 == 0 ? before + "x" : before);
            history.breakMerge();
        }
        state.counters["bytes_per_keystroke_step"] =
            static_cast<double>(history.memoryUse()) / static_cast<double>(history.count());
        state.ResumeTiming();
        for (int i = 0; i < kKeystrokeSteps; ++i)
            commands.undo(history);
    }
    if (box.text() != before || history.index() != 0)
        state.SkipWithError("the keystrokes were not all undone");
}

const bool kRegistered = [] {
    using benchmark::kMicrosecond;
    using benchmark::kMillisecond;
    const std::initializer_list<SizePlan> chosen{{1000, 0}, {10000, 0}, {100000, 0}};
    registerPlans("History_RecordChange", History_RecordChange, kMicrosecond, chosen);
    registerPlans("History_UndoRedoStep", History_UndoRedoStep, kMicrosecond, chosen);
    registerPlans("History_UndoRemoval", History_UndoRemoval, kMicrosecond,
                  {{1000, 200}, {10000, 200}, {100000, 100}});
    registerPlans("History_Undo1000Keystrokes", History_Undo1000Keystrokes, kMillisecond,
                  {{1000, 5}, {10000, 5}, {100000, 5}});
    return true;
}();

} // namespace
} // namespace morvel::bench
