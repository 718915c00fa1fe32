// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// MorvelWidget on the offscreen platform: each operation as the person or the host starts it,
// measured until the list has repainted. Compared in the table with the same operation on the
// plain QTreeWidget of tree_widget_reference.cpp.

#include "bench_plan.h"
#include "commands/history_commands.h"
#include "field_generator.h"
#include "history/history.h"
#include "qt/morvel_widget.h"
#include "qt_harness.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeView>
#include <map>
#include <memory>

namespace morvel::bench {
namespace {

using benchmark::State;

// A shown designer window holding a generated table.
struct FrontEnd {
    explicit FrontEnd(std::int32_t fieldCount)
        : defs(makeFieldDefs(fieldCount))
        , tree(*widget.binding().widgetAs<QTreeView>(widget.morvel().lst))
        , probe(*tree.viewport()) {
        widget.setCanModifyExisting(true);
        widget.resize(kWindowWidth, kWindowHeight);
        widget.show();
        probe.waitForPaint();
    }

    static FrontEnd& shared(std::int32_t fieldCount) {
        static std::map<std::int32_t, std::unique_ptr<FrontEnd>> worlds;
        if (worlds.empty())
            whenQtEnds([] { worlds.clear(); });
        auto& world = worlds[fieldCount];
        if (!world) {
            world = std::make_unique<FrontEnd>(fieldCount);
            world->widget.setFieldDefs(world->defs);
            world->probe.waitForPaint();
        }
        return *world;
    }

    QLineEdit& lineEdit(const view::Control& control) {
        return *widget.binding().widgetAs<QLineEdit>(control);
    }

    // A key press and release as the keyboard sends them.
    static void press(QWidget& target, int key, Qt::KeyboardModifiers modifiers = {},
                      const QString& text = {}) {
        QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(&target, &down);
        QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
        QApplication::sendEvent(&target, &up);
    }

