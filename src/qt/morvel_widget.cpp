#include "qt/morvel_widget.h"

#include "qt/error_boundary.h"

#include <QKeySequence>
#include <QShortcut>

namespace morvel::qt {

namespace {
// The smallest size the designer lays itself out at.
constexpr std::int32_t kMinimumWidth = 5000;
constexpr std::int32_t kMinimumHeight = 5800;
} // namespace

MorvelWidget::MorvelWidget(QWidget* parent)
    : QWidget(parent)
    , m_prompter(this)
    , m_modalHost(this)
    , m_morvel(std::make_unique<control::Morvel>(m_prompter, m_modalHost)) {
    m_binding = std::make_unique<FormBinding>(*m_morvel, *this);
    const TwipScale& scale = m_binding->scale();
    setMinimumSize(scale.toPixels(kMinimumWidth), scale.toPixels(kMinimumHeight));

    m_currentField = m_morvel->currentFieldChanged.connect(
        [this](const control::Morvel::FieldDefPtr& field) { Q_EMIT selectedFieldChanged(field); });

    auto* find = new QShortcut(QKeySequence::Find, this);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, this,
            [this] { guarded(this, [&] { m_morvel->cmdFind_Click(); }); });
    auto* findNext = new QShortcut(QKeySequence(Qt::Key_F3), this);
    findNext->setContext(Qt::WidgetWithChildrenShortcut);
    connect(findNext, &QShortcut::activated, this,
            [this] { guarded(this, [&] { m_morvel->cmdFindNext_Click(); }); });
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

void MorvelWidget::commitEdit() {
    m_binding->releaseFocus();
}

QSize MorvelWidget::sizeHint() const {
    const TwipScale& scale = m_binding->scale();
    return {scale.toPixels(9600), scale.toPixels(7200)};
}

} // namespace morvel::qt
