// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The designer through its real widgets, as a person would use it.
#include "qt/designer_widget.h"
#include "qt/list_view_model.h"
#include "testing/snapshot.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace morvel;

class MorvelWidgetTest : public QObject, testing::DesignerWidget {
    Q_OBJECT

private:
    QTabBar& tabBar() { return *widget<QWidget>(morvel().TabStrip).findChild<QTabBar*>(); }
    // Picks an entry of a drop-down from its open list, as the mouse would.
    static void pick(QComboBox& combo, const QString& text) {
        combo.showPopup();
        QAbstractItemView& list = *combo.view();
        const QModelIndex entry = list.model()->index(combo.findText(text), 0);
        list.scrollTo(entry);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(entry).center());
    }

private slots:
    void init() { show({{"Title", 200}, {"Customer", 1000}, {"Colour", 1100}}); }
    void cleanup() { close(); }

    void keepsTheMinimumSizeOfTheDesign() {
        QCOMPARE(designer->minimumSize(), QSize(333, 387)); // 5000 x 5800 twips at 96 dpi
        QCOMPARE(morvel().width(), 900 * 15);
        QCOMPARE(morvel().TabStrip.top() + morvel().TabStrip.height(), 640 * 15);
    }

    void clickingARowLoadsThePanelAndKeepsTheKeysOnTheList() {
        QSignalSpy selected(designer.get(), &qt::MorvelWidget::selectedFieldChanged);
        clickRow("Customer");
        QCOMPARE(designer->selectedField()->Name(), "Customer");
        QCOMPARE(selected.count(), 1);
        QCOMPARE(widget<QLineEdit>(morvel().txtName).text(), QString("Customer"));
        QCOMPARE(tabBar().tabText(1), QString("Link Properties"));
        QCOMPARE(QApplication::focusWidget(), &tree());
        QTest::keyClick(&tree(), Qt::Key_Down);
        QCOMPARE(designer->selectedField()->Name(), "Colour");
        QCOMPARE(QApplication::focusWidget(), &tree());
    }

    void anAddedFieldIsNamedByTypingAndLeavingTheBox() {
        auto& model = *qobject_cast<qt::ListViewModel*>(tree().model());
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        defs->Add("NewField", 200);
        QCOMPARE(inserted.count(), 1);
        auto& name = widget<QLineEdit>(morvel().txtName);
        QCOMPARE(QApplication::focusWidget(), &name);
        QCOMPARE(name.selectedText(), QString("NewField"));
        QTest::keyClicks(&name, "Quantity");
        QTest::keyClick(&name, Qt::Key_Tab);
        QVERIFY(defs->find("Quantity"));
        QCOMPARE(model.index(3, 0).data().toString(), QString("Quantity"));
    }

    void choosingATypeSwapsTheSecondTab() {
        clickRow("Title");
        QCOMPARE(tabBar().count(), 1);
        pick(widget<QComboBox>(morvel().cboType), "Text Encrypted");
        QCOMPARE(defs->Item("Title")->FieldType(), 20200);
        QCOMPARE(tabBar().tabText(1), QString("Encryption"));
        pick(widget<QComboBox>(morvel().cboType), "Link");
        QCOMPARE(tabBar().count(), 2);
        QCOMPARE(tabBar().tabText(1), QString("Link Properties"));
        QCOMPARE(model().index(0, 1).data().toString(), QString("Link"));
    }

    void aNewCollectionResetsTheListOnceAndShowsItsFirstRowSelected() {
        clickRow("Colour");
        QSignalSpy resets(&model(), &QAbstractItemModel::modelReset);
        QSignalSpy inserted(&model(), &QAbstractItemModel::rowsInserted);
        QSignalSpy cells(&model(), &QAbstractItemModel::dataChanged);
        auto other = std::make_shared<FieldDefs>();
        other->Add("Amount", 200);
        other->Add("Supplier", 1000);
        designer->setFieldDefs(other);
        QCOMPARE(resets.count(), 1);
        QCOMPARE(inserted.count(), 0);
        QCOMPARE(cells.count(), 0);
        QCOMPARE(model().rowCount(), 2);
        QCOMPARE(model().index(1, 0).data().toString(), QString("Supplier"));
        QCOMPARE(tree().currentIndex().row(), 0);
        QVERIFY(tree().selectionModel()->isRowSelected(0, {}));
        defs = other;
    }

    // Rows that the host inserts, moves or removes shift Qt's current row by themselves; that
    // must not be taken for a click on another field.
    void rowsComingAndGoingLeaveTheSelectedFieldAlone() {
        clickRow("Colour");
        const auto selectedRow = [&] { return tree().selectionModel()->currentIndex().row(); };
        const std::function<void()> hostWrites[] = {
            [&] { defs->Move(3, 1); },
            [&] { defs->Insert(1, std::make_shared<FieldDef>("Added", 200)); },
            [&] { defs->Remove("Title"); },
        };
        for (const auto& write : hostWrites) {
            write();
            QCOMPARE(QString::fromStdString(designer->selectedField()->Name()),
                     QString::fromStdString(std::string(morvel().lst.selectedItem()->text())));
            QCOMPARE(selectedRow(), morvel().lst.selectedItem()->index() - 1);
        }
    }

    void theListValuesEditorAddsEditsAndSavesThroughItsWidgets() {
        clickRow("Colour");
        designer->modalHost().setDialogHook([](QDialog& dialog) {
            QTimer::singleShot(0, &dialog, [&dialog] {
                addRedThroughTheEditor(dialog);
                // A failed step leaves the dialog open: close it so the test can end.
                if (dialog.isVisible())
                    dialog.reject();
            });
        });
        QTest::mouseClick(&widget<QPushButton>(morvel().cmdList), Qt::LeftButton);
        const PropertyStore& values = defs->Item("Colour")->ListValues();
        QCOMPARE(values.Count(), 1);
        QCOMPARE(values.begin()->Key, "1");
        QCOMPARE(values.begin()->Value.toText(), "Red");
    }

    void lockedBoxesLookReadOnlyAndKeepTheirValues() {
        designer->setCanModifyExisting(false);
        clickRow("Customer");
        const std::string before = testkit::fieldsSnapshot(*defs);
        auto& name = widget<QLineEdit>(morvel().txtName);
        auto& type = widget<QComboBox>(morvel().cboType);
        const QColor window = designer->palette().color(QPalette::Window);
        QVERIFY(name.isReadOnly());
        QCOMPARE(name.palette().color(QPalette::Base), window);
        QCOMPARE(type.palette().color(QPalette::Button), window);
        // The list does not open, and neither keys nor the wheel move the choice.
        QTest::mouseClick(&type, Qt::LeftButton);
        QVERIFY(!type.view()->isVisible());
        QCOMPARE(QApplication::focusWidget(), &type);
        QSignalSpy moved(&type, &QComboBox::currentIndexChanged); // not even for a moment
        for (int key : {Qt::Key_Down, Qt::Key_End, Qt::Key_PageUp, Qt::Key_T, Qt::Key_F4})
            QTest::keyClick(&type, Qt::Key(key));
        QCOMPARE(moved.count(), 0);
        QTest::keyClicks(&name, "Renamed");
        QCOMPARE(testkit::fieldsSnapshot(*defs), before);
        QCOMPARE(type.currentText(), QString("Link"));
        // Allowed again, the same field's boxes look and act as usual.
        designer->setCanModifyExisting(true);
        QVERIFY(!name.isReadOnly());
        QVERIFY(name.palette().color(QPalette::Base) != window);
    }

    void numberBoxesTakeOnlyWhatCanBeAWholeNumber() {
        defs->Add("Code", 8);
        auto& size = widget<QLineEdit>(morvel().txtSize);
        QTest::mouseClick(&size, Qt::LeftButton);
        QTest::keyClick(&size, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&size, "1a2-b 3.");
        QCOMPARE(size.text(), QString("123"));
        QCOMPARE(defs->Item("Code")->Size(), 123);
        QTest::keyClick(&size, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&size, "-4x");
        QCOMPARE(morvel().txtSize.text(), "-4");
    }

    void theLayoutThePersonGivesIsSavedAndRestored() {
        QHeaderView& header = *tree().header();
        QVERIFY(header.stretchLastSection());
        header.resizeSection(0, 211);
        // The bar between the list and the panel gives the panel 40 pixels of the list.
        const int listHeight = tree().height();
        QWidget* bar = designer->childAt(10, tree().geometry().bottom() + 3);
        QVERIFY(bar && bar != &tree());
        const auto drag = [bar](int dy) {
            QTest::mousePress(bar, Qt::LeftButton, {}, {10, 2});
            QTest::mouseMove(bar, {10, 2 + dy});
            QTest::mouseRelease(bar, Qt::LeftButton, {}, {10, 2 + dy});
        };
        drag(-40);
        QCOMPARE(tree().height(), listHeight - 40);
        const QByteArray state = designer->saveLayoutState();
        header.resizeSection(0, 90);
        drag(40);
        QVERIFY(!designer->restoreLayoutState("not a layout"));
        QCOMPARE(header.sectionSize(0), 90);
        QCOMPARE(tree().height(), listHeight);
        QVERIFY(designer->restoreLayoutState(state));
        QCOMPARE(header.sectionSize(0), 211);
        QCOMPARE(tree().height(), listHeight - 40);
        // However far it is dragged, the list keeps room for a few rows.
        drag(-2000);
        QVERIFY(tree().height() > 3 * tree().fontMetrics().height());
    }

private:
    QAbstractItemModel& model() { return *tree().model(); }

    static void addRedThroughTheEditor(QDialog& dialog) {
        QTRY_COMPARE(QApplication::activeWindow(), &dialog);
        QTest::mouseClick(dialog.findChild<QPushButton*>("cmdNew"), Qt::LeftButton);
        auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY(editor);
        editor->selectAll();
        QTest::keyClicks(editor, "Red");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(dialog.findChild<QTreeView*>("lstValues")->model()->index(0, 0).data(),
                     QVariant("Red"));
        QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    }
};

QTEST_MAIN(MorvelWidgetTest)
#include "morvel_widget_test.moc"
