// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "control/morvel.h"
#include "qt/form_binding.h"
#include "qt/qt_modal_host.h"
#include "qt/qt_prompter.h"

#include <QByteArray>
#include <QWidget>
#include <memory>

namespace morvel::qt {

class SplitHandle;

// The field designer as a Qt widget: one Morvel control with its widgets, real message boxes
// and modal editors. Hand it a table's FieldDefs (and optionally a Database for the link and
// sub-table look-ups); every edit goes into those objects at once, and the host saves them when
// it likes. Resizing the widget lays the designer out again; below 5000 x 5800 twips it does
// not shrink. Ctrl+F finds a field by name, F3 finds the next one.
class MorvelWidget : public QWidget {
    Q_OBJECT

public:
    explicit MorvelWidget(QWidget* parent = nullptr);
    ~MorvelWidget() override;

    void setFieldDefs(std::shared_ptr<FieldDefs> fieldDefs);
    const std::shared_ptr<FieldDefs>& fieldDefs() const;
    void setDatabase(std::shared_ptr<Database> database);
    const std::shared_ptr<Database>& database() const;
    // Takes effect at once: the field shown is shown again with the locks that follow.
    void setCanModifyExisting(bool canModifyExisting);
    bool canModifyExisting() const;
    // The field shown in the panel, null when there is none.
    std::shared_ptr<FieldDef> selectedField() const;

    // Find (asks for the text) and Find Next, as the control's buttons run them. The edit in
    // progress is ended first, and the keyboard focus is on the field list afterwards, so that
    // the arrow keys go on through the rows and never into a box of the panel. Ctrl+F and F3 in
    // the widget run these; a host's menu commands can too.
    void find();
    void findNext();

    // The layout the person gave the designer (the field list's column widths and the split
    // between the list and the panel), as bytes a host
    // keeps (per database, say) and hands back to restoreLayoutState. Restoring bytes that are
    // not such a state, or of another version, changes nothing and answers false.
    QByteArray saveLayoutState() const;
    bool restoreLayoutState(const QByteArray& state);

    // Ends the edit in progress: the box that has the focus loses it, so that what was typed is
    // written (a name is applied when its box loses the focus). Call it before saving.
    void commitEdit();

    // For hosts that need more than the above.
    control::Morvel& morvel() { return *m_morvel; }
    FormBinding& binding() { return *m_binding; }
    QtModalHost& modalHost() { return m_modalHost; }

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

Q_SIGNALS:
    void selectedFieldChanged(std::shared_ptr<morvel::FieldDef> field);

private:
    void runFromTheList(void (control::Morvel::*handler)());
    // Moves the border between the list and the panel: the list gives the panel that many
    // pixels of its height, as far as the list keeps room for a few rows.
    void placeSplit(int pixels);

    QtPrompter m_prompter;
    QtModalHost m_modalHost;
    std::unique_ptr<control::Morvel> m_morvel;
    std::unique_ptr<FormBinding> m_binding;
    Connection m_currentField;
    SplitHandle* m_splitHandle = nullptr;
    int m_splitAtPress = 0;
};

} // namespace morvel::qt
