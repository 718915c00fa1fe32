// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "change_dialogs.h"

#include "qt/error_boundary.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace morvel::app {

namespace {

QString toQString(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QTreeWidget* makeList(QWidget* parent, const QStringList& headers) {
    auto* list = new QTreeWidget(parent);
    list->setObjectName("changes");
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setHeaderLabels(headers);
    list->header()->setSectionResizeMode(QHeaderView::Interactive);
    list->header()->setStretchLastSection(true);
    return list;
}

QString itemOf(const MergeConflict& conflict) {
    switch (conflict.kind) {
    case MergeConflict::Kind::Member:
        return memberName(conflict.member);
    case MergeConflict::Kind::Key:
        return QString("%1 %2").arg(storeLabel(conflict.store), toQString(conflict.key));
    case MergeConflict::Kind::RemovedByMine:
    case MergeConflict::Kind::RemovedByTheirs:
        break;
    }
    return QObject::tr("The field");
}

} // namespace

ReviewChangesDialog::ReviewChangesDialog(ChangeReview review, QWidget* parent)
    : QDialog(parent)
    , m_review(std::move(review))
    , m_list(makeList(this, {tr("Field"), tr("Change"), tr("Saved"), tr("Now")})) {
    setWindowTitle(tr("Review Changes"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_revertField = buttons->addButton(tr("Revert &Field"), QDialogButtonBox::ActionRole);
    m_revertAll = buttons->addButton(tr("Revert &All"), QDialogButtonBox::ActionRole);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_revertField, &QPushButton::clicked, this, &ReviewChangesDialog::revertSelectedField);
    connect(m_revertAll, &QPushButton::clicked, this, &ReviewChangesDialog::revertAll);
    connect(m_list, &QTreeWidget::currentItemChanged, this,
            [this] { m_revertField->setEnabled(m_list->currentItem() != nullptr); });
    resize(720, 420);
    refill();
}

void ReviewChangesDialog::refill() {
    m_list->clear();
    for (const ChangeReview::Row& row : m_review.rows()) {
        auto* item = new QTreeWidgetItem(m_list, {toQString(row.field), toQString(row.item),
                                                  toQString(row.oldText), toQString(row.newText)});
        item->setData(0, Qt::UserRole, QVariant::fromValue<qulonglong>(row.id.value()));
    }
    for (int column = 0; column < 3; ++column)
        m_list->resizeColumnToContents(column);
    if (m_list->topLevelItemCount() > 0)
        m_list->setCurrentItem(m_list->topLevelItem(0));
    m_revertField->setEnabled(m_list->currentItem() != nullptr);
    m_revertAll->setEnabled(m_list->topLevelItemCount() > 0);
}

void ReviewChangesDialog::revertSelectedField() {
    const QTreeWidgetItem* item = m_list->currentItem();
    if (!item)
        return;
    const FieldId id(item->data(0, Qt::UserRole).toULongLong());
    qt::guarded(this, [&] { m_review.revertField(id); });
    refill();
}

void ReviewChangesDialog::revertAll() {
    qt::guarded(this, [&] { m_review.revertAll(); });
    refill();
}

MergeConflictsDialog::MergeConflictsDialog(std::vector<MergeConflict>& conflicts, QWidget* parent)
    : QDialog(parent)
    , m_conflicts(conflicts)
    , m_list(makeList(this, {tr("Field"), tr("Item"), tr("Mine"), tr("Theirs"), tr("Keep")})) {
    setWindowTitle(tr("Merge: Choose Where Both Changed"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("You and someone else changed these items differently. "
                                    "Choose whose change to keep for each."),
                                 this));
    layout->addWidget(m_list);
    for (const MergeConflict& conflict : m_conflicts) {
        auto* item = new QTreeWidgetItem(m_list, {toQString(conflict.field), itemOf(conflict),
                                                  toQString(conflict.mineText),
                                                  toQString(conflict.theirsText), QString()});
        auto* keep = new QComboBox(m_list);
        keep->addItem(tr("Mine"), true);
        keep->addItem(tr("Theirs"), false);
        keep->setCurrentIndex(conflict.takeMine ? 0 : 1);
        m_list->setItemWidget(item, 4, keep);
    }
    for (int column = 0; column < 4; ++column)
        m_list->resizeColumnToContents(column);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Merge"));
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(760, 380);
}

void MergeConflictsDialog::choose(int row, bool mine) {
    if (auto* keep = qobject_cast<QComboBox*>(m_list->itemWidget(m_list->topLevelItem(row), 4)))
        keep->setCurrentIndex(mine ? 0 : 1);
}

void MergeConflictsDialog::accept() {
    for (int row = 0; row < m_list->topLevelItemCount(); ++row)
        if (auto* keep = qobject_cast<QComboBox*>(m_list->itemWidget(m_list->topLevelItem(row), 4)))
            m_conflicts[static_cast<std::size_t>(row)].takeMine = keep->currentData().toBool();
    QDialog::accept();
}

} // namespace morvel::app
