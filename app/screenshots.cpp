// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "screenshots.h"

#include "catalogue/field_types.h"
#include "designer_window.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPixmap>
#include <QTextStream>
#include <QTimer>
#include <functional>

namespace morvel::app {

namespace {

void settle() {
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

bool save(QWidget& widget, const QString& file) {
    settle();
    if (widget.grab().save(file, "PNG"))
        return true;
    QTextStream(stderr) << "Could not write the screenshot " << file << "\n";
    return false;
}

// Clicks the row of the first field of the table that passes the test, as a person would.
bool showField(DesignerWindow& window, const std::function<bool(const FieldDef&)>& wanted) {
    control::Morvel& morvel = window.designer().morvel();
    for (const auto& field : *window.table().fields) {
        if (!wanted(*field))
            continue;
        morvel.lst.clickItem(morvel.lst.item(field->Name()));
        return true;
    }
    QTextStream(stderr) << "The table has no field to show for a screenshot.\n";
    return false;
}

bool showPage(DesignerWindow& window, const char* caption) {
    view::TabStrip& tabs = window.designer().morvel().TabStrip;
    for (std::int32_t i = 1; i <= tabs.count(); ++i)
        if (tabs.caption(i) == caption)
            return tabs.click(i);
    QTextStream(stderr) << "The designer shows no page \"" << caption << "\".\n";
    return false;
}

// Grabs the dialog that the button opens, at its own size and, when it can grow, larger.
bool shootDialog(DesignerWindow& window, view::Button& opener, const QString& stem) {
    bool written = false;
    qt::QtModalHost& host = window.designer().modalHost();
    host.setDialogHook([&](QDialog& dialog) {
        // Taken once the dialog runs; closing it is the window's close button to the form.
        QTimer::singleShot(0, &dialog, [&] {
            written = save(dialog, stem + "-min.png");
            if (dialog.maximumSize() != dialog.minimumSize()) {
                dialog.resize(dialog.width() * 3 / 2, dialog.height() * 3 / 2);
                written = save(dialog, stem + "-large.png") && written;
            }
            dialog.reject();
        });
    });
    opener.click();
    host.setDialogHook({});
    return written;
}

} // namespace

bool writeScreenshot(DesignerWindow& window, const QString& file) {
    return save(window, file);
}

bool writeAllScreenshots(DesignerWindow& window, const QString& folder) {
    if (!QDir().mkpath(folder)) {
        QTextStream(stderr) << "Could not make the folder " << folder << "\n";
        return false;
    }
    const QDir dir(folder);
    const QSize smallest = window.minimumSizeHint().expandedTo(window.minimumSize());
    const QSize large(1280, 900);
    bool ok = true;
    auto bothSizes = [&](const QString& stem) {
        window.resize(smallest);
        ok = save(window, dir.filePath(stem + "-min.png")) && ok;
        window.resize(large);
        ok = save(window, dir.filePath(stem + "-large.png")) && ok;
    };
    control::Morvel& morvel = window.designer().morvel();

    auto ofType = [](auto test) {
        return [test](const FieldDef& field) { return test(field.FieldType()); };
    };
    auto withLocales = [](const FieldDef& field) { return field.Locales().Count() > 0; };

    if (showField(window, withLocales))
        bothSizes("designer-properties");
    else
        ok = false;
    if (showField(window, ofType([](std::int32_t code) { return code == 1000; })) &&
        showPage(window, "Link Properties"))
        bothSizes("designer-link");
    else
        ok = false;
    if (showField(window, ofType(catalogue::isEncryptedType)) && showPage(window, "Encryption"))
        bothSizes("designer-encryption");
    else
        ok = false;

    window.resize(large);
    if (showField(window, ofType(catalogue::isListType)))
        ok = shootDialog(window, morvel.cmdList, dir.filePath("list-values-editor")) && ok;
    else
        ok = false;
    if (showField(window, withLocales))
        ok = shootDialog(window, morvel.cmdLocale, dir.filePath("locale-editor")) && ok;
    else
        ok = false;
    return ok;
}

} // namespace morvel::app
