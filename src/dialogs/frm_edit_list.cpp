// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "dialogs/frm_edit_list.h"

#include "base/error.h"
#include "base/handler_policy.h"
#include "catalogue/field_types.h"
#include "fields/field_utility.h"

#include <limits>
#include <string>
#include <string_view>

namespace morvel::dialogs {

namespace {

constexpr std::int32_t kDeleteKey = 46;
// The highest single bit a bit-mask value may carry; there is no doubling past it.
constexpr std::int32_t kHighestBit = 1073741824;
// Bits 0 to 30: a bit-mask value must have at least one of them set.
constexpr std::int32_t kValueBits = std::numeric_limits<std::int32_t>::max();

// Design size (twips) of the dialog, its frame, and its controls.
constexpr std::int32_t kFormWidth = 6000;
constexpr std::int32_t kFormHeight = 4500;
constexpr std::int32_t kFrameWidth = 120;
constexpr std::int32_t kFrameHeight = 480;
constexpr std::int32_t kMargin = 120;
constexpr std::int32_t kButtonHeight = 375;

std::string itemKey(std::int32_t value) {
    return "I" + std::to_string(value);
}

} // namespace

frmEditList::frmEditList(view::Prompter& prompter)
    : view::Form("frmEditList")
    , lstValues(this, "lstValues")
    , lblValue(this, "lblValue")
    , cmdNew(this, "cmdNew")
    , cmdAddSpecific(this, "cmdAddSpecific")
    , cmdCancel(this, "cmdCancel")
    , cmdOK(this, "cmdOK")
    , m_prompter(prompter) {
    designControls();
    wireEvents();
    // Sizing the form lays the controls out through Form_Resize.
    setFrame(kFrameWidth, kFrameHeight);
    setGeometry({0, 0, kFormWidth, kFormHeight});
}

frmEditList::~frmEditList() = default;

void frmEditList::designControls() {
    setCaption("List Field Values");
    setFontName("Tahoma");
    for (view::Control* control : children())
        control->setFontName("Tahoma");

    // Column widths in hundredths of a millimetre.
    lstValues.addColumn("DisplayValue", "Display Value", 6000);
    lstValues.addColumn("Value", "Value", 3400);
    lstValues.setLabelEditable(true);
    lstValues.setSortKey(0);
    lstValues.setSortAscending(true);
    lstValues.setSorted(true);
    lstValues.setTabIndex(0);

    lblValue.setCaption("Value: 0");
    lblValue.move(kMargin, 0, 2535, 255);
    cmdNew.setCaption("Add Item");
    cmdNew.move(kMargin, 0, 1215, kButtonHeight);
    cmdNew.setTabIndex(1);
    cmdAddSpecific.setCaption("Add Specific Value");
    cmdAddSpecific.move(1455, 0, 1695, kButtonHeight);
    cmdAddSpecific.setTabIndex(2);
    cmdCancel.setCaption("Cancel");
    cmdCancel.move(0, 0, 1095, kButtonHeight);
    cmdCancel.setTabIndex(3);
    cmdOK.setCaption("OK");
    cmdOK.move(0, 0, 1095, kButtonHeight);
    cmdOK.setTabIndex(4);
}

void frmEditList::wireEvents() {
    m_wiring += cmdNew.Click.connect([this] { cmdNew_Click(); });
    m_wiring += cmdAddSpecific.Click.connect([this] { cmdAddSpecific_Click(); });
    m_wiring += cmdOK.Click.connect([this] { cmdOK_Click(); });
    m_wiring += cmdCancel.Click.connect([this] { cmdCancel_Click(); });
    m_wiring +=
        lstValues.ItemClick.connect([this](view::ListItem& item) { lstValues_ItemClick(item); });
    m_wiring += lstValues.KeyDown.connect(
        [this](std::int32_t keyCode, std::int32_t shift) { lstValues_KeyDown(keyCode, shift); });
    m_wiring += Resize.connect([this] { Form_Resize(); });
}

morvel::FieldDef& frmEditList::field() const {
    if (!m_fieldDef)
        throw NoCurrentFieldError();
    return *m_fieldDef;
}

void frmEditList::LoadData() {
    lstValues.clear();
    m_largestValue = 0;
    for (const ListEntry& entry : field().ListValues()) {
        view::ListItem& item = lstValues.add("I" + entry.Key, entry.Value.toText());
        item.setSubItem(1, entry.Key);
        const std::int32_t value = FieldUtility::ToLong(std::string_view(entry.Key));
        if (value > m_largestValue)
            m_largestValue = value;
    }
}

std::optional<std::int32_t> frmEditList::nextValue() const {
    if (!catalogue::isBitMaskType(field().FieldType())) {
        // The largest whole number has no successor: nothing to propose.
        if (m_largestValue == std::numeric_limits<std::int32_t>::max())
            return std::nullopt;
        return m_largestValue + 1;
    }
    if (m_largestValue == 0)
        return 1;
    if (m_largestValue < kHighestBit)
        return m_largestValue * 2;
    return std::nullopt;
}

// Errors are skipped step by step.
void frmEditList::cmdNew_Click() {
    if (!m_fieldDef)
        return;
    const std::optional<std::int32_t> next = nextValue();
    if (!next)
        return;
    // Handed out at once, so the next click proposes the value after this one.
    m_largestValue = *next;
    addNewItem(*next);
}

// Errors are skipped step by step: only the list's steps can fail, and addNewItem skips them.
void frmEditList::cmdAddSpecific_Click() {
    if (!m_fieldDef)
        return;
    // An empty bit-mask list stops here without a word, although "Add Item" would propose 1:
    // the established behaviour, kept. The administrator adds the first value with "Add Item".
    if (catalogue::isBitMaskType(field().FieldType()) && m_largestValue == 0)
        return;
    const std::optional<std::int32_t> proposed = nextValue();
    if (!proposed)
        return;
    const std::optional<std::int32_t> value = askSpecificValue(*proposed);
    if (!value)
        return;
    if (*value > m_largestValue)
        m_largestValue = *value;
    addNewItem(*value);
}

std::optional<std::int32_t> frmEditList::askSpecificValue(std::int32_t proposed) {
    // A cancelled box gives "", which converts to 0 like any other answer.
    const std::string typed = m_prompter.inputBox(
        {"Enter the value for the new item", "New Item Value", std::to_string(proposed)});
    const std::int32_t value = FieldUtility::ToLong(std::string_view(typed));

    // Only the stored list counts: a value added in this dialog and not yet saved is not found
    // here, and adding it again fails quietly on its taken row key.
    if (field().ListValues().Lookup(std::to_string(value))) {
        inform("The value already exists in the list");
        return std::nullopt;
    }

    const std::int32_t type = field().FieldType();
    if (catalogue::isBitMaskType(type)) {
        // Deliberately loose: any value with one of bits 0 to 30 set passes (3, 5, -1 do), so
        // only -2147483648 is refused; it does not demand a single bit.
        if (value != 0 && (value & kValueBits) == 0) {
            inform("The value must be a valid bit value (eg. 1, 2, 4, 8, 16, 32, 64, etc)");
            return std::nullopt;
        }
        if (value == 0 && type == catalogue::type::MultipleBitMaskList) {
            inform("Muliple Bit Mask fields can't have a zero (0) value in the list.");
            return std::nullopt;
        }
    }

    if (value == 0) {
        const view::MsgBoxResult answer = m_prompter.messageBox(
            {"You have entered a zero (0) value. Are you sure this is the correct value?",
             view::MsgBoxButtons::YesNo, view::MsgBoxIcon::None, ""});
        if (answer != view::MsgBoxResult::Yes)
            return std::nullopt;
    }
    return value;
}

void frmEditList::addNewItem(std::int32_t value) {
    view::ListItem* item = nullptr;
    skipFailingSteps([&] { item = &lstValues.add(itemKey(value), "New Item"); },
                     [&] {
                         if (item)
                             item->setSubItem(1, std::to_string(value));
                     },
                     [&] { lstValues.setFocus(); },
                     [&] {
                         if (item)
                             lstValues.setSelectedItem(item);
                     },
                     [&] {
                         if (item)
                             lstValues.startLabelEdit(*item);
                     });
}

void frmEditList::inform(std::string prompt) {
    m_prompter.messageBox(
        {std::move(prompt), view::MsgBoxButtons::OK, view::MsgBoxIcon::Information, ""});
}

void frmEditList::lstValues_ItemClick(view::ListItem& Item) {
    lblValue.setCaption("Value: " + std::string(Item.subItem(1)));
}

void frmEditList::lstValues_KeyDown(std::int32_t KeyCode, std::int32_t /*Shift*/) {
    if (KeyCode != kDeleteKey)
        return;
    view::ListItem* selected = lstValues.selectedItem();
    if (!selected)
        return;
    // The largest value stays: a deleted value is not proposed again.
    const std::string key(selected->key());
    lstValues.remove(key);
    lstValues.setSelectedItem(nullptr);
}

// No error trap: a failing call ends the handler before the dialog closes.
void frmEditList::cmdOK_Click() {
    morvel::FieldDef& target = field();
    // Edited texts keep their rows in place; sorting again puts them in order before writing.
    lstValues.setSorted(false);
    lstValues.setSorted(true);

    PropertyStore& values = target.ListValues();
    values.Clear();
    for (std::int32_t i = 1; i <= lstValues.count(); ++i) {
        const view::ListItem& item = lstValues.item(i);
        values.SetValue(item.subItem(1), Value(std::string(item.text())), false);
    }
    target.CommitListValues();
    close();
}

void frmEditList::cmdCancel_Click() {
    close();
}

// Errors are skipped step by step: a dialog too small for a control leaves it where it was.
void frmEditList::Form_Resize() {
    const std::int32_t w = scaleWidth();
    const std::int32_t h = scaleHeight();
    skipFailingSteps(
        [&] { lstValues.move(kMargin, kMargin, w - 2 * kMargin, h - 1080); },
        [&] { lblValue.setTop(h - 855); },
        [&] {
            cmdOK.setGeometry({w - cmdOK.width() - kMargin, h - cmdOK.height() - kMargin,
                               cmdOK.width(), cmdOK.height()});
        },
        [&] {
            cmdCancel.setGeometry({cmdOK.left() - cmdCancel.width() - kMargin, cmdOK.top(),
                                   cmdCancel.width(), cmdCancel.height()});
        },
        [&] { cmdNew.setTop(cmdOK.top()); }, [&] { cmdAddSpecific.setTop(cmdOK.top()); });
}

} // namespace morvel::dialogs
