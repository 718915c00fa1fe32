#pragma once

#include "fields/field_def.h"
#include "view/form.h"
#include "view/modal_host.h"
#include "view/prompter.h"

#include <memory>

namespace morvel::dialogs {

// The modal locale editor: display names, descriptions and (for "Link" fields) link locales of
// one field per locale, written to the field as they are typed.
class frmLocale : public view::Form {
public:
    frmLocale(view::Prompter& prompter, view::ModalHost& modalHost);
    ~frmLocale() override;

    // Prepares the dialog for the field and shows it modally; returns when it is closed.
    void ShowForm(std::shared_ptr<morvel::FieldDef> poFieldDef);

    // Controls and handlers follow.

private:
    view::Prompter& m_prompter;
    view::ModalHost& m_modalHost;
    std::shared_ptr<morvel::FieldDef> m_fieldDef;
};

} // namespace morvel::dialogs
