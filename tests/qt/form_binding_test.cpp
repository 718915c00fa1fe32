// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The binding against a small hand-built form: each person's action raises its event once, in
// the model; the model's changes show in the widgets; failures are shown and survived.
#include "base/error.h"
#include "qt/error_boundary.h"
#include "qt/form_binding.h"
#include "qt/list_view_model.h"
#include "support/counter.h"
#include "view/combo_box.h"
#include "view/form.h"
#include "view/list_view.h"
#include "view/simple_controls.h"
#include "view/tab_strip.h"
#include "view/text_box.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace morvel;

namespace {

struct TestForm : view::Form {
    TestForm()
        : Form("frmTest") {
        move(0, 0, 9000, 6000);
        lst.addColumn("Name", "Name", 2540);
        lst.addColumn("Kind", "Kind", 2540);
        lst.move(0, 0, 9000, 3000);
        txtName.move(120, 3120, 3000, 315);
        cboKind.move(120, 3600, 3000, 315);
        for (const char* kind : {"Text", "Long", "Link"})
            cboKind.addItem(kind);
        cmdGo.move(3300, 3120, 1200, 375);
        cmdGo.setCaption("Go");
        TabStrip.move(0, 4200, 9000, 1800);
        TabStrip.add(1, "General");
        TabStrip.add(2, "Link");
    }
    view::ListView lst{this, "lst"};
    view::TextBox txtName{this, "txtName"};
    view::ComboBox cboKind{this, "cboKind", view::ComboBox::Style::Editable};
    view::Button cmdGo{this, "cmdGo"};
    view::TabStrip TabStrip{this, "TabStrip"};
};

using morvel::testing::Counter;

} // namespace

class FormBindingTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestForm> form;
    std::unique_ptr<QWidget> root;
    std::unique_ptr<qt::FormBinding> binding;

    template <typename W> W& widget(const view::Control& control) {
        W* found = binding->widgetAs<W>(control);
        if (!found)
            qFatal("no widget for %s", control.name().c_str());
        return *found;
    }
    QTreeView& tree() { return widget<QTreeView>(form->lst); }
    void clickRow(int row) {
        const QRect cell = tree().visualRect(tree().model()->index(row, 0));
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, cell.center());
    }

