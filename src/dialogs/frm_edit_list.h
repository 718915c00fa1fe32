#pragma once

#include "fields/field_def.h"
#include "view/form.h"
#include "view/prompter.h"

#include <memory>

namespace morvel::dialogs {

// The modal list values editor: edits a copy of a list field's values in its own list and
// rewrites the field's whole list on OK; Cancel writes nothing.
class frmEditList : public view::Form {
public:
    explicit frmEditList(view::Prompter& prompter);
    ~frmEditList() override;

    const std::shared_ptr<morvel::FieldDef>& FieldDef() const { return m_fieldDef; }
    // Sets the field only; LoadData fills the list.
    void SetFieldDef(std::shared_ptr<morvel::FieldDef> poFieldDef) {
        m_fieldDef = std::move(poFieldDef);
    }
    void LoadData();

    // Controls and handlers follow.

private:
    view::Prompter& m_prompter;
    std::shared_ptr<morvel::FieldDef> m_fieldDef;
};

} // namespace morvel::dialogs
