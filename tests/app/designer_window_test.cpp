// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The host window as a person uses it, keys and mouse on the real widgets; every message box is
// answered by a scripted prompter.
#include "designer_window.h"
#include "qt/real_window.h"
#include "store/sample_schema.h"
#include "testing/scripted_prompter.h"
#include "testing/snapshot.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QFile>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>
#include <functional>
#include <tuple>
#include <utility>
#include <vector>

using namespace morvel;
using view::MsgBoxResult;

class DesignerWindowTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder;
    QString path;
    std::shared_ptr<SchemaDatabase> database;
    testkit::ScriptedPrompter prompter;
    int run = 0;

    std::unique_ptr<app::DesignerWindow> open(const char* table = "Orders") {
        auto window = std::make_unique<app::DesignerWindow>(database, &prompter);
        if (!window->openTable(table))
            qFatal("no table %s", table);
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
    static control::Morvel& morvel(app::DesignerWindow& window) {
        return window.designer().morvel();
    }
    static QString shown(app::DesignerWindow& window) {
        const auto field = window.designer().selectedField();
        return field ? QString::fromStdString(field->Name()) : QString();
    }
    // A click on the field's row, scrolled into view first as a person would scroll.
    static void clickRow(app::DesignerWindow& window, const char* name) {
        QTreeView& list = window.fieldList();
        const QModelIndex index = list.model()->index(morvel(window).lst.item(name).index() - 1, 0);
        list.scrollTo(index);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
    }
    static bool rowInView(app::DesignerWindow& window) {
        QTreeView& list = window.fieldList();
        const QModelIndex index = list.currentIndex();
        return index.isValid() && list.viewport()->rect().contains(list.visualRect(index));
    }
    static bool noteShown(app::DesignerWindow& window, const char* name) {
        return window.findChild<QLabel*>(name)->isVisibleTo(&window);
    }
    static QLineEdit* box(app::DesignerWindow& window, view::Control& control) {
        return window.designer().binding().widgetAs<QLineEdit>(control);
    }
    // Clicks into the display name box and types at the end of its text.
    static void typeAtEnd(app::DesignerWindow& window, const char* text) {
        QLineEdit* edit = box(window, morvel(window).txtDisplayName);
        QTest::mouseClick(edit, Qt::LeftButton);
        QTest::keyClick(edit, Qt::Key_End);
        QTest::keyClicks(edit, text);
    }
    // A key to whatever has the keyboard, as a person presses it.
    static void press(app::DesignerWindow& window, int key, Qt::KeyboardModifiers modifiers) {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &window, Qt::Key(key), modifiers);
    }
    static std::string fields(app::DesignerWindow& window) {
        return testkit::fieldsSnapshot(*window.table().fields);
    }
    std::string lastPrompt() const {
        return prompter.promptTexts().empty() ? "" : prompter.promptTexts().back();
    }