private slots:
    void init() {
        form = std::make_unique<TestForm>();
        for (const char* name : {"Alpha", "Beta", "Gamma"})
            form->lst.add(name, name).setSubItem(1, "Text");
        root = std::make_unique<QWidget>();
        binding = std::make_unique<qt::FormBinding>(*form, *root);
        root->resize(600, 400);
        root->show();
        QVERIFY(QTest::qWaitForWindowActive(root.get()));
    }
    void cleanup() {
        binding.reset();
        root.reset();
        form.reset();
    }

    void typingRaisesOneChangePerKeystrokeAndCodeShowsWithoutEcho() {
        Counter changes(form->txtName.Change);
        auto& line = widget<QLineEdit>(form->txtName);
        QTest::keyClicks(&line, "Qty");
        QCOMPARE(changes.count, 3);
        QCOMPARE(form->txtName.text(), "Qty");
        form->txtName.setText("Amount");
        QCOMPARE(line.text(), QString("Amount"));
        QCOMPARE(changes.count, 4);
    }

    void pickingRaisesClickAloneAndTypingRaisesChange() {
        Counter clicks(form->cboKind.Click);
        Counter changes(form->cboKind.Change);
        auto& combo = widget<QComboBox>(form->cboKind);
        combo.setFocus();
        QTest::keyClick(&combo, Qt::Key_Down);
        QCOMPARE(clicks.count, 1);
        QCOMPARE(changes.count, 0);
        QCOMPARE(form->cboKind.listIndex(), combo.currentIndex());
        QTest::keyClicks(combo.lineEdit(), "x");
        QCOMPARE(changes.count, 1);
        QCOMPARE(form->cboKind.text(), combo.currentText().toStdString());
        form->cboKind.setListIndex(2);
        QCOMPARE(combo.currentText(), QString("Link"));
    }

    void buttonsAndTabsRaiseClickOnce() {
        Counter clicks(form->cmdGo.Click);
        Counter tabClicks(form->TabStrip.Click);
        QTest::mouseClick(&widget<QPushButton>(form->cmdGo), Qt::LeftButton);
        QCOMPARE(clicks.count, 1);
        auto* bar = widget<QWidget>(form->TabStrip).findChild<QTabBar*>();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
        QCOMPARE(tabClicks.count, 1);
        QCOMPARE(form->TabStrip.selectedIndex(), 2);
        form->TabStrip.remove(2);
        QCOMPARE(bar->count(), 1);
    }

    void listModelFollowsRowsCellsAndSelection() {
        auto& model = *qobject_cast<qt::ListViewModel*>(tree().model());
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
        QSignalSpy cells(&model, &QAbstractItemModel::dataChanged);
        form->lst.add("Delta", "Delta");
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(inserted.at(0).at(1).toInt(), 3);
        form->lst.remove("Alpha");
        QCOMPARE(removed.count(), 1);
        QCOMPARE(removed.at(0).at(1).toInt(), 0);
        QCOMPARE(model.rowCount(), 3);
        form->lst.item("Gamma").setSubItem(1, "Long");
        QCOMPARE(cells.count(), 1);
        QCOMPARE(model.index(1, 1).data().toString(), QString("Long"));
        QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QString("Kind"));
        QCOMPARE(tree().header()->sectionSize(0), 96); // 2540 hundredths of a mm at 96 dpi
        form->lst.setSelectedItem(&form->lst.item("Delta"));
        QCOMPARE(tree().currentIndex().row(), 2);
    }

    void rowClickSelectsOnceAndKeepsFocusOnTheList() {
        // The designer's selection routine puts the model's focus into a box of the panel.
        int itemClicks = 0;
        Connection routine = form->lst.ItemClick.connect([&](view::ListItem&) {
            ++itemClicks;
            form->cboKind.setFocus();
        });
        clickRow(1);
        QCOMPARE(itemClicks, 1);
        QCOMPARE(form->lst.selectedItem()->key(), "Beta");
        QCOMPARE(QApplication::focusWidget(), &tree());
        QCOMPARE(form->focused(), &form->lst);
        QTest::keyClick(&tree(), Qt::Key_Down);
        QCOMPARE(itemClicks, 2);
        QCOMPARE(form->lst.selectedItem()->key(), "Gamma");
        QCOMPARE(QApplication::focusWidget(), &tree());
    }

    void focusFollowsTheLogicAndLeavingABoxRaisesLostFocus() {
        form->txtName.setText("Quantity");
        form->txtName.setFocus();
        form->txtName.selectAll();
        auto& line = widget<QLineEdit>(form->txtName);
        QCOMPARE(QApplication::focusWidget(), &line);
        QCOMPARE(line.selectedText(), QString("Quantity"));
        Counter lost(form->txtName.LostFocus);
        widget<QComboBox>(form->cboKind).setFocus(Qt::TabFocusReason);
        QCOMPARE(lost.count, 1);
        QCOMPARE(form->focused(), &form->cboKind);
    }

    void inPlaceEditCommitsThroughTheList() {
        form->lst.setLabelEditable(true);
        Counter edits(form->lst.AfterLabelEdit);
        form->lst.startLabelEdit(form->lst.item("Beta"));
        auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY(editor);
        editor->selectAll();
        QTest::keyClicks(editor, "Bravo");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(edits.count, 1);
        QCOMPARE(form->lst.item("Beta").text(), "Bravo");
    }

    void aFailureIsShownAndTheApplicationGoesOn() {
        Connection failing =
            form->cmdGo.Click.connect([] { throw InvalidOperationError("The field is locked."); });
        QString shown;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QTimer closer;
        connect(&closer, &QTimer::timeout, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                shown = box->text();
                icon = box->icon();
                box->accept();
            }
        });
        closer.start(20);
        QTest::mouseClick(&widget<QPushButton>(form->cmdGo), Qt::LeftButton);
        // Not a person's mistake: a fault, in general words.
        QTRY_COMPARE(shown, qt::personMessage(InvalidOperationError("The field is locked.")).text);
        QCOMPARE(icon, QMessageBox::Critical);
        QTest::keyClicks(&widget<QLineEdit>(form->txtName), "ok");
        QCOMPARE(form->txtName.text(), "ok");
    }
};

QTEST_MAIN(FormBindingTest)
#include "form_binding_test.moc"
