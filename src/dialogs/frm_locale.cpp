// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "dialogs/frm_locale.h"

#include "base/error.h"
#include "catalogue/field_types.h"
#include "fields/field_utility.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace morvel::dialogs {

namespace {

// Design sizes and tops (twips). The dialog grows for "Link" fields to show the link locale row.
constexpr std::int32_t kFormWidth = 6615;
constexpr std::int32_t kPlainHeight = 4725;
constexpr std::int32_t kLinkHeight = 5145;
constexpr std::int32_t kPlainButtonTop = 3720;
constexpr std::int32_t kLinkButtonTop = 4080;
constexpr std::int32_t kFrameWidth = 120;
constexpr std::int32_t kFrameHeight = 480;
constexpr std::int32_t kLabelLeft = 120;
constexpr std::int32_t kLabelWidth = 1215;
constexpr std::int32_t kBoxLeft = 1440;
constexpr std::int32_t kBoxWidth = 4935;
constexpr std::int32_t kRowHeight = 285;
constexpr std::int32_t kButtonWidth = 1095;
constexpr std::int32_t kButtonHeight = 375;

// Text width estimate for sizing columns: an average character of the dialog's font at 96 dpi,
// plus the cell's padding, in pixels; 2646 hundredths of a millimetre are 100 pixels.
constexpr std::int64_t kPixelsPerCharacter = 7;
constexpr std::int64_t kCellPaddingPixels = 12;
constexpr std::int64_t kHundredthsMmPer100Pixels = 2646;

bool startsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}

// The text from the 0-based position on; empty when the text is shorter, so that a stray short
// key in a store reads as an empty locale rather than failing.
std::string from(const std::string& text, std::size_t position) {
    return position < text.size() ? text.substr(position) : std::string();
}

// The locale number N of a row: its key without the leading "K", as a whole number.
std::string localeOf(const view::ListItem& item) {
    return std::to_string(FieldUtility::ToLong(std::string_view(item.key()).substr(1)));
}

