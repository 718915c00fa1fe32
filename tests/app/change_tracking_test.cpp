// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The change markers, the review and the merge in the designer window, with keys on the real
// widgets; message boxes are answered by a scripted prompter, the two dialogs by a hand here.
#include "change_dialogs.h"
#include "change_markers.h"
#include "designer_window.h"
#include "store/sample_schema.h"
#include "testing/scripted_prompter.h"

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <functional>

using namespace morvel;
using view::MsgBoxResult;

class ChangeTrackingTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder;
    std::shared_ptr<SchemaDatabase> database;
    testkit::ScriptedPrompter prompter;
    int run = 0;

    std::unique_ptr<app::DesignerWindow> open() {
        auto window = std::make_unique<app::DesignerWindow>(database, &prompter);
        window->openTable("Orders");
        window->resize(700, 520);
        window->show();
        QApplication::setActiveWindow(window.get());
#ifdef MORVEL_REAL_WINDOW
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the window was never activated");
#endif
        return window;
    }
    static void select(app::DesignerWindow& window, const char* name) {
        QTreeView& list = window.fieldList();
        const auto& lst = window.designer().morvel().lst;
        const QModelIndex index = list.model()->index(lst.item(name).index() - 1, 0);
        list.scrollTo(index);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
    }
    static QLineEdit& displayName(app::DesignerWindow& window) {
        return *window.designer().binding().widgetAs<QLineEdit>(
            window.designer().morvel().txtDisplayName);
    }
    static void key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    static QVariant rowData(app::DesignerWindow& window, const char* name, int role) {
        QTreeView& list = window.fieldList();
        const auto& lst = window.designer().morvel().lst;
        return list.model()->index(lst.item(name).index() - 1, 0).data(role);
    }
    // Runs hand on the dialog of type D as soon as it is shown.
    template <typename D> static void whenShown(std::function<void(D&)> hand) {
        QTimer::singleShot(0, [hand] {
            auto* dialog = qobject_cast<D*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            hand(*dialog);
        });
    }

private slots:
    void init() {
        database = std::make_shared<SchemaDatabase>(std::filesystem::path(
            folder.filePath(QString("sample%1.morvel").arg(++run)).toStdString()));
        writeSampleSchema(*database);
        prompter.reset();
    }

    void markersAppearWithEditsAndGoWithUndoOrTypingBack() {
        auto window = open();
        select(*window, "Total");
        QTest::mouseClick(&displayName(*window), Qt::LeftButton);
        key(Qt::Key_End);
        QTest::keyClicks(&displayName(*window), "!");
        QCOMPARE(window->markers().markerOf("Total"), QString("changed"));
        QVERIFY(rowData(*window, "Total", Qt::DecorationRole).isValid());
        QVERIFY(rowData(*window, "Total", Qt::ToolTipRole).toString().startsWith("DisplayName: "));
        QVERIFY(window->isModified());
        key(Qt::Key_Backspace); // typed back: the same as saved, so nothing to save
        QCOMPARE(window->markers().markerOf("Total"), QString());
        QVERIFY(!rowData(*window, "Total", Qt::DecorationRole).isValid());
        QVERIFY(!window->isModified());
        QTest::keyClicks(&displayName(*window), "?");
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window->markers().markerOf("Total"), QString());
        QTest::keyClick(window.get(), Qt::Key_N, Qt::ControlModifier); // a new field
        QCOMPARE(window->markers().markerOf("NewField"), QString("new"));
        QVERIFY(window->isModified());
    }

    void theReviewListsTheChangesAndRevertsThem() {
        auto window = open();
        select(*window, "Total");
        QTest::mouseClick(&displayName(*window), Qt::LeftButton);
        QTest::keyClicks(&displayName(*window), "Sum");
        QTest::keyClick(window.get(), Qt::Key_N, Qt::ControlModifier);
        int rows = -1;
        whenShown<app::ReviewChangesDialog>([&](app::ReviewChangesDialog& review) {
            rows = review.list().topLevelItemCount();
            review.list().setCurrentItem(review.list().topLevelItem(0));
            review.revertSelectedField();
            review.revertAll();
            QCOMPARE(review.list().topLevelItemCount(), 0);
            review.reject();
        });
        QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rows, 2);
        QVERIFY(!window->isModified());
        QVERIFY(!window->table().fields->find("NewField"));
        QApplication::setActiveWindow(window.get());
        QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier); // each revert, one step
        QVERIFY(window->table().fields->find("NewField"));
    }

    void aConflictIsMergedThroughTheDialogAndBothSidesWorkIsSaved() {
        auto mine = open();
        auto theirs = open();
        theirs->table().fields->Item("Total")->SetDisplayName("Theirs");
        theirs->table().fields->Item("Quantity")->SetDescription("Their note");
        QVERIFY(theirs->save());
        mine->table().fields->Item("Total")->SetDisplayName("Mine");
        mine->table().fields->Item("Quantity")->SetSize(7);
        prompter.answer(MsgBoxResult::OK); // Merge...
        QStringList offered;
        whenShown<app::MergeConflictsDialog>([&](app::MergeConflictsDialog& dialog) {
            for (int row = 0; row < dialog.list().topLevelItemCount(); ++row) {
                const QTreeWidgetItem* item = dialog.list().topLevelItem(row);
                offered << item->text(0) + " " + item->text(1) + ": " + item->text(2) + " | " +
                               item->text(3);
            }
            dialog.choose(0, false);
            dialog.accept();
        });
        QVERIFY(!mine->save());
        QCOMPARE(offered, QStringList{"Total DisplayName: \"Mine\" | \"Theirs\""});
        const auto& fields = *mine->table().fields;
        QCOMPARE(fields.Item("Total")->DisplayName(), "Theirs");
        QCOMPARE(fields.Item("Quantity")->Description(), "Their note");
        QCOMPARE(fields.Item("Quantity")->Size(), 7);
        QVERIFY(mine->isModified());
        QVERIFY(mine->save());
        const auto stored = database->load("Orders");
        QCOMPARE(stored.fields->Item("Quantity")->Size(), 7);
        QCOMPARE(stored.fields->Item("Quantity")->Description(), "Their note");
    }
};

QTEST_MAIN(ChangeTrackingTest)
#include "change_tracking_test.moc"
