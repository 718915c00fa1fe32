// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// Failures that reach the person, raised where the program raises them, as the person reads them:
// plain words, the information icon for a mistake, and never a control name, key or class name.
#include "fields/field_defs.h"
#include "fields/value.h"
#include "qt/error_boundary.h"
#include "view/list_view.h"

#include <QTest>
#include <functional>

Q_DECLARE_METATYPE(std::function<void()>)

using namespace morvel;

namespace {

// The failure that action raises, worded.
qt::PersonMessage wordsFor(const std::function<void()>& action) {
    try {
        action();
    } catch (const std::exception& error) {
        return qt::personMessage(error);
    }
    return {"(nothing was raised)", false};
}

void addTwice(const char* list, const char* key) {
    view::ListView rows(nullptr, list);
    rows.add(key, key);
    rows.add(key, key);
}

const QString kFault = qt::personMessage(std::runtime_error("")).text;

} // namespace

class ErrorWordsTest : public QObject {
    Q_OBJECT

private slots:
    void wordsEachFailureForThePerson_data() {
        QTest::addColumn<std::function<void()>>("action");
        QTest::addColumn<QString>("words");
        QTest::addColumn<bool>("mistake");
        QTest::newRow("locale added twice")
            << std::function<void()>([] { addTwice("lstLocale", "K1033"); })
            << "Locale 1033 is already in the list." << true;
        QTest::newRow("list value added twice")
            << std::function<void()>([] { addTwice("lstValues", "I16"); })
            << "The value 16 is already in the list." << true;
        QTest::newRow("name taken") << std::function<void()>([] {
            FieldDefs fields;
            fields.Add("Total", 8);
            fields.Add("Notes", 200)->SetName("total");
        }) << "" << true;
        QTest::newRow("row missing") << std::function<void()>([] {
            view::ListView rows(nullptr, "lstLocale");
            rows.item("K7");
        }) << kFault << false;
        QTest::newRow("value of another kind")
            << std::function<void()>([] { (void)Value(std::string("abc")).asLong(); }) << kFault
            << false;
        QTest::newRow("not the library's")
            << std::function<void()>([] { throw std::logic_error("std::vector"); }) << kFault
            << false;
    }
    void wordsEachFailureForThePerson() {
        QFETCH(std::function<void()>, action);
        QFETCH(QString, words);
        QFETCH(bool, mistake);
        const qt::PersonMessage message = wordsFor(action);
        if (!words.isEmpty())
            QCOMPARE(message.text, words);
        QCOMPARE(message.mistake, mistake);
        for (const char* internal : {"lst", "K1033", "I16", "Error", "std::"})
            QVERIFY2(!message.text.contains(internal), qPrintable(message.text));
    }
};

QTEST_APPLESS_MAIN(ErrorWordsTest)
#include "error_words_test.moc"
