#include "qt/qt_modal_host.h"

#include "dialogs/frm_locale.h"
#include "qt/error_boundary.h"
#include "qt/form_binding.h"
#include "view/form.h"

#include <QDialog>
#include <QHeaderView>
#include <QTreeView>

namespace morvel::qt {

namespace {

// The locale editor sizes its columns to their texts but leaves the widths for the front end to
// apply, as a list view's own columns keep their design widths.
void showComputedColumnWidths(view::Form& form, const FormBinding& binding) {
    auto* locale = dynamic_cast<dialogs::frmLocale*>(&form);
    if (!locale)
        return;
    auto* tree = binding.widgetAs<QTreeView>(locale->lstLocale);
    const std::vector<std::int32_t>& widths = locale->columnWidths();
    for (std::size_t i = 0; tree && i < widths.size(); ++i)
        tree->header()->resizeSection(static_cast<int>(i), binding.scale().columnPixels(widths[i]));
}

} // namespace

void QtModalHost::showModal(view::Form& form) {
    QDialog dialog(m_parent ? m_parent->window() : nullptr);
    if (m_parent)
        dialog.setFont(m_parent->font());
    FormBinding binding(form, dialog, FormBinding::RootSize::FollowsForm);
    // A form that lays itself out on Resize can grow; any other keeps its design size.
    if (form.Resize.empty())
        dialog.setFixedSize(dialog.size());
    else
        dialog.setMinimumSize(dialog.size());
    showComputedColumnWidths(form, binding);
    Connection closed = form.Closed.connect([&dialog] { dialog.done(QDialog::Accepted); });
    form.opened();
    if (m_hook)
        m_hook(dialog);
    if (form.isOpen())
        dialog.exec();
    closed.disconnect();
    // The window was closed by the person rather than by the form's own code.
    if (form.isOpen())
        guarded(m_parent, [&] { form.close(); });
}

} // namespace morvel::qt
