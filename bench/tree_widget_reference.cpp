// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The reference: the same field list in a plain QTreeWidget with eight columns, filled item by
// item, with Qt's defaults (only the root decoration is off, as in any flat list) and the
// designer's column widths, and under it a plain QLineEdit as wide as the designer's display
// name box. Each interaction does to the
// tree what the designer does to its list, so that each of our figures has a plain-Qt figure to
// be compared with.

#include "bench_plan.h"
#include "field_generator.h"
#include "qt_harness.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <map>
#include <memory>

namespace morvel::bench {
namespace {

using benchmark::State;

struct TreeReference {
    explicit TreeReference(std::int32_t fieldCount)
        : defs(makeFieldDefs(fieldCount))
        , probe(*tree.viewport()) {
        tree.setColumnCount(8);
        tree.setHeaderLabels({"Field Name", "Field Type", "Size", "Display Name", "Validation",
                              "Ctrl Read Only", "Control Edit", "Control List"});
        tree.setRootIsDecorated(false);
        const DesignerGeometry& geometry = designerGeometry();
        for (int column = 0; column < geometry.columnWidths.size(); ++column)
            tree.header()->resizeSection(column, geometry.columnWidths[column]);
        box.setFixedWidth(geometry.displayNameBoxWidth);
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&tree);
        layout->addWidget(&box);
        window.resize(kWindowWidth, kWindowHeight);
        window.show();
        probe.waitForPaint();
    }

    void fill() {
        for (const auto& field : *defs)
            tree.addTopLevelItem(new QTreeWidgetItem(rowTexts(*field)));
    }

    void selectAndScroll(QTreeWidgetItem* item) {
        tree.setCurrentItem(item);
        tree.scrollToItem(item);
    }

    static TreeReference& shared(std::int32_t fieldCount) {
        static std::map<std::int32_t, std::unique_ptr<TreeReference>> trees;
        if (trees.empty())
            whenQtEnds([] { trees.clear(); });
        auto& tree = trees[fieldCount];
        if (!tree) {
            tree = std::make_unique<TreeReference>(fieldCount);
            tree->fill();
            tree->selectAndScroll(tree->tree.topLevelItem(0));
            tree->probe.waitForPaint();
        }
        return *tree;
    }

