// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The designer without a screen: what each operation costs in the control's own logic, on a
// designer that already holds N fields. Every benchmark leaves the shared designer as it found it.

#include "bench_plan.h"
#include "catalogue/property_keys.h"
#include "field_generator.h"
#include "headless_world.h"
#include "process_memory.h"
#include "testing/scripted_modal_host.h"
#include "testing/scripted_prompter.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <string>

namespace morvel::bench {
namespace {

using benchmark::State;

constexpr std::int32_t kLink = 1000;
constexpr std::int32_t kVarChar = 8;
constexpr std::int32_t kTextEncrypted = 20200;

std::int32_t fieldCount(const State& state) {
    return static_cast<std::int32_t>(state.range(0));
}

// Refill, first selection and panel load, from a designer that shows nothing to one that shows
// all N fields with the first one loaded.
void Headless_SetFieldDefs(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    auto empty = std::make_shared<FieldDefs>();
    for (auto _ : state) {
        state.PauseTiming();
        world.designer.SetFieldDefs(empty);
        state.ResumeTiming();
        world.designer.SetFieldDefs(world.defs);
    }
    if (world.designer.lst.count() != fieldCount(state) || !world.designer.SelectedFieldDef())
        state.SkipWithError("the list does not show the collection");
}

// A click on one of the last rows: the selection routine and a full panel load.
void Headless_SelectFarRow(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    auto& lst = world.designer.lst;
    bool last = false;
    for (auto _ : state) {
        last = !last;
        lst.clickItem(lst.item(last ? lst.count() : lst.count() - 1));
    }
}

// One keystroke and its undoing keystroke alternately, so that the field and row stay as they were.
void typeAlternately(State& state, view::TextBox& box) {
    const std::string before = box.text();
    const std::string after = before + "0";
    bool typed = false;
    for (auto _ : state) {
        typed = !typed;
        if (!box.type(typed ? after : before)) {
            state.SkipWithError("the box refused the keystroke");
            break;
        }
    }
    box.type(before);
}

void Headless_KeystrokeDisplayName(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    world.clickRow(world.lastOfType(kVarChar));
    typeAlternately(state, world.designer.txtDisplayName);
}

void Headless_KeystrokeSize(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    world.clickRow(world.lastOfType(kVarChar));
    typeAlternately(state, world.designer.txtSize);
}

void Headless_KeystrokeOrderField(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    // A link to objects shows the order field, on the link page that the user opens first.
    world.clickRow(world.lastOfType(kLink, catalogue::kDirectObjectType));
    world.designer.TabStrip.click(2);
    typeAlternately(state, world.designer.txtOrderField);
    world.designer.TabStrip.click(1);
}

std::int32_t entryWithData(const view::ComboBox& box, std::int32_t data) {
    for (std::int32_t i = 0; i < box.listCount(); ++i)
        if (box.itemData(i) == data)
            return i;
    return -1;
}

// Link and Text Encrypted each have a second tab of their own: every change removes one type tab
// and builds the other, then reloads the panel.
void Headless_TypeChangeSwapsTab(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    world.clickRow(world.lastOfType(kLink));
    auto& cboType = world.designer.cboType;
    const std::int32_t link = entryWithData(cboType, kLink);
    const std::int32_t encrypted = entryWithData(cboType, kTextEncrypted);
    bool toEncrypted = false;
    for (auto _ : state) {
        toEncrypted = !toEncrypted;
        if (!cboType.pick(toEncrypted ? encrypted : link)) {
            state.SkipWithError("the type box refused the pick");
            break;
        }
    }
    if (toEncrypted)
        cboType.pick(link);
}

// The collection keeps its order in a vector: putting a field in the middle moves the fields
// after it, which is the collection's cost, not the designer's. So the time taken runs from the
// notification to the return of the host's call; the whole call is kept as host_call_us.
class HostCall {
public:
    using Clock = std::chrono::steady_clock;

    HostCall(State& state, HeadlessWorld& world)
        : m_state(state)
        , m_world(world) {
        m_world.onNotified = [this] { m_notified = Clock::now(); };
    }
    ~HostCall() {
        m_world.onNotified = nullptr;
        m_state.counters["host_call_us"] =
            benchmark::Counter(m_hostCall.count() * 1e6, benchmark::Counter::kAvgIterations);
    }
    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;

