// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "fields/field_defs.h"
#include "qt/morvel_widget.h"

#include <QTest>
#include <QTreeView>
#include <memory>
#include <utility>

namespace morvel::testing {

// The designer's widget on screen over a collection of its own, with the ways a person reaches
// its controls.
struct DesignerWidget {
    std::unique_ptr<qt::MorvelWidget> designer;
    std::shared_ptr<FieldDefs> defs;

    // Shows the designer, its existing fields unlocked, over the (name, type) fields.
    void show(std::initializer_list<std::pair<const char*, int>> fields) {
        defs = std::make_shared<FieldDefs>();
        for (const auto& [name, type] : fields)
            defs->Add(name, type);
        designer = std::make_unique<qt::MorvelWidget>();
        designer->setCanModifyExisting(true);
        designer->setFieldDefs(defs);
        designer->resize(900, 640);
        designer->show();
        designer->activateWindow();
        if (!QTest::qWaitForWindowActive(designer.get()))
            qFatal("the designer was never activated");
    }
    void close() {
        designer.reset();
        defs.reset();
    }
    control::Morvel& morvel() { return designer->morvel(); }
    template <typename W> W& widget(const view::Control& control) {
        W* found = designer->binding().widgetAs<W>(control);
        if (!found)
            qFatal("no widget for %s", control.name().c_str());
        return *found;
    }
    QTreeView& tree() { return widget<QTreeView>(morvel().lst); }
    void clickRow(const char* name) {
        const int row = morvel().lst.item(name).index() - 1;
        const QRect cell = tree().visualRect(tree().model()->index(row, 0));
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, cell.center());
    }
};

} // namespace morvel::testing
