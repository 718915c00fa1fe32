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
    void wordsEachFailureForThePerson() {
        const struct {
            const char* what;
            std::function<void()> action;
            QString words; // empty: any words will do
            bool mistake;
        } cases[] = {
            {"locale added twice", [] { addTwice("lstLocale", "K1033"); },
             "Locale 1033 is already in the list.", true},
            {"list value added twice", [] { addTwice("lstValues", "I16"); },
             "The value 16 is already in the list.", true},
            {"name taken",
             [] {
                 FieldDefs fields;
                 fields.Add("Total", 8);
                 fields.Add("Notes", 200)->SetName("total");
             },
             "", true},
            {"row missing", [] { view::ListView(nullptr, "lstLocale").item("K7"); }, kFault, false},
            {"value of another kind", [] { (void)Value(std::string("abc")).asLong(); }, kFault,
             false},
            {"not the library's", [] { throw std::logic_error("std::vector"); }, kFault, false},
        };
        for (const auto& c : cases) {
            const qt::PersonMessage message = wordsFor(c.action);
            if (!c.words.isEmpty())
                QCOMPARE(message.text, c.words);
            QVERIFY2(message.mistake == c.mistake, c.what);
            for (const char* internal : {"lst", "K1033", "I16", "Error", "std::"})
                QVERIFY2(!message.text.contains(internal), qPrintable(message.text));
        }
    }
};

QTEST_APPLESS_MAIN(ErrorWordsTest)
#include "error_words_test.moc"
