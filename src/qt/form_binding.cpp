// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/form_binding.h"

#include "qt/control_binder.h"
#include "qt/focus_ring.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <algorithm>

namespace morvel::qt {

// The form itself: its caption is the window title, and a dialog's size follows the form's.
class FormBinding::RootBinder : public ControlBinder {
public:
    RootBinder(FormBinding& binding, view::Form& form, QWidget& root)
        : ControlBinder(binding, form, root)
        , m_form(form) {}

protected:
    // The root stands for the form, which never holds the focus itself.
    bool eventFilter(QObject*, QEvent*) override { return false; }

private:
    void toWidget(view::Property what) override {
        switch (what) {
        case view::Property::Caption:
            widget().setWindowTitle(QString::fromStdString(m_form.caption()));
            return;
        case view::Property::Geometry:
            binding().showFormSize();
            return;
        case view::Property::Visible:
        case view::Property::Focus:
            return;
        default:
            ControlBinder::toWidget(what);
        }
    }

    view::Form& m_form;
};

namespace {

// The designs are measured in twips for 8-point text in Tahoma or MS Sans Serif: the widgets use
// that size, and a narrow sans serif where those fonts are missing, so captions fit their places.
void useTheDesignFont(QWidget& root) {
    static const bool substituted = [] {
        const QStringList narrow{"DejaVu Sans Condensed", "Liberation Sans Narrow", "Arial"};
        QFont::insertSubstitutions("Tahoma", narrow);
        QFont::insertSubstitutions("MS Sans Serif", narrow);
        return true;
    }();
    (void)substituted;
    QFont font = root.font();
    font.setFamily("Tahoma");
    font.setPointSize(8);
    root.setFont(font);
}

} // namespace

FormBinding::FormBinding(view::Form& form, QWidget& root, RootSize rootSize)
    : m_form(form)
    , m_root(root)
    , m_scale(TwipScale::of(root))
    , m_rootSize(rootSize) {
    useTheDesignFont(root);
    m_binders.push_back(std::make_unique<RootBinder>(*this, form, root));
    m_byControl.emplace(&form, m_binders.back().get());
    build(form, root);
    for (const auto& binder : m_binders)
        binder->refresh();
    applyTabOrder();
    m_root.installEventFilter(this);
    new FocusRing(root);
}

FormBinding::~FormBinding() = default;

void FormBinding::build(view::Container& container, QWidget& parent) {
    for (view::Control* child : container.children()) {
        m_binders.push_back(makeBinder(*this, *child, parent));
        ControlBinder& binder = *m_binders.back();
        m_byControl.emplace(child, &binder);
        if (auto* inner = dynamic_cast<view::Container*>(child))
            build(*inner, binder.widget());
    }
}

void FormBinding::applyTabOrder() {
    std::vector<ControlBinder*> chain;
    for (const auto& binder : m_binders)
        if (&binder->widget() != &m_root && binder->widget().focusPolicy() & Qt::TabFocus)
            chain.push_back(binder.get());
    std::stable_sort(chain.begin(), chain.end(), [](ControlBinder* a, ControlBinder* b) {
        return a->control().tabIndex() < b->control().tabIndex();
    });
    for (std::size_t i = 1; i < chain.size(); ++i)
        QWidget::setTabOrder(&chain[i - 1]->widget(), &chain[i]->widget());
}

QWidget* FormBinding::widgetFor(const view::Control& control) const {
    auto found = m_byControl.find(&control);
    return found == m_byControl.end() ? nullptr : &found->second->widget();
}

FormBinding::FocusHold::FocusHold(FormBinding& binding, view::Control* keeper)
    : m_binding(binding)
    , m_keeper(keeper) {
    ++m_binding.m_focusHolds;
}

FormBinding::FocusHold::~FocusHold() {
    if (--m_binding.m_focusHolds > 0 || !m_keeper)
        return;
    guarded(&m_binding.m_root, [&] { m_binding.m_form.setFocusTo(*m_keeper); });
    if (QWidget* widget = m_binding.widgetFor(*m_keeper); widget && m_keeper->hasFocus())
        widget->setFocus(Qt::OtherFocusReason);
}

void FormBinding::mirrorFocus(QWidget& widget) {
    if (m_focusHolds > 0 || (m_showingData && m_showingData()) || widget.hasFocus())
        return;
    widget.setFocus(Qt::OtherFocusReason);
}

void FormBinding::focusEntered(view::Control& control) {
    if (m_mirroring > 0)
        return;
    guarded(&m_root, [&] { m_form.setFocusTo(control); });
}

void FormBinding::focusLeft(Qt::FocusReason reason) {
    // Another window (a dialog, a message box, a drop-down) takes the focus for a while: the
    // control keeps it, as it would in a form.
    if (m_mirroring > 0 || reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return;
    QWidget* next = QApplication::focusWidget();
    if (next && (next == &m_root || m_root.isAncestorOf(next)))
        return;
    releaseFocus();
}

void FormBinding::setSplit(const view::Control& upper, const view::Control& lower, int pixels) {
    m_split = {&upper, &lower, std::max(pixels, 0)};
    for (const auto& binder : m_binders)
        if (binder->control().parent() == &m_form)
            binder->widget().setGeometry(placeOf(binder->control()));
}

QRect FormBinding::placeOf(const view::Control& control) const {
    QRect place = m_scale.toPixels(control.geometry());
    if (m_split.pixels == 0 || control.parent() != &m_form)
        return place;
    if (&control == m_split.upper)
        return place.adjusted(0, 0, 0, -m_split.pixels);
    const view::Control& upper = *m_split.upper;
    if (control.top() < upper.top() + upper.height())
        return place;
    place.translate(0, -m_split.pixels);
    return &control == m_split.lower ? place.adjusted(0, 0, 0, m_split.pixels) : place;
}

void FormBinding::releaseFocus() {
    guarded(&m_root, [&] { m_form.clearFocus(); });
}

bool FormBinding::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &m_root && event->type() == QEvent::Resize)
        rootResized();
    return false;
}

void FormBinding::rootResized() {
    const std::int32_t frameWidth = m_form.width() - m_form.scaleWidth();
    const std::int32_t frameHeight = m_form.height() - m_form.scaleHeight();
    const std::int32_t width = m_scale.toTwips(m_root.width()) + frameWidth;
    const std::int32_t height = m_scale.toTwips(m_root.height()) + frameHeight;
    if (width == m_form.width() && height == m_form.height())
        return;
    m_resizingRoot = true;
    guarded(&m_root, [&] { m_form.move(m_form.left(), m_form.top(), width, height); });
    m_resizingRoot = false;
}

void FormBinding::showFormSize() {
    if (m_rootSize != RootSize::FollowsForm || m_resizingRoot)
        return;
    m_root.resize(m_scale.toPixels(m_form.scaleWidth()), m_scale.toPixels(m_form.scaleHeight()));
}

} // namespace morvel::qt