    qt::MorvelWidget widget;
    std::shared_ptr<FieldDefs> defs;
    QTreeView& tree;
    PaintProbe probe;
};

} // namespace

const DesignerGeometry& designerGeometry() {
    static const DesignerGeometry geometry = [] {
        FrontEnd world(1);
        world.widget.setFieldDefs(world.defs);
        world.probe.waitForPaint();
        DesignerGeometry measured;
        for (int column = 0; column < world.tree.header()->count(); ++column)
            measured.columnWidths.append(world.tree.header()->sectionSize(column));
        measured.displayNameBoxWidth = world.lineEdit(world.widget.morvel().txtDisplayName).width();
        return measured;
    }();
    return geometry;
}

namespace {

std::int32_t fieldCount(const State& state) {
    return static_cast<std::int32_t>(state.range(0));
}

void checkPainted(State& state, bool painted) {
    if (!painted)
        state.SkipWithError("the list did not repaint");
}

// The host hands the table to a designer that shows none; timed until the list is on screen
// with the first field loaded in the panel.
void Qt_FirstPaint(State& state) {
    FrontEnd world(fieldCount(state));
    auto empty = std::make_shared<FieldDefs>();
    for (auto _ : state) {
        state.PauseTiming();
        world.widget.setFieldDefs(empty);
        world.probe.waitForPaint();
        state.ResumeTiming();
        world.widget.setFieldDefs(world.defs);
        checkPainted(state, world.probe.waitForPaint());
    }
    if (world.lineEdit(world.widget.morvel().txtName).text() != "ID")
        state.SkipWithError("the first field is not loaded");
}

// Ctrl+End in the list, then Ctrl+Home: each selects a row at the other end, scrolls to it and
// loads its field.
void Qt_SelectLastRow(State& state) {
    FrontEnd& world = FrontEnd::shared(fieldCount(state));
    world.tree.setFocus();
    bool last = false;
    for (auto _ : state) {
        last = !last;
        FrontEnd::press(world.tree, last ? Qt::Key_End : Qt::Key_Home, Qt::ControlModifier);
        checkPainted(state, world.probe.waitForPaint());
    }
    const auto& lst = world.widget.morvel().lst;
    if (!lst.selectedItem() || lst.selectedItem()->index() != (last ? lst.count() : 1))
        state.SkipWithError("the keys did not select the row at the end");
    FrontEnd::press(world.tree, Qt::Key_Home, Qt::ControlModifier);
    world.probe.waitForPaint();
}

// A digit typed into the display name box of the last row, and taken back: the row's cell
// follows each keystroke.
void Qt_KeystrokeCell(State& state) {
    FrontEnd& world = FrontEnd::shared(fieldCount(state));
    world.tree.setFocus();
    FrontEnd::press(world.tree, Qt::Key_End, Qt::ControlModifier);
    world.probe.waitForPaint();
    QLineEdit& box = world.lineEdit(world.widget.morvel().txtDisplayName);
    box.setFocus();
    box.end(false);
    const std::string before = world.widget.morvel().txtDisplayName.text();
    bool typed = false;
    for (auto _ : state) {
        typed = !typed;
        if (typed)
            FrontEnd::press(box, Qt::Key_0, {}, "0");
        else
            FrontEnd::press(box, Qt::Key_Backspace);
        checkPainted(state, world.probe.waitForPaint());
    }
    if (typed)
        FrontEnd::press(box, Qt::Key_Backspace);
    if (world.widget.morvel().txtDisplayName.text() != before)
        state.SkipWithError("the keystrokes did not reach the display name");
    world.tree.setFocus();
    FrontEnd::press(world.tree, Qt::Key_Home, Qt::ControlModifier);
    world.probe.waitForPaint();
}

// The host adds a field in the middle of the collection: its row appears, selected and scrolled
// into view, with the field in the panel. Removing it again is not measured.
void Qt_AfterAdd(State& state) {
    FrontEnd& world = FrontEnd::shared(fieldCount(state));
    const std::int32_t middle = world.defs->Count() / 2;
    std::int32_t serial = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto field = makeExtraField(++serial);
        state.ResumeTiming();
        world.defs->Insert(middle, field);
        checkPainted(state, world.probe.waitForPaint());
        state.PauseTiming();
        world.defs->Remove(field->Name());
        world.probe.waitForPaint();
        state.ResumeTiming();
    }
}

// The host removes the field in the middle: its row goes, the first row is selected and shown.
// Putting it back is not measured.
void Qt_AfterRemove(State& state) {
    FrontEnd& world = FrontEnd::shared(fieldCount(state));
    const std::int32_t middle = world.defs->Count() / 2;
    for (auto _ : state) {
        state.PauseTiming();
        auto field = world.defs->Item(middle);
        state.ResumeTiming();
        world.defs->Remove(field->Name());
        checkPainted(state, world.probe.waitForPaint());
        state.PauseTiming();
        world.defs->Insert(middle, field);
        world.probe.waitForPaint();
        state.ResumeTiming();
    }
}

// A digit typed into the display name of the last row, then Ctrl+Z and Ctrl+Shift+Z in turn as
// the window runs them: each step written back, followed by the designer and repainted.
void Qt_UndoRedoStep(State& state) {
    FrontEnd& world = FrontEnd::shared(fieldCount(state));
    History history(*world.defs);
    commands::HistoryCommands commands(world.widget.morvel());
    world.tree.setFocus();
    FrontEnd::press(world.tree, Qt::Key_End, Qt::ControlModifier);
    world.probe.waitForPaint();
    QLineEdit& box = world.lineEdit(world.widget.morvel().txtDisplayName);
    box.setFocus();
    box.end(false);
    FrontEnd::press(box, Qt::Key_0, {}, "0");
    world.probe.waitForPaint();
    bool back = false;
    for (auto _ : state) {
        back = !back;
        if (!(back ? commands.undo(history) : commands.redo(history)))
            state.SkipWithError("there was no step to take");
        checkPainted(state, world.probe.waitForPaint());
    }
    if (!back)
        commands.undo(history);
    world.tree.setFocus();
    FrontEnd::press(world.tree, Qt::Key_Home, Qt::ControlModifier);
    world.probe.waitForPaint();
}

const bool kRegistered = [] {
    using benchmark::kMillisecond;
    const std::initializer_list<SizePlan> interaction{{1000, 30}, {10000, 30}, {100000, 30}};
    registerPlans("Qt_FirstPaint", Qt_FirstPaint, kMillisecond,
                  {{1000, 20}, {10000, 5}, {100000, 2}});
    registerPlans("Qt_SelectLastRow", Qt_SelectLastRow, kMillisecond, interaction);
    registerPlans("Qt_KeystrokeCell", Qt_KeystrokeCell, kMillisecond, interaction);
    registerPlans("Qt_AfterAdd", Qt_AfterAdd, kMillisecond, interaction);
    registerPlans("Qt_AfterRemove", Qt_AfterRemove, kMillisecond, interaction);
    registerPlans("Qt_UndoRedoStep", Qt_UndoRedoStep, kMillisecond, interaction);
    return true;
}();

} // namespace
} // namespace morvel::bench
