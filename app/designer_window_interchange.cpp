// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The Table menu's export and import of a definition as a JSON file.
#include "designer_window.h"
#include "interchange/table_json.h"
#include "store/store_error.h"
#include "table_commands.h"

#include <QFileDialog>
#include <QMenu>

namespace morvel::app {

namespace {

constexpr const char* kFileFilter = "Table definitions (*.json);;All files (*)";

// Runs a step that reads or writes a file or the database; a failure is told, nothing else.
template <typename Step> void guarded(view::Prompter& prompter, Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const Error& error) {
        prompter.messageBox(
            {error.what(), view::MsgBoxButtons::OK, view::MsgBoxIcon::Critical, ""});
    }
}

} // namespace

void DesignerWindow::buildInterchangeActions(QMenu* table) {
    table->addAction(tr("&Export..."), QKeySequence(Qt::CTRL | Qt::Key_E), this,
                     [this] { exportToFile(); });
    table->addAction(tr("&Import..."), QKeySequence(Qt::CTRL | Qt::Key_I), this,
                     [this] { importFromFile(); });
}

// Writes what the window shows, unsaved edits included: the file is what the person sees.
void DesignerWindow::exportToFile() {
    if (!m_session.isOpen())
        return;
    m_designer->commitEdit();
    const QString suggested = QString::fromStdString(table().info.name) + QStringLiteral(".json");
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Export Table"), suggested, tr(kFileFilter));
    if (path.isEmpty())
        return;
    guarded(m_prompter, [&] {
        writeFileAtomically(path.toStdString(),
                            interchange::writeTableJson(tableDocument(table())));
        showNote(tr("Exported the table to %1.").arg(path));
    });
}

// Stores the file's table in the database and opens it. A table of that name is replaced only
// when the person says so; otherwise it can go in under another name.
void DesignerWindow::importFromFile() {
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Import Table"), {}, tr(kFileFilter));
    if (path.isEmpty() || !m_session.settleUnsavedEdits())
        return;
    guarded(m_prompter, [&] {
        const interchange::TableDocument document =
            interchange::readTableJson(readFile(path.toStdString()));
        std::string name = document.name;
        bool replace = false;
        if (const auto existing = m_session.database().findTable(name)) {
            const view::MsgBoxResult answer = m_prompter.messageBox(
                {"There is a table named \"" + existing->name +
                     "\" already. Replace it with the "
                     "one in the file, or import the file under another name?",
                 view::MsgBoxButtons::YesNoCancel,
                 view::MsgBoxIcon::Question,
                 "",
                 {"Replace", "Another Name...", "Cancel"}});
            if (answer == view::MsgBoxResult::Cancel)
                return;
            replace = answer == view::MsgBoxResult::Yes;
            if (!replace) {
                name = m_prompter.inputBox({"Name of the imported table:", "", name + "2"});
                if (name.empty())
                    return;
            }
        }
        const TableInfo info = importTable(m_session.database(), document, name, replace);
        m_session.open(info.name);
        showNote(
            tr("Imported %1 as the table \"%2\".").arg(path, QString::fromStdString(info.name)));
    });
}

} // namespace morvel::app
