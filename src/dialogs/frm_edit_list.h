// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "fields/field_def.h"
#include "view/form.h"
#include "view/list_view.h"
#include "view/prompter.h"
#include "view/simple_controls.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace morvel::dialogs {

// The modal list values editor: edits a copy of a list field's values in its own list and
// rewrites the field's whole list on OK; Cancel writes nothing.
//
// The caller sets FieldDef, calls LoadData and shows the form modally. Every row of lstValues is
// one value: key "I" & value, text the display text, first sub item the value's decimal text.
// Bit-mask fields (1105, 1106) propose doubling values and accept only values with a bit set.
class frmEditList : public view::Form {
public:
    explicit frmEditList(view::Prompter& prompter);
    ~frmEditList() override;

    const std::shared_ptr<morvel::FieldDef>& FieldDef() const { return m_fieldDef; }
    // Sets the field only; LoadData fills the list.
    void SetFieldDef(std::shared_ptr<morvel::FieldDef> poFieldDef) {
        m_fieldDef = std::move(poFieldDef);
    }
    // Fills the list from the field's stored values and recomputes the largest value. A failing
    // call ends it with the error.
    void LoadData();

    // The largest value seen or handed out since LoadData; deleting a row never lowers it.
    std::int32_t largestValue() const { return m_largestValue; }

    // Controls, by name.
    view::ListView lstValues;
    view::Label lblValue;
    view::Button cmdNew;
    view::Button cmdAddSpecific;
    view::Button cmdCancel;
    view::Button cmdOK;

    // Handlers; the controls' events run them.
    void cmdNew_Click();
    void cmdAddSpecific_Click();
    void cmdOK_Click();
    void cmdCancel_Click();
    void lstValues_ItemClick(view::ListItem& Item);
    void lstValues_KeyDown(std::int32_t KeyCode, std::int32_t Shift);
    void Form_Resize();

private:
    void designControls();
    void wireEvents();
    // The field being edited; NoCurrentFieldError when none was handed over.
    morvel::FieldDef& field() const;
    // The value the add buttons propose next, or none when the field's values are used up.
    std::optional<std::int32_t> nextValue() const;
    // Asks for a value and checks it against the field's rules; none when it is refused.
    std::optional<std::int32_t> askSpecificValue(std::int32_t proposed);
    // Adds a "New Item" row for the value and starts editing its text, skipping failing steps.
    void addNewItem(std::int32_t value);
    void inform(std::string prompt);

    view::Prompter& m_prompter;
    std::shared_ptr<morvel::FieldDef> m_fieldDef;
    std::int32_t m_largestValue = 0;
    Connections m_wiring;
};

} // namespace morvel::dialogs
