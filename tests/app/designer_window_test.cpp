// The host window around the designer: what counts as an unsaved edit, and a save that someone
// else's save got ahead of.
#include "designer_window.h"
#include "store/sample_schema.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace morvel;

class DesignerWindowTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder;
    std::shared_ptr<SchemaDatabase> database;

    QStringList answered;
    QTimer answerer;

    // Closes every message box that comes up and keeps its text.
    void answerMessages() {
        connect(&answerer, &QTimer::timeout, this, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                answered.append(box->text());
                box->close();
            }
        });
        answerer.start(20);
    }

private slots:
    void initTestCase() {
        database = std::make_shared<SchemaDatabase>(
            std::filesystem::path(folder.filePath("sample.morvel").toStdString()));
        writeSampleSchema(*database);
    }

    void showingFieldsIsNoEditButTypingIs() {
        app::DesignerWindow window(database);
        QVERIFY(window.openTable("Orders"));
        window.show();
        control::Morvel& morvel = window.designer().morvel();
        morvel.lst.clickItem(morvel.lst.item("Customer"));
        morvel.lst.clickItem(morvel.lst.item("CardNumber"));
        QVERIFY(!window.isModified());
        QTest::keyClicks(window.designer().binding().widgetAs<QLineEdit>(morvel.txtDisplayName),
                         "!");
        QVERIFY(window.isModified());
        QVERIFY(window.windowTitle().startsWith("Orders"));
    }

    void aSaveThatSomeoneElseGotAheadOfKeepsTheEdits() {
        app::DesignerWindow mine(database);
        app::DesignerWindow theirs(database);
        QVERIFY(mine.openTable("Orders"));
        QVERIFY(theirs.openTable("Orders"));
        theirs.table().fields->Item("Quantity")->SetDisplayName("Pieces");
        QVERIFY(theirs.save());

        mine.table().fields->Item("Total")->SetDisplayName("Grand total");
        answerMessages();
        QVERIFY(!mine.save());
        QCOMPARE(answered.size(), 1);
        QVERIFY(answered.front().contains("nothing was saved"));
        QVERIFY(mine.isModified());
        QCOMPARE(mine.table().fields->Item("Total")->DisplayName(), "Grand total");
    }
};

QTEST_MAIN(DesignerWindowTest)
#include "designer_window_test.moc"
