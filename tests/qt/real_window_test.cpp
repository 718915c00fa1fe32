// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The designer in a real window under a window manager, where windows are activated and the
// keyboard focus is real: stray keys after a Find must not reach a box of the panel. (Off screen
// no window is ever active, the focus stays empty and such faults cannot show.)
#include "qt/designer_widget.h"
#include "qt/focus_ring.h"
#include "qt/real_window.h"
#include "testing/snapshot.h"

#include <QApplication>
#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QWheelEvent>

using namespace morvel;

class RealWindowTest : public QObject, testing::DesignerWidget {
    Q_OBJECT

private:
    // Answers the next input box with text and Enter, as a person types into it.
    static void answerNextInputBox(const QString& text) {
        QTimer::singleShot(0, [text] {
            QWidget* box = nullptr;
            QTRY_VERIFY((box = QApplication::activeModalWidget()) != nullptr);
            QTRY_VERIFY(box->isActiveWindow());
            QTest::keyClicks(QApplication::focusWidget(), text);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
    }
    // What a person with a heavy hand does next: the navigation keys and a wheel turn, each to
    // whatever has the keyboard focus.
    static void strayKeysAndWheel() {
        for (int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown}) {
            QWidget* focus = QApplication::focusWidget();
            QVERIFY(focus);
            QTest::keyClick(focus, Qt::Key(key));
        }
        QWidget* focus = QApplication::focusWidget();
        QVERIFY(focus);
        const QPointF centre = QRectF(focus->rect()).center();
        QWheelEvent wheel(centre, focus->mapToGlobal(centre), {}, {0, -120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(focus, &wheel);
    }

private slots:
    void init() {
        show({{"ID", 3}, {"Total", 8}, {"Approved", 11}, {"Notes", 200}, {"Owner", 1000}});
    }
    void cleanup() { close(); }

    void strayKeysAfterFindChangeNoField() {
        const std::string before = testkit::fieldsSnapshot(*defs);
        clickRow("Total");
        answerNextInputBox("Notes");
        QTest::keyClick(&tree(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(designer->selectedField()->Name(), "Notes");
        QTRY_VERIFY(designer->isActiveWindow() && QApplication::focusWidget());
        strayKeysAndWheel();
        QCOMPARE(testkit::fieldsSnapshot(*defs), before);
        QCOMPARE(QApplication::focusWidget(), &tree());
        // The ring shows round the whole list, inside the designer even where the list touches
        // its edges.
        const auto* ring = designer->findChild<qt::FocusRing*>();
        QVERIFY(ring && ring->isVisible());
        QVERIFY(ring->parentWidget()->rect().contains(ring->geometry()));
        QVERIFY(ring->geometry().contains(tree().geometry()));

        // Find Next (F3) from a row above repeats the search; the list keeps the keys again.
        clickRow("Approved");
        QTest::keyClick(&tree(), Qt::Key_F3);
        QCOMPARE(designer->selectedField()->Name(), "Notes");
        QCOMPARE(QApplication::focusWidget(), &tree());
        strayKeysAndWheel();
        QCOMPARE(testkit::fieldsSnapshot(*defs), before);
    }

    void aWheelOverAnUnfocusedDropDownChangesNothing() {
        clickRow("Total");
        auto& type = widget<QComboBox>(morvel().cboType);
        QVERIFY(!type.hasFocus());
        const std::string before = testkit::fieldsSnapshot(*defs);
        const QPointF centre = QRectF(type.rect()).center();
        QWheelEvent wheel(centre, type.mapToGlobal(centre), {}, {0, -120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&type, &wheel);
        QCOMPARE(testkit::fieldsSnapshot(*defs), before);
    }
};

int main(int argc, char** argv) {
    if (morvel::testing::skippedWithoutDisplay())
        return 0;
    QApplication app(argc, argv);
    RealWindowTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "real_window_test.moc"