    template <typename Call> void measured(Call&& call) {
        const Clock::time_point start = Clock::now();
        call();
        const Clock::time_point end = Clock::now();
        m_state.SetIterationTime(std::chrono::duration<double>(end - m_notified).count());
        m_hostCall += end - start;
    }

private:
    State& m_state;
    HeadlessWorld& m_world;
    Clock::time_point m_notified;
    std::chrono::duration<double> m_hostCall{0};
};

// The host adds a field in the middle of the collection; the designer adds its row, selects it
// and loads it.
void Headless_AfterAdd(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    const std::int32_t middle = world.defs->Count() / 2;
    std::int32_t serial = 0;
    HostCall host(state, world);
    for (auto _ : state) {
        auto field = makeExtraField(++serial);
        host.measured([&] { world.defs->Insert(middle, field); });
        world.defs->Remove(field->Name());
    }
}

// The host removes the field in the middle of the collection; the designer removes its row,
// selects the first row and loads it.
void Headless_AfterRemove(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    const std::int32_t middle = world.defs->Count() / 2;
    HostCall host(state, world);
    for (auto _ : state) {
        auto field = world.defs->Item(middle);
        host.measured([&] { world.defs->Remove(field->Name()); });
        world.defs->Insert(middle, field);
    }
}

// The only match is the row just above the selected one: the search runs to the end, asks to
// start from the top, and runs down to that row: every row is tested once.
void Headless_FindNextWorstCase(State& state) {
    HeadlessWorld& world = HeadlessWorld::shared(fieldCount(state));
    auto& lst = world.designer.lst;
    view::ListItem& target = lst.item(kFindTarget);
    world.prompter.reset();
    world.prompter.answer(kFindTarget);
    world.designer.cmdFind_Click();
    for (auto _ : state) {
        state.PauseTiming();
        lst.clickItem(lst.item(target.index() + 1));
        world.prompter.reset();
        world.prompter.answer(view::MsgBoxResult::Yes);
        state.ResumeTiming();
        world.designer.cmdFindNext_Click();
    }
    if (lst.selectedItem() != &target || world.prompter.prompts().size() != 1)
        state.SkipWithError("find next did not wrap to the row above");
    world.prompter.reset();
}

// What the collection, the list rows and every index cost, by the process's own accounting.
void Headless_MemoryPerField(State& state) {
    const std::int32_t count = fieldCount(state);
    for (auto _ : state) {
        testkit::ScriptedPrompter prompter;
        testkit::ScriptedModalHost modalHost;
        control::Morvel designer(prompter, modalHost);
        const ProcessMemory before = ProcessMemory::now();
        auto defs = makeFieldDefs(count);
        designer.SetFieldDefs(defs);
        const ProcessMemory after = ProcessMemory::now();
        state.counters["heap_bytes_per_field"] =
            static_cast<double>(after.heapInUse - before.heapInUse) / count;
        state.counters["rss_bytes_per_field"] = static_cast<double>(after.resident) / count -
                                                static_cast<double>(before.resident) / count;
    }
}

// Keyed operations let the library choose the iterations; the others run a fixed number, since
// their untimed part (putting the state back) does not count towards the library's time budget.
const bool kRegistered = [] {
    using benchmark::kMicrosecond;
    using benchmark::kMillisecond;
    const std::initializer_list<SizePlan> chosen{{1000, 0}, {10000, 0}, {100000, 0}};
    const std::initializer_list<SizePlan> paused{{1000, 200}, {10000, 200}, {100000, 100}};
    registerPlans("Headless_SetFieldDefs", Headless_SetFieldDefs, kMillisecond,
                  {{1000, 50}, {10000, 10}, {100000, 2}});
    registerPlans("Headless_SelectFarRow", Headless_SelectFarRow, kMicrosecond, chosen);
    registerPlans("Headless_KeystrokeDisplayName", Headless_KeystrokeDisplayName, kMicrosecond,
                  chosen);
    registerPlans("Headless_KeystrokeSize", Headless_KeystrokeSize, kMicrosecond, chosen);
    registerPlans("Headless_KeystrokeOrderField", Headless_KeystrokeOrderField, kMicrosecond,
                  chosen);
    registerPlans("Headless_TypeChangeSwapsTab", Headless_TypeChangeSwapsTab, kMicrosecond, chosen);
    registerPlans("Headless_AfterAdd", Headless_AfterAdd, kMicrosecond, paused, Timing::Manual);
    registerPlans("Headless_AfterRemove", Headless_AfterRemove, kMicrosecond, paused,
                  Timing::Manual);
    registerPlans("Headless_FindNextWorstCase", Headless_FindNextWorstCase, kMicrosecond, paused);
    registerPlans("Headless_MemoryPerField", Headless_MemoryPerField, kMillisecond,
                  {{1000, 1}, {10000, 1}, {100000, 1}});
    return true;
}();

} // namespace
} // namespace morvel::bench

BENCHMARK_MAIN();
