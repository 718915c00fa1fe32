// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "fields/field_def.h"
#include "view/form.h"
#include "view/list_view.h"
#include "view/modal_host.h"
#include "view/prompter.h"
#include "view/simple_controls.h"
#include "view/text_box.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace morvel::dialogs {

// The modal locale editor: display names, descriptions and (for "Link" fields) link locales of
// one field per locale, written to the field as they are typed. There is nothing to apply or
// cancel; Close only closes.
//
// Each row of lstLocale is one locale N: key "K" & N, text N, sub items display name and
// description. The texts live in the field's Locales store under "DN" & N and "D" & N, the link
// locale in its Properties under "LDN" & N.
class frmLocale : public view::Form {
public:
    frmLocale(view::Prompter& prompter, view::ModalHost& modalHost);
    ~frmLocale() override;

    // Prepares the dialog for the field and shows it modally; returns when it is closed.
    void ShowForm(std::shared_ptr<morvel::FieldDef> poFieldDef);

    // Sizes every column of the list to its contents (and its header text when
    // pAccountForHeaders), estimated from the texts.
    void AdjustColumnWidth(view::ListView& poListView, bool pAccountForHeaders);

    // Controls, by name.
    view::ListView lstLocale;
    view::Label Label1;
    view::TextBox txtLCID;
    view::Label lblDisplayName;
    view::TextBox txtDisplayName;
    view::Label lblDescription;
    view::TextBox txtDescription;
    view::Label lblLinkLocale;
    view::TextBox txtLinkLocale;
    view::Button cmdAddLocale;
    view::Button cmdDeleteLocale;
    view::Button cmdClose;

    // Handlers; the controls' events run them. None catches errors: typing while no locale is
    // selected fails with NotFoundError.
    void cmdAddLocale_Click();
    void cmdDeleteLocale_Click();
    void cmdClose_Click();
    void lstLocale_ItemClick(view::ListItem& Item);
    void txtDisplayName_Change();
    void txtDescription_Change();
    void txtLinkLocale_Change();

private:
    void designControls();
    void wireEvents();
    void ArrangeForType();
    void SetEditEnabled(bool pbEnabled);
    void LoadLocales();
    void ShowSelectedLocale();

    // The field handed to ShowForm; NoCurrentFieldError before.
    morvel::FieldDef& field() const;
    bool isLinkField() const;
    // The selected row; NotFoundError when none is selected.
    view::ListItem& selectedLocale() const;
    // Shows text in a box without it counting as typing, so that filling or emptying the boxes
    // from code writes nothing to any locale.
    void showText(view::TextBox& box, std::string text);

    view::Prompter& m_prompter;
    view::ModalHost& m_modalHost;
    std::shared_ptr<morvel::FieldDef> m_fieldDef;
    // Set while code puts text into the boxes: their change events are then not the person's
    // typing, and the typing handlers are not run.
    bool m_showingText = false;
    Connections m_wiring;
};

} // namespace morvel::dialogs