    std::shared_ptr<FieldDefs> defs;
    QWidget window; // before the widgets it holds, so that it goes after them
    QTreeWidget tree;
    QLineEdit box;
    PaintProbe probe;
};

std::int32_t fieldCount(const State& state) {
    return static_cast<std::int32_t>(state.range(0));
}

void checkPainted(State& state, bool painted) {
    if (!painted)
        state.SkipWithError("the tree did not repaint");
}

// Items added one by one to a shown, empty tree, then painted.
void Reference_FillPaint(State& state) {
    TreeReference reference(fieldCount(state));
    for (auto _ : state) {
        state.PauseTiming();
        reference.tree.clear();
        reference.probe.waitForPaint();
        state.ResumeTiming();
        reference.fill();
        checkPainted(state, reference.probe.waitForPaint());
    }
}

// Select and scroll to the last row, and back to the first, alternately: each is a jump.
void Reference_SelectLastRow(State& state) {
    TreeReference& reference = TreeReference::shared(fieldCount(state));
    QTreeWidget& tree = reference.tree;
    bool last = false;
    for (auto _ : state) {
        last = !last;
        reference.selectAndScroll(tree.topLevelItem(last ? tree.topLevelItemCount() - 1 : 0));
        checkPainted(state, reference.probe.waitForPaint());
    }
    reference.selectAndScroll(tree.topLevelItem(0));
    reference.probe.waitForPaint();
}

// The display name cell of the selected (visible) row changes and back, alternately.
void Reference_CellChange(State& state) {
    TreeReference& reference = TreeReference::shared(fieldCount(state));
    QTreeWidgetItem* item = reference.tree.topLevelItem(reference.tree.topLevelItemCount() - 1);
    reference.selectAndScroll(item);
    reference.probe.waitForPaint();
    const QString before = item->text(3);
    const QString after = before + "0";
    bool typed = false;
    for (auto _ : state) {
        typed = !typed;
        item->setText(3, typed ? after : before);
        checkPainted(state, reference.probe.waitForPaint());
    }
    item->setText(3, before);
}

// What a person's keystroke costs in plain Qt: a digit typed into the line edit (and taken back),
// whose text the selected row's display name cell follows.
void Reference_KeystrokeCell(State& state) {
    TreeReference& reference = TreeReference::shared(fieldCount(state));
    QTreeWidgetItem* item = reference.tree.topLevelItem(reference.tree.topLevelItemCount() - 1);
    reference.selectAndScroll(item);
    QLineEdit& box = reference.box;
    box.setText(item->text(3));
    const auto follow = QObject::connect(&box, &QLineEdit::textEdited,
                                         [item](const QString& text) { item->setText(3, text); });
    box.setFocus();
    box.end(false);
    reference.probe.waitForPaint();
    const auto press = [&box](int key, const QString& text) {
        QKeyEvent down(QEvent::KeyPress, key, {}, text);
        QApplication::sendEvent(&box, &down);
        QKeyEvent up(QEvent::KeyRelease, key, {}, text);
        QApplication::sendEvent(&box, &up);
    };
    const QString before = item->text(3);
    bool typed = false;
    for (auto _ : state) {
        typed = !typed;
        if (typed)
            press(Qt::Key_0, "0");
        else
            press(Qt::Key_Backspace, {});
        checkPainted(state, reference.probe.waitForPaint());
    }
    if (typed)
        press(Qt::Key_Backspace, {});
    QObject::disconnect(follow);
    if (item->text(3) != before)
        state.SkipWithError("the keystrokes did not reach the cell");
}

// As the designer does on AfterAdd: a row for the new field at the end, selected and scrolled
// into view. Taking it out again is not measured.
void Reference_InsertMiddle(State& state) {
    TreeReference& reference = TreeReference::shared(fieldCount(state));
    QTreeWidget& tree = reference.tree;
    std::int32_t serial = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto field = makeExtraField(++serial);
        state.ResumeTiming();
        auto* item = new QTreeWidgetItem(rowTexts(*field));
        tree.addTopLevelItem(item);
        reference.selectAndScroll(item);
        checkPainted(state, reference.probe.waitForPaint());
        state.PauseTiming();
        delete item;
        reference.selectAndScroll(tree.topLevelItem(0));
        reference.probe.waitForPaint();
        state.ResumeTiming();
    }
}

// As the designer does on AfterRemove: the row goes, the first row is selected and shown.
// Putting it back is not measured.
void Reference_RemoveMiddle(State& state) {
    TreeReference& reference = TreeReference::shared(fieldCount(state));
    QTreeWidget& tree = reference.tree;
    const int middle = tree.topLevelItemCount() / 2;
    for (auto _ : state) {
        QTreeWidgetItem* item = tree.takeTopLevelItem(middle);
        reference.selectAndScroll(tree.topLevelItem(0));
        checkPainted(state, reference.probe.waitForPaint());
        state.PauseTiming();
        tree.insertTopLevelItem(middle, item);
        reference.probe.waitForPaint();
        state.ResumeTiming();
    }
}

// A 100,000-row QTreeWidget relayouts every row when an item is added and scrolled to: seconds
// per iteration, so few of them.
const bool kRegistered = [] {
    using benchmark::kMillisecond;
    registerPlans("Reference_FillPaint", Reference_FillPaint, kMillisecond,
                  {{1000, 20}, {10000, 3}, {100000, 1, 5}});
    registerPlans("Reference_SelectLastRow", Reference_SelectLastRow, kMillisecond,
                  {{1000, 30}, {10000, 10}, {100000, 4}});
    registerPlans("Reference_CellChange", Reference_CellChange, kMillisecond,
                  {{1000, 30}, {10000, 30}, {100000, 30}});
    registerPlans("Reference_KeystrokeCell", Reference_KeystrokeCell, kMillisecond,
                  {{1000, 30}, {10000, 30}, {100000, 30}});
    registerPlans("Reference_InsertMiddle", Reference_InsertMiddle, kMillisecond,
                  {{1000, 20}, {10000, 3}, {100000, 1, 3}});
    registerPlans("Reference_RemoveMiddle", Reference_RemoveMiddle, kMillisecond,
                  {{1000, 30}, {10000, 10}, {100000, 4}});
    return true;
}();

} // namespace
} // namespace morvel::bench
