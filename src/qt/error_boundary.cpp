// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/error_boundary.h"

#include "base/error.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <string_view>
#include <typeinfo>

namespace morvel::qt {

namespace {

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A list's row key without the letter that keeps it from being purely numeric ("K1033").
QString withoutKeyLetter(const std::string& key) {
    return toQString(std::string_view(key).substr(key.empty() ? 0 : 1));
}

// The lists whose keys a person types, and how their failures read. Keys are the designer's
// field names, the list values editor's values and the locale editor's locale numbers.
struct ListWords {
    std::string_view list;
    QString (*taken)(const std::string& key);
    const char* nothingSelected;
};

const ListWords kListWords[] = {
    {"lst",
     [](const std::string& key) {
         return QStringLiteral("A field named \"%1\" is already in the list.").arg(toQString(key));
     },
     "Select a field in the list first."},
    {"lstValues",
     [](const std::string& key) {
         return QStringLiteral("The value %1 is already in the list.").arg(withoutKeyLetter(key));
     },
     "Select a value in the list first."},
    {"lstLocale",
     [](const std::string& key) {
         return QStringLiteral("Locale %1 is already in the list.").arg(withoutKeyLetter(key));
     },
     "Select a locale in the list first."},
};

const ListWords* wordsFor(const std::string& list) {
    for (const ListWords& words : kListWords)
        if (words.list == list)
            return &words;
    return nullptr;
}

const QString kFault = QStringLiteral(
    "The designer could not complete this action. This is a fault in the program, not something "
    "you did; the details were written to its error output.");

} // namespace

PersonMessage personMessage(const std::exception& error) {
    // Written for the person already: a name the library refuses, a missing current field.
    if (dynamic_cast<const FieldNameError*>(&error) ||
        dynamic_cast<const NoCurrentFieldError*>(&error))
        return {toQString(error.what()), true};
    const auto* said = dynamic_cast<const Error*>(&error);
    if (!said || said->owner().empty())
        return {kFault, false};
    const ListWords* words = wordsFor(said->owner());
    if (dynamic_cast<const DuplicateKeyError*>(&error))
        return {words ? words->taken(said->key())
                      : QStringLiteral("That entry is already in the list."),
                true};
    if (words && said->key().empty() && dynamic_cast<const NotFoundError*>(&error))
        return {QString::fromLatin1(words->nothingSelected), true};
    return {kFault, false};
}

void showError(QWidget* context, const std::exception& error) {
    std::fprintf(stderr, "morvel: %s: %s\n", typeid(error).name(), error.what());
    const PersonMessage message = personMessage(error);
    QPointer<QWidget> guard(context);
    QTimer::singleShot(0, qApp, [guard, message] {
        QWidget* parent = guard ? guard->window() : nullptr;
        const QString title = QApplication::applicationDisplayName();
        if (message.mistake)
            QMessageBox::information(parent, title, message.text);
        else
            QMessageBox::critical(parent, title, message.text);
    });
}

} // namespace morvel::qt
