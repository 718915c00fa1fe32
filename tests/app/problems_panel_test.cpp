// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The Problems dock of the designer window: it follows edits, shows the counts, and takes the
// person from a problem to the box that mends it.
#include "catalogue/property_keys.h"
#include "designer_window.h"
#include "qt/problems_model.h"
#include "store/sample_schema.h"
#include "testing/scripted_prompter.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <functional>

using namespace morvel;

class ProblemsPanelTest : public QObject {
    Q_OBJECT

private slots:
    void enterOnAProblemFocusesTheBoxThatMendsIt() {
        QTemporaryDir folder;
        auto database = std::make_shared<SchemaDatabase>(
            std::filesystem::path(folder.filePath("s.morvel").toStdString()));
        writeSampleSchema(*database);
        testkit::ScriptedPrompter prompter;
        app::DesignerWindow window(database, &prompter);
        QVERIFY(window.openTable("Orders"));
        window.show();
        QApplication::setActiveWindow(&window);
        app::ProblemsPanel& panel = window.problemsPanel();
        QCOMPARE(panel.problems()->rowCount(), 0); // the sample table is sound
        QCOMPARE(panel.counts().text(), QStringLiteral("No problems"));

        QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(panel.dock().isVisible());

        struct Case {
            const char* field;
            std::function<void(FieldDef&)> fault;
            int tab;
            std::function<view::Control&(control::Morvel&)> box;
            const char* counts;
        };
        control::Morvel& morvel = window.designer().morvel();
        const std::vector<Case> cases{
            {"Notes", [](FieldDef& f) { f.SetName("My Notes"); }, 1,
             [](control::Morvel& m) -> view::Control& { return m.txtName; }, "1 error"},
            {"DeliveryAddress",
             [](FieldDef& f) { f.Properties().SetValue(catalogue::kSubLinkField, "Gone", true); },
             2, [](control::Morvel& m) -> view::Control& { return m.cboLinkFields; }, "2 errors"},
        };
        for (const Case& c : cases) {
            const auto field = window.table().fields->Item(c.field);
            c.fault(*field);
            QCOMPARE(panel.counts().text(), QString(c.counts));
            const int row = panel.problems()->rowCount() - 1;
            QCOMPARE(panel.view().model()->index(row, qt::ProblemsModel::FieldColumn).data(),
                     QVariant(QString::fromStdString(field->Name())));
            panel.view().setFocus();
            panel.view().setCurrentIndex(panel.view().model()->index(row, 0));
            QTest::keyClick(&panel.view(), Qt::Key_Return);
            QCOMPARE(window.designer().selectedField(), field);
            QCOMPARE(morvel.TabStrip.selectedIndex(), c.tab);
            QCOMPARE(QApplication::focusWidget(),
                     window.designer().binding().widgetFor(c.box(morvel)));
        }
    }
};

QTEST_MAIN(ProblemsPanelTest)
#include "problems_panel_test.moc"
