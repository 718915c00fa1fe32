// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/morvel_widget.h"

#include "qt/error_boundary.h"
#include "qt/split_handle.h"

#include <QDataStream>
#include <QHeaderView>
#include <QIODevice>
#include <QKeySequence>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QTreeView>
#include <algorithm>

namespace morvel::qt {

namespace {
// The smallest size the designer lays itself out at.
constexpr std::int32_t kMinimumWidth = 5000;
constexpr std::int32_t kMinimumHeight = 5800;
// Marks the bytes of saveLayoutState, and their version.
constexpr quint32 kLayoutMagic = 0x4d4c5331; // "MLS1"
// The rows the list keeps room for when the person gives its height to the panel.
constexpr int kRowsKeptInView = 3;

// The boxes whose text the designer reads as a whole number accept only what can become one
// while the person types: a sign and up to ten digits. What the control does with the text
// is unchanged; this only keeps letters out of the box.
void acceptWholeNumbersOnly(FormBinding& binding, std::initializer_list<view::TextBox*> boxes) {
    static const QRegularExpression wholeNumber(QStringLiteral("[-+]?[0-9]{0,10}"));
    for (view::TextBox* box : boxes)
        if (auto* line = binding.widgetAs<QLineEdit>(*box))
            line->setValidator(new QRegularExpressionValidator(wholeNumber, line));
}
} // namespace

MorvelWidget::MorvelWidget(QWidget* parent)
    : QWidget(parent)
    , m_prompter(this)
    , m_modalHost(this)
    , m_morvel(std::make_unique<control::Morvel>(m_prompter, m_modalHost)) {
    m_binding = std::make_unique<FormBinding>(*m_morvel, *this);
    m_binding->setShowingData([this] { return m_morvel->showingField(); });
    control::Morvel& morvel = *m_morvel;
    acceptWholeNumbersOnly(*m_binding, {&morvel.txtSize, &morvel.txtStatus, &morvel.txtObjectType,
                                        &morvel.txtSubTable, &morvel.txtSubTableFieldID});
    const TwipScale& scale = m_binding->scale();
    setMinimumSize(scale.toPixels(kMinimumWidth), scale.toPixels(kMinimumHeight));

    m_splitHandle = new SplitHandle(
        *this, [this] { m_splitAtPress = m_binding->split(); },
        [this](int fromStart) { placeSplit(m_splitAtPress - fromStart); });
    placeSplit(0);

    m_currentField = m_morvel->currentFieldChanged.connect(
        [this](const control::Morvel::FieldDefPtr& field) { Q_EMIT selectedFieldChanged(field); });

    auto* find = new QShortcut(QKeySequence::Find, this);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, this, &MorvelWidget::find);
    auto* findNext = new QShortcut(QKeySequence(Qt::Key_F3), this);
    findNext->setContext(Qt::WidgetWithChildrenShortcut);
    connect(findNext, &QShortcut::activated, this, &MorvelWidget::findNext);
}

MorvelWidget::~MorvelWidget() {
    // The widgets stop following the control, then go while the control they read (the list
    // model reads the list view in place) is still there.
    m_binding.reset();
    qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
}

void MorvelWidget::setFieldDefs(std::shared_ptr<FieldDefs> fieldDefs) {
    // Loading a table is not the person's move: the keyboard focus stays where it is.
    const FormBinding::FocusHold hold(*m_binding, nullptr);
    m_binding->releaseFocus();
    m_morvel->SetFieldDefs(std::move(fieldDefs));
}

const std::shared_ptr<FieldDefs>& MorvelWidget::fieldDefs() const {
    return m_morvel->FieldDefs();
}

void MorvelWidget::setDatabase(std::shared_ptr<Database> database) {
    m_morvel->SetDatabase(std::move(database));
}

const std::shared_ptr<Database>& MorvelWidget::database() const {
    return m_morvel->Database();
}

void MorvelWidget::setCanModifyExisting(bool canModifyExisting) {
    if (canModifyExisting == m_morvel->CanModifyExisting())
        return;
    m_morvel->SetCanModifyExisting(canModifyExisting);
    if (!m_morvel->FieldDefs())
        return;
    // The locks are set when a field is shown: show the selected one again.
    const FormBinding::FocusHold hold(*m_binding, nullptr);
    guarded(this, [&] { m_morvel->ShowSelectedRow(); });
}

bool MorvelWidget::canModifyExisting() const {
    return m_morvel->CanModifyExisting();
}

std::shared_ptr<FieldDef> MorvelWidget::selectedField() const {
    return m_morvel->SelectedFieldDef();
}

void MorvelWidget::find() {
    runFromTheList(&control::Morvel::cmdFind_Click);
}

void MorvelWidget::findNext() {
    runFromTheList(&control::Morvel::cmdFindNext_Click);
}

void MorvelWidget::runFromTheList(void (control::Morvel::*handler)()) {
    control::Morvel& morvel = *m_morvel;
    const FormBinding::FocusHold hold(*m_binding, &morvel.lst);
    // Leaving the box first stores what was typed into the field it was typed for, as a click
    // on the control's own button would; a refused edit stops here, with its message.
    if (guarded(this, [&] { morvel.lst.setFocus(); }))
        guarded(this, [&] { (morvel.*handler)(); });
}

QByteArray MorvelWidget::saveLayoutState() const {
    QByteArray state;
    QDataStream out(&state, QIODevice::WriteOnly);
    out << kLayoutMagic << m_binding->widgetAs<QTreeView>(m_morvel->lst)->header()->saveState()
        << qint32(m_binding->split());
    return state;
}

bool MorvelWidget::restoreLayoutState(const QByteArray& state) {
    QDataStream in(state);
    quint32 magic = 0;
    QByteArray columns;
    qint32 split = 0;
    in >> magic >> columns >> split;
    if (in.status() != QDataStream::Ok || magic != kLayoutMagic ||
        !m_binding->widgetAs<QTreeView>(m_morvel->lst)->header()->restoreState(columns))
        return false;
    placeSplit(split);
    return true;
}

void MorvelWidget::placeSplit(int pixels) {
    const control::Morvel& morvel = *m_morvel;
    const auto& tree = *m_binding->widgetAs<QTreeView>(morvel.lst);
    const int rowsKept =
        tree.header()->sizeHint().height() + kRowsKeptInView * (tree.fontMetrics().height() + 4);
    const int most = m_binding->scale().toPixels(morvel.lst.height()) - rowsKept;
    m_binding->setSplit(morvel.lst, morvel.TabStrip, std::clamp(pixels, 0, std::max(most, 0)));
    const QRect list = m_binding->placeOf(morvel.lst);
    const QRect strip = m_binding->placeOf(morvel.TabStrip);
    m_splitHandle->setGeometry(0, list.bottom() + 1, width(), strip.top() - list.bottom() - 1);
    m_splitHandle->raise();
}

void MorvelWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // The binding has laid the designer out for the new size already (it filters the event).
    placeSplit(m_binding->split());
}

void MorvelWidget::commitEdit() {
    m_binding->releaseFocus();
}

QSize MorvelWidget::sizeHint() const {
    const TwipScale& scale = m_binding->scale();
    return {scale.toPixels(9600), scale.toPixels(7200)};
}

} // namespace morvel::qt