std::int64_t characterCount(std::string_view text) {
    // UTF-8 continuation bytes do not start a character.
    return std::count_if(text.begin(), text.end(),
                         [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
}

std::int32_t estimatedWidth(std::string_view text) {
    const std::int64_t pixels = characterCount(text) * kPixelsPerCharacter + kCellPaddingPixels;
    return static_cast<std::int32_t>((pixels * kHundredthsMmPer100Pixels + 50) / 100);
}

} // namespace

frmLocale::frmLocale(view::Prompter& prompter, view::ModalHost& modalHost)
    : view::Form("frmLocale")
    , lstLocale(this, "lstLocale")
    , Label1(this, "Label1")
    , txtLCID(this, "txtLCID")
    , lblDisplayName(this, "lblDisplayName")
    , txtDisplayName(this, "txtDisplayName")
    , lblDescription(this, "lblDescription")
    , txtDescription(this, "txtDescription")
    , lblLinkLocale(this, "lblLinkLocale")
    , txtLinkLocale(this, "txtLinkLocale")
    , cmdAddLocale(this, "cmdAddLocale")
    , cmdDeleteLocale(this, "cmdDeleteLocale")
    , cmdClose(this, "cmdClose")
    , m_prompter(prompter)
    , m_modalHost(modalHost) {
    designControls();
    wireEvents();
}

frmLocale::~frmLocale() = default;

void frmLocale::designControls() {
    setCaption("Locale");
    setFrame(kFrameWidth, kFrameHeight);
    setGeometry({0, 0, kFormWidth, kPlainHeight});
    setFontName("Tahoma");
    for (view::Control* control : children())
        control->setFontName("Tahoma");
    txtLCID.setFontName("MS Sans Serif");

    // Column widths in hundredths of a millimetre, until AdjustColumnWidth sizes them.
    lstLocale.addColumn("LocaleID", "Locale ID", 2000);
    lstLocale.addColumn("DisplayName", "Display Name", 4000);
    lstLocale.addColumn("Description", "Description", 4800);
    lstLocale.move(120, 120, 6255, 1935);

    const struct {
        view::Label& label;
        const char* caption;
        view::TextBox& box;
        std::int32_t top;
        std::int32_t boxWidth;
    } rows[] = {
        {Label1, "Locale ID", txtLCID, 2160, 1335},
        {lblDisplayName, "Display Name", txtDisplayName, 2520, kBoxWidth},
        {lblDescription, "Description", txtDescription, 2880, kBoxWidth},
        {lblLinkLocale, "Link Locale", txtLinkLocale, 3240, kBoxWidth},
    };
    std::int32_t tabIndex = 0;
    lstLocale.setTabIndex(tabIndex++);
    for (const auto& row : rows) {
        row.label.setCaption(row.caption);
        row.label.move(kLabelLeft, row.top + 45, kLabelWidth, 255);
        row.box.move(kBoxLeft, row.top, row.boxWidth, kRowHeight);
        row.box.setTabIndex(tabIndex++);
    }

    cmdAddLocale.setCaption("Add");
    cmdAddLocale.move(120, kPlainButtonTop, kButtonWidth, kButtonHeight);
    cmdDeleteLocale.setCaption("Delete");
    cmdDeleteLocale.move(1335, kPlainButtonTop, kButtonWidth, kButtonHeight);
    cmdClose.setCaption("Close");
    cmdClose.move(5280, kPlainButtonTop, kButtonWidth, kButtonHeight);
    for (view::Button* button : {&cmdAddLocale, &cmdDeleteLocale, &cmdClose})
        button->setTabIndex(tabIndex++);
}

void frmLocale::wireEvents() {
    m_wiring += cmdAddLocale.Click.connect([this] { cmdAddLocale_Click(); });
    m_wiring += cmdDeleteLocale.Click.connect([this] { cmdDeleteLocale_Click(); });
    m_wiring += cmdClose.Click.connect([this] { cmdClose_Click(); });
    m_wiring +=
        lstLocale.ItemClick.connect([this](view::ListItem& item) { lstLocale_ItemClick(item); });
    m_wiring += txtDisplayName.Change.connect([this] {
        if (!m_showingText)
            txtDisplayName_Change();
    });
    m_wiring += txtDescription.Change.connect([this] {
        if (!m_showingText)
            txtDescription_Change();
    });
    m_wiring += txtLinkLocale.Change.connect([this] {
        if (!m_showingText)
            txtLinkLocale_Change();
    });
}

morvel::FieldDef& frmLocale::field() const {
    if (!m_fieldDef)
        throw NoCurrentFieldError();
    return *m_fieldDef;
}

bool frmLocale::isLinkField() const {
    return field().FieldType() == catalogue::type::Link;
}

view::ListItem& frmLocale::selectedLocale() const {
    if (view::ListItem* item = lstLocale.selectedItem())
        return *item;
    throw NotFoundError("No locale is selected.", lstLocale.name(), "");
}

void frmLocale::showText(view::TextBox& box, std::string text) {
    const bool wasShowing = std::exchange(m_showingText, true);
    try {
        box.setText(std::move(text));
    } catch (...) {
        m_showingText = wasShowing;
        throw;
    }
    m_showingText = wasShowing;
}

void frmLocale::ShowForm(std::shared_ptr<morvel::FieldDef> poFieldDef) {
    m_fieldDef = std::move(poFieldDef);
    ArrangeForType();
    SetEditEnabled(false);
    LoadLocales();
    m_modalHost.showModal(*this);
}

void frmLocale::ArrangeForType() {
    const bool link = isLinkField();
    setHeight(link ? kLinkHeight : kPlainHeight);
    lblLinkLocale.setVisible(link);
    txtLinkLocale.setVisible(link);
    const std::int32_t buttonTop = link ? kLinkButtonTop : kPlainButtonTop;
    for (view::Button* button : {&cmdAddLocale, &cmdDeleteLocale, &cmdClose})
        button->setTop(buttonTop);
}

void frmLocale::SetEditEnabled(bool pbEnabled) {
    for (view::Control* control :
         std::initializer_list<view::Control*>{&lblDisplayName, &txtDisplayName, &lblDescription,
                                               &txtDescription, &lblLinkLocale, &txtLinkLocale})
        control->setEnabled(pbEnabled);
}

// Takes the rows from the first source that gives any: display-name entries, else the entries
// of a store that holds descriptions only, else (for "Link" fields) the link locales.
void frmLocale::LoadLocales() {
    morvel::FieldDef& target = field();
    const PropertyStore& locales = target.Locales();
    lstLocale.clear();

    for (const ListEntry& entry : locales) {
        if (!startsWith(entry.Key, "DN"))
            continue;
        const std::string n = from(entry.Key, 2);
        lstLocale.add("K" + n, n).setSubItem(1, entry.Value.toText());
    }
    for (std::int32_t i = 1; i <= lstLocale.count(); ++i) {
        view::ListItem& item = lstLocale.item(i);
        item.setSubItem(2, target.LocaleDescription(localeOf(item)));
    }

    if (lstLocale.count() == 0 && locales.Count() != 0) {
        for (const ListEntry& entry : locales) {
            const std::string n = from(entry.Key, 1);
            lstLocale.add("K" + n, n).setSubItem(2, entry.Value.toText());
        }
    }

    if (lstLocale.count() == 0 && isLinkField()) {
        for (const ListEntry& entry : target.Properties()) {
            if (!startsWith(entry.Key, "LDN"))
                continue;
            const std::string n = from(entry.Key, 3);
            lstLocale.add("K" + n, n);
        }
    }

    cmdDeleteLocale.setEnabled(false);
    AdjustColumnWidth(lstLocale, true);

    // A report list that is filled selects its first row; the editing below depends on it.
    if (lstLocale.count() > 0 && !lstLocale.selectedItem())
        lstLocale.setSelectedItem(&lstLocale.item(1));
    if (lstLocale.count() > 0 && lstLocale.selectedItem()) {
        ShowSelectedLocale();
        SetEditEnabled(true);
        cmdDeleteLocale.setEnabled(true);
    }
}

void frmLocale::ShowSelectedLocale() {
    const std::string n = localeOf(selectedLocale());
    showText(txtDisplayName, field().LocaleDisplayName(n));
    showText(txtDescription, field().LocaleDescription(n));
    if (isLinkField())
        showText(txtLinkLocale, field().Properties().GetValue("LDN" + n, "").toText());
}

void frmLocale::lstLocale_ItemClick(view::ListItem& /*Item*/) {
    ShowSelectedLocale();
}

void frmLocale::cmdAddLocale_Click() {
    const std::string answer = m_prompter.inputBox({"What is the Locale ID?", "Locale", ""});
    if (answer.empty())
        return;
    if (!FieldUtility::IsNumeric(answer)) {
        m_prompter.messageBox({"Locale ID must be a numeric value", view::MsgBoxButtons::OK,
                               view::MsgBoxIcon::Information, "Locale"});
        return;
    }
    txtLCID.setText(std::to_string(FieldUtility::ToLong(std::string_view(answer))));
    // A locale already listed fails here on its taken key.
    view::ListItem& item = lstLocale.add("K" + txtLCID.text(), txtLCID.text());
    lstLocale.setSelectedItem(&item);
    SetEditEnabled(true);
    // Nothing reaches the field until a text is typed for the new locale.
    showText(txtDisplayName, "");
    showText(txtDescription, "");
    cmdDeleteLocale.setEnabled(true);
}

void frmLocale::txtDisplayName_Change() {
    view::ListItem& item = selectedLocale();
    item.setSubItem(1, txtDisplayName.text());
    field().SetLocaleDisplayName(localeOf(item), txtDisplayName.text());
}

void frmLocale::txtDescription_Change() {
    view::ListItem& item = selectedLocale();
    item.setSubItem(2, txtDescription.text());
    field().SetLocaleDescription(localeOf(item), txtDescription.text());
}

void frmLocale::txtLinkLocale_Change() {
    const std::string n = localeOf(selectedLocale());
    field().Properties().SetValue("LDN" + n, Value(txtLinkLocale.text()), true);
}

void frmLocale::cmdDeleteLocale_Click() {
    view::ListItem* item = lstLocale.selectedItem();
    if (!item)
        return;
    const view::MsgBoxResult answer = m_prompter.messageBox(
        {"Are you sure you want to remove the locale " + std::string(item->text()),
         view::MsgBoxButtons::YesNo, view::MsgBoxIcon::Information, ""});
    if (answer != view::MsgBoxResult::Yes)
        return;

    const std::string n = localeOf(*item);
    const std::string key(item->key());
    lstLocale.remove(key);
    field().Locales().Remove("DN" + n);
    field().Locales().Remove("D" + n);
    showText(txtDisplayName, "");
    showText(txtDescription, "");
    if (isLinkField()) {
        field().Properties().Remove("LDN" + n);
        showText(txtLinkLocale, "");
    }
}

void frmLocale::cmdClose_Click() {
    close();
}

void frmLocale::AdjustColumnWidth(view::ListView& poListView, bool pAccountForHeaders) {
    for (std::int32_t column = 1; column <= poListView.columnCount(); ++column) {
        std::int32_t width =
            pAccountForHeaders ? estimatedWidth(poListView.column(column).text) : 0;
        for (std::int32_t row = 1; row <= poListView.count(); ++row) {
            const view::ListItem& item = poListView.item(row);
            const std::string_view text = column == 1 ? item.text() : item.subItem(column - 1);
            width = std::max(width, estimatedWidth(text));
        }
        poListView.setColumnWidth(column, width);
    }
}

} // namespace morvel::dialogs