private slots:
    // Every test gets a fresh sample database of its own.
    void init() {
        path = folder.filePath(QString("sample%1.morvel").arg(++run));
        database = std::make_shared<SchemaDatabase>(std::filesystem::path(path.toStdString()));
        writeSampleSchema(*database);
        prompter.reset();
    }

    void theUnlockStartsOffIsShownAndEndsWithTheTable() {
        auto window = open();
        QVERIFY(!window->designer().canModifyExisting());
        QTest::keyClick(window.get(), Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(window->designer().canModifyExisting());
        QVERIFY(noteShown(*window, "unlockNote"));
        QVERIFY2(!open()->designer().canModifyExisting(), "another start begins locked");

        for (const char* table : {"Orders", "Customers"}) { // the same one again, another one
            window->session().open(table);
            QVERIFY(!window->designer().canModifyExisting());
            QVERIFY(!noteShown(*window, "unlockNote"));
            QTest::keyClick(window.get(), Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        }
    }

    void deleteRemovesTheSelectedFieldOnlyFromTheListAndAfterAsking() {
        struct Case {
            const char* what;
            bool inList;
            Qt::Key key;
            Qt::KeyboardModifiers modifiers;
            MsgBoxResult answer;
            const char* shownAfter;
        };
        const Case cases[] = {
            {"Delete, No", true, Qt::Key_Delete, {}, MsgBoxResult::No, "Total"},
            {"Delete, Yes", true, Qt::Key_Delete, {}, MsgBoxResult::Yes, "Paid"},
            {"Ctrl+Delete, Yes", true, Qt::Key_Delete, Qt::ControlModifier, MsgBoxResult::Yes,
             "Paid"},
            {"Delete in a box", false, Qt::Key_Delete, {}, MsgBoxResult::Yes, "Total"},
        };
        for (const Case& c : cases) {
            auto window = open();
            prompter.reset();
            clickRow(*window, "Total");
            QWidget* target = &window->fieldList();
            if (!c.inList) {
                target = box(*window, morvel(*window).txtDisplayName);
                QTest::mouseClick(target, Qt::LeftButton);
            }
            prompter.answer(c.answer);
            QTest::keyClick(target, c.key, c.modifiers);
            const bool asked = prompter.pendingAnswers() == 0;
            QVERIFY2(asked == (std::string(c.what) != "Delete in a box"), c.what);
            QCOMPARE(shown(*window), QString(c.shownAfter));
            QCOMPARE(!window->table().fields->find("Total"), QString(c.shownAfter) == "Paid");
            QVERIFY2(rowInView(*window), c.what);
            if (c.inList)
                QVERIFY2(QApplication::focusWidget() == target, c.what);
        }
    }

    void everyMenuCommandShowsItsShortcutAndFindNextRunsFromTheKeyboard() {
        auto window = open();
        QStringList missing;
        for (QAction* menu : window->menuBar()->actions())
            for (QAction* action : menu->menu()->actions())
                if (!action->isSeparator() && action->shortcut().isEmpty())
                    missing << action->text();
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(", ")));

        clickRow(*window, "Quantity");
        QTest::keyClick(&window->fieldList(), Qt::Key_F3); // an empty search finds the next row
        QCOMPARE(shown(*window), QString("Total"));
        QTest::keyClick(box(*window, morvel(*window).txtDisplayName), Qt::Key_F3);
        QCOMPARE(shown(*window), QString("Paid"));
        QVERIFY(prompter.prompts().empty());
    }

    void saveAndRevertKeepTheFieldShownAndTheScrollPosition() {
        auto window = open();
        clickRow(*window, "zrCreatedBy");
        const int scroll = window->fieldList().verticalScrollBar()->value();
        QVERIFY(scroll > 0);
        typeAtEnd(*window, " (user)");
        QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!window->isModified());
        typeAtEnd(*window, "!");
        prompter.answer(MsgBoxResult::Yes);
        QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(lastPrompt().substr(0, 16), "Reload \"Orders\" ");
        QVERIFY(!window->isModified());
        QCOMPARE(window->table().fields->Item("zrCreatedBy")->DisplayName(), "Created by (user)");
        QCOMPARE(shown(*window), QString("zrCreatedBy"));
        QCOMPARE(window->fieldList().verticalScrollBar()->value(), scroll);
    }

    void aSaveThatSomeoneElseGotAheadOfOffersSaveAsNewAndReload() {
        for (const MsgBoxResult wayOut : {MsgBoxResult::Yes, MsgBoxResult::No}) {
            auto mine = open();
            auto theirs = open();
            theirs->table().fields->Item("Quantity")->SetDisplayName("Pieces");
            // A save with nothing changed writes nothing: the second round changes something.
            theirs->table()
                .fields->Item("Quantity")
                ->SetDescription(std::to_string(static_cast<int>(wayOut)));
            QVERIFY(theirs->save());
            mine->table().fields->Item("Total")->SetDisplayName("Grand total");
            prompter.reset();
            prompter.answer(wayOut);
            if (wayOut == MsgBoxResult::Yes) {
                prompter.answer("Customers"); // taken: the store says so, and the name is asked
                prompter.answer("MyOrders");  // again
            } else {
                prompter.answer(MsgBoxResult::Yes); // drop my edits
            }
            QCOMPARE(mine->save(), wayOut == MsgBoxResult::Yes);
            const auto& refusal = std::get<view::MessageBoxRequest>(prompter.prompts().front());
            QVERIFY(refusal.prompt.find("not saved") != std::string::npos);
            QVERIFY(refusal.prompt.find("still in the window") != std::string::npos);
            QCOMPARE(
                refusal.buttonTexts,
                (std::vector<std::string>{"Save as New Table...", "Reload", "Merge...", "Cancel"}));
            QVERIFY(!mine->isModified());
            if (wayOut == MsgBoxResult::Yes) {
                QCOMPARE(prompter.promptTexts().at(2),
                         "There is a table named \"Customers\" already; choose another name.");
                QCOMPARE(mine->table().info.name, "MyOrders");
                QVERIFY(mine->windowTitle().startsWith("MyOrders"));
                QCOMPARE(database->load("MyOrders").fields->Item("Total")->DisplayName(),
                         "Grand total");
            } else {
                QCOMPARE(mine->table().fields->Item("Quantity")->DisplayName(), "Pieces");
                QCOMPARE(mine->table().fields->Item("Total")->DisplayName(), "Total");
            }
        }
    }

    void aSaveThatCannotWriteSaysWhyAndKeepsTheEdits() {
        auto window = open();
        // The journal a save writes beside the file cannot be made: its name leads nowhere.
        QVERIFY(QFile::link(folder.filePath("missing/journal"), path + "-journal"));
        window->table().fields->Item("Total")->SetDisplayName("Grand total");
        QVERIFY(!window->save());
        const QString message = QString::fromStdString(lastPrompt());
        QVERIFY2(message.contains("cannot be saved") && message.contains("still in the window") &&
                     !message.contains("cannot be opened"),
                 qPrintable(message));
        QVERIFY(window->isModified());
    }

    void aReadOnlyDatabaseIsSaidWhenItOpens() {
        database = std::make_shared<SchemaDatabase>(std::filesystem::path(path.toStdString()),
                                                    SchemaDatabase::Access::ReadOnly);
        auto window = open();
        QVERIFY(window->windowTitle().contains("[read only]"));
        QVERIFY(noteShown(*window, "readOnlyNote"));
        QAction* save = window->menuBar()->actions().front()->menu()->actions().front();
        QVERIFY(!save->isEnabled());
        QVERIFY(save->toolTip().contains("cannot be written"));
        QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(prompter.prompts().empty());
    }

    // Closing with edits not saved asks first: Cancel keeps the window and the edits, Discard
    // closes.
    void closingAsksAndCancelKeepsTheEdits() {
        auto window = open();
        window->table().fields->Item("Total")->SetDisplayName("Grand total");
        prompter.answer(MsgBoxResult::Cancel);
        QVERIFY(!window->close());
        QVERIFY(window->isModified());
        prompter.answer(MsgBoxResult::No);
        QVERIFY(window->close());
    }

    // Undo and Redo take back and put again a typed name, a type change and a removal, whatever
    // has the keyboard (a box's own undo must not take the keys), and the modified marker follows
    // the saved point both ways.
    void undoAndRedoWalkTheHistoryAndTheMarkerFollowsTheSave() {
        const auto ctrl = Qt::ControlModifier;
        auto window = open();
        QAction* undo = window->menuBar()->actions().at(1)->menu()->actions().at(0);
        QVERIFY(!undo->isEnabled());
        QTest::keyClick(window.get(), Qt::Key_N, ctrl); // a field whose type may change
        clickRow(*window, "NewField");
        auto* type = window->designer().binding().widgetAs<QComboBox>(morvel(*window).cboType);
        const std::pair<const char*, std::function<void()>> cases[] = {
            {"&Undo Change type of NewField",
             [&] {
                 type->setFocus();
                 QTest::keyClick(type, Qt::Key_Down);
             }},
            {"&Undo Type in Display Name of Total",
             [&] {
                 clickRow(*window, "Total");
                 typeAtEnd(*window, " due");
             }},
            {"&Undo Remove field Total",
             [&] {
                 clickRow(*window, "Total");
                 prompter.answer(MsgBoxResult::Yes);
                 press(*window, Qt::Key_Delete, ctrl);
             }},
        };
        for (const auto& [undoText, act] : cases) {
            const std::string before = fields(*window);
            const bool wasModified = window->isWindowModified();
            act();
            const std::string after = fields(*window);
            QCOMPARE(undo->text(), QString(undoText));
            // Each key, then the fields and the marker it leaves: undo, redo, save, undo, redo.
            const std::tuple<int, Qt::KeyboardModifiers, std::string, bool> keys[] = {
                {Qt::Key_Z, ctrl, before, wasModified},
                {Qt::Key_Z, ctrl | Qt::ShiftModifier, after, true},
                {Qt::Key_S, ctrl, after, false},
                {Qt::Key_Z, ctrl, before, true},
                {Qt::Key_Y, ctrl, after, false}};
            for (const auto& [key, modifiers, state, modified] : keys) {
                press(*window, key, modifiers);
                QCOMPARE(fields(*window), state);
                QCOMPARE(window->isWindowModified(), modified);
            }
        }
    }

    // What the walk above leaves out: a name typed into its box (stored only when the box is
    // left), and where the person looks afterwards: the field the step changed, with the keyboard
    // on the field list, whichever field was shown before.
    void undoShowsTheFieldItChangedAndTakesBackANameStillInItsBox() {
        const auto ctrl = Qt::ControlModifier;
        struct Case {
            const char* what;
            std::function<void(app::DesignerWindow&)> act;
            const char* shownUndone;
            const char* shownRedone;
        };
        const Case cases[] = {
            {"a name still in its box",
             [](app::DesignerWindow& window) {
                 clickRow(window, "Total");
                 QLineEdit* name = box(window, morvel(window).txtName);
                 QTest::mouseClick(name, Qt::LeftButton);
                 QTest::keyClick(name, Qt::Key_End);
                 QTest::keyClicks(name, "Due");
             },
             "Total", "TotalDue"},
            {"a display name, then another field shown",
             [](app::DesignerWindow& window) {
                 clickRow(window, "Total");
                 typeAtEnd(window, " due");
                 clickRow(window, "Quantity");
             },
             "Total", "Total"},
        };
        for (const Case& c : cases) {
            auto window = open();
            QTest::keyClick(window.get(), Qt::Key_E, ctrl | Qt::ShiftModifier); // names may change
            const std::string before = fields(*window);
            c.act(*window);
            press(*window, Qt::Key_Z, ctrl);
            QCOMPARE(fields(*window), before);
            QCOMPARE(shown(*window), QString(c.shownUndone));
            QVERIFY2(QApplication::focusWidget() == &window->fieldList(), c.what);
            press(*window, Qt::Key_Z, ctrl | Qt::ShiftModifier);
            QCOMPARE(shown(*window), QString(c.shownRedone));
            QVERIFY2(window->isWindowModified(), c.what);
        }
    }

    // The History dock (Ctrl+H) lists the steps under "<empty>", follows undo and redo, marks the
    // saved state, and a click on a row goes to that state.
    void theHistoryDockListsTheStepsAndAClickGoesToOne() {
        const auto ctrl = Qt::ControlModifier;
        auto window = open();
        const std::string loaded = fields(*window);
        QVERIFY(!window->historyDock().isVisible());
        QTest::keyClick(window.get(), Qt::Key_H, ctrl);
        QVERIFY(window->historyDock().isVisible());
        clickRow(*window, "Total");
        typeAtEnd(*window, " due");
        clickRow(*window, "Quantity");
        typeAtEnd(*window, " ordered");
        clickRow(*window, "Paid");
        const std::string edited = fields(*window);
        QListView& view = window->historyView();
        QAbstractItemModel& steps = *view.model();
        auto rows = [&] {
            QStringList out;
            for (int row = 0; row < steps.rowCount(); ++row)
                out << steps.index(row, 0).data().toString() +
                           (steps.index(row, 0).data(Qt::FontRole).value<QFont>().bold() ? "*"
                                                                                         : "") +
                           (steps.index(row, 0).data(Qt::DecorationRole).isNull() ? "" : "=");
            return out.join(" / ");
        };
        auto clickStep = [&](int row) {
            const QModelIndex index = steps.index(row, 0);
            view.scrollTo(index);
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
        };
        QCOMPARE(rows(), "<empty>= / Type in Display Name of Total / "
                         "Type in Display Name of Quantity*");
        // Each click, then the fields, the rows and the marker it leaves.
        const std::tuple<int, std::string, const char*, bool> clicks[] = {
            {0, loaded,
             "<empty>*= / Type in Display Name of Total / Type in Display Name of Quantity", false},
            {2, edited,
             "<empty>= / Type in Display Name of Total / Type in Display Name of Quantity*", true},
            {1, "", "<empty>= / Type in Display Name of Total* / Type in Display Name of Quantity",
             true},
        };
        for (const auto& [row, state, expected, modified] : clicks) {
            clickStep(row);
            if (!state.empty())
                QCOMPARE(fields(*window), state);
            QCOMPARE(rows(), QString(expected));
            QCOMPARE(window->isWindowModified(), modified);
            QCOMPARE(view.currentIndex().row(), row);
        }
        QCOMPARE(shown(*window), QString("Quantity")); // the field the undone step changed
        QTest::keyClick(window.get(), Qt::Key_S, ctrl);
        QCOMPARE(rows(), "<empty> / Type in Display Name of Total*= / "
                         "Type in Display Name of Quantity");
        typeAtEnd(*window, "!"); // a new step drops the one undone
        QCOMPARE(rows(), "<empty> / Type in Display Name of Total= / "
                         "Type in Display Name of Quantity*");
    }
};

#ifdef MORVEL_REAL_WINDOW
// The undo keys again in a real window under a window manager, where the focus is real and a
// box's own shortcuts compete with the window's.
int main(int argc, char** argv) {
    if (morvel::testing::skippedWithoutDisplay())
        return 0;
    QApplication app(argc, argv);
    DesignerWindowTest test;
    std::vector<char*> args(argv, argv + argc);
    char walk[] = "undoAndRedoWalkTheHistoryAndTheMarkerFollowsTheSave";
    char shown[] = "undoShowsTheFieldItChangedAndTakesBackANameStillInItsBox";
    if (argc == 1)
        args.insert(args.end(), {walk, shown});
    return QTest::qExec(&test, static_cast<int>(args.size()), args.data());
}
#else
QTEST_MAIN(DesignerWindowTest)
#endif
#include "designer_window_test.moc"
