// The designer through its real widgets, as a person would use it.
#include "fields/field_defs.h"
#include "qt/list_view_model.h"
#include "qt/morvel_widget.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace morvel;

class MorvelWidgetTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<qt::MorvelWidget> designer;
    std::shared_ptr<FieldDefs> defs;

    control::Morvel& morvel() { return designer->morvel(); }
    template <typename W> W& widget(const view::Control& control) {
        W* found = designer->binding().widgetAs<W>(control);
        if (!found)
            qFatal("no widget for %s", control.name().c_str());
        return *found;
    }
    QTreeView& tree() { return widget<QTreeView>(morvel().lst); }
    QTabBar& tabBar() { return *widget<QWidget>(morvel().TabStrip).findChild<QTabBar*>(); }
    void clickRow(const char* name) {
        const int row = morvel().lst.item(name).index() - 1;
        const QRect cell = tree().visualRect(tree().model()->index(row, 0));
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, cell.center());
    }
    // Picks an entry of a drop-down from its open list, as the mouse would.
    static void pick(QComboBox& combo, const QString& text) {
        combo.showPopup();
        QAbstractItemView& list = *combo.view();
        const QModelIndex entry = list.model()->index(combo.findText(text), 0);
        list.scrollTo(entry);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(entry).center());
    }

private slots:
    void init() {
        defs = std::make_shared<FieldDefs>();
        defs->Add("Title", 200);
        defs->Add("Customer", 1000);
        defs->Add("Colour", 1100);
        designer = std::make_unique<qt::MorvelWidget>();
        designer->setCanModifyExisting(true);
        designer->setFieldDefs(defs);
        designer->resize(900, 640);
        designer->show();
        QVERIFY(QTest::qWaitForWindowActive(designer.get()));
    }
    void cleanup() {
        designer.reset();
        defs.reset();
    }

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

    void theListFollowsRemovalAndSelectsTheFirstRow() {
        auto& model = *tree().model();
        QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
        clickRow("Customer");
        defs->Remove("Customer");
        QCOMPARE(removed.count(), 1);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(tree().currentIndex().row(), 0);
        QCOMPARE(widget<QLineEdit>(morvel().txtName).text(), QString("Title"));
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
