// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "reliability/designer_invariants.h"

#include "base/text.h"
#include "catalogue/field_types.h"
#include "catalogue/security.h"
#include "catalogue/setting_boxes.h"
#include "catalogue/validation.h"
#include "control/setting_values.h"
#include "fields/field_utility.h"

#include <algorithm>
#include <span>
#include <sstream>
#include <string_view>
#include <vector>

namespace morvel::reliability {

namespace {

namespace type = catalogue::type;

// Collects the first broken rule; later checks are skipped once one failed.
class Verdict {
public:
    bool ok() const { return m_message.empty(); }
    void require(bool holds, const std::string& what) {
        if (!holds && ok())
            m_message = what;
    }
    template <typename A, typename B>
    void equal(const A& shown, const B& expected, const std::string& what) {
        if (!ok() || shown == expected)
            return;
        std::ostringstream out;
        out << what << ": shows \"" << shown << "\", expected \"" << expected << "\"";
        m_message = out.str();
    }
    std::optional<std::string> result() const {
        return ok() ? std::nullopt : std::optional<std::string>(m_message);
    }

private:
    std::string m_message;
};

// The name box corrects every change of its text, also the one that shows a field: a stored name
// that begins with digits is shown without them (and leaving the box then renames the field).
std::string shownName(std::string name) {
    for (;;) {
        const std::string_view trimmed = trimBlanks(name);
        if (trimmed.empty() || trimmed.front() < '0' || trimmed.front() > '9')
            return name;
        name = std::string(trimmed.substr(1));
    }
}

// A pick list shows the entry with the stored item data, or none when no entry has it.
void checkSelection(Verdict& verdict, const view::ComboBox& box, std::int32_t value) {
    std::int32_t expected = -1;
    for (std::int32_t i = 0; i < box.listCount() && expected < 0; ++i)
        if (box.itemData(i) == value)
            expected = i;
    verdict.equal(box.listIndex(), expected,
                  box.name() + " selection for item data " + std::to_string(value));
}

void checkEntries(Verdict& verdict, const view::ComboBox& box,
                  std::span<const catalogue::Choice> choices) {
    std::string shown;
    for (std::int32_t i = 0; i < box.listCount(); ++i)
        shown += std::to_string(box.itemData(i)) + " ";
    std::string expected;
    for (const catalogue::Choice& choice : choices)
        expected += std::to_string(choice.itemData) + " ";
    verdict.equal(shown, expected, box.name() + " entries");
}

class PanelCheck {
public:
    PanelCheck(Verdict& verdict, const control::Morvel& designer, const FieldDef& field,
               const std::set<std::string>& pending)
        : m_verdict(verdict)
        , m_designer(designer)
        , m_field(field)
        , m_pending(pending) {}

    // The box shows what is stored, unless it is pending.
    template <typename Box> void shows(const Box& box, const std::string& expected) {
        if (!m_pending.contains(box.name()))
            m_verdict.equal(box.text(), expected, box.name());
    }

    void general() {
        const auto& d = m_designer;
        shows(d.txtName, shownName(m_field.Name()));
        shows(d.txtSize, std::to_string(m_field.Size()));
        shows(d.txtDisplayName, m_field.DisplayName());
        shows(d.txtDescription, m_field.Description());
        shows(d.txtDefault, m_field.DefaultValue());
        shows(d.txtCtrlEdit, m_field.CtrlEdit());
        shows(d.txtCtrlReadOnly, m_field.CtrlReadOnly());
        shows(d.txtCtrlList, m_field.CtrlList());
        m_verdict.equal(d.chkCreateOnDemand.value(), m_field.CreateOnDemand() ? 1 : 0,
                        "chkCreateOnDemand");
        checkSelection(m_verdict, d.cboType, m_field.FieldType());
        checkSelection(m_verdict, d.cboValidation, m_field.Validation());
    }

    // Every setting box of the type's page shows its stored setting or its read default.
    void typePage() {
        const PropertyStore& stored = m_field.Properties();
        for (const catalogue::SettingBox& row : catalogue::settingBoxes()) {
            if (row.shownKey.empty() || !row.types(m_field.FieldType()))
                continue;
            const view::Control& box = m_designer.settingControl(row);
            if (m_pending.contains(box.name()))
                continue;
            const auto* list = dynamic_cast<const view::ComboBox*>(&box);
            switch (row.shown) {
            case catalogue::Shown::Text:
            case catalogue::Shown::Number:
                m_verdict.equal(list ? list->text()
                                     : dynamic_cast<const view::TextBox&>(box).text(),
                                control::shownText(row, stored), box.name());
                break;
            case catalogue::Shown::ItemData:
                checkSelection(m_verdict, *list, control::shownNumber(row, stored));
                break;
            case catalogue::Shown::EntryText:
                checkEntryText(*list, control::shownText(row, stored));
                break;
            case catalogue::Shown::Checked:
                // True is kept as a Boolean; a stored -1 reads as True as well.
                m_verdict.equal(dynamic_cast<const view::CheckBox&>(box).value(),
                                control::shownNumber(row, stored) == -1 ? 1 : 0, box.name());
                break;
            }
            if (row.fill != catalogue::Fill::None)
                checkFill(row, *list);
        }
        if (catalogue::isDirectLinkType(m_field.FieldType()))
            linkControls();
    }

private:
    std::int32_t shownNumberOf(std::string_view box) const {
        return control::shownNumber(catalogue::settingOf(box), m_field.Properties());
    }

    void checkFill(const catalogue::SettingBox& row, const view::ComboBox& list) {
        using catalogue::Fill;
        if (row.fill == Fill::CipherKeyLengths)
            checkEntries(m_verdict, list,
                         catalogue::cipherKeyLengths(shownNumberOf("cboEncryption")));
        if (row.fill == Fill::HashKeyLengths)
            checkEntries(m_verdict, list,
                         catalogue::hashKeyLengths(shownNumberOf("cboSignatureHash")));
        if (row.fill != Fill::LinkFields)
            return;
        std::vector<std::string> shown;
        shown.reserve(static_cast<std::size_t>(list.listCount()));
        for (std::int32_t i = 0; i < list.listCount(); ++i)
            shown.push_back(list.list(i));
        std::vector<std::string> links;
        if (const FieldDefs* fields = m_field.collection())
            for (const auto& each : *fields)
                if (each->FieldType() == type::Link)
                    links.push_back(each->Name());
        std::sort(shown.begin(), shown.end());
        std::sort(links.begin(), links.end());
        m_verdict.require(shown == links, list.name() + " lists the collection's \"Link\" fields");
    }

    // The entry of that text, letter case ignored, is selected; none when the list has none.
    void checkEntryText(const view::ComboBox& list, const std::string& text) {
        std::int32_t match = -1;
        for (std::int32_t i = 0; i < list.listCount() && match < 0; ++i)
            if (equalsIgnoringCase(list.list(i), text))
                match = i;
        const std::int32_t index = list.listIndex();
        if (match < 0)
            m_verdict.equal(index, -1, list.name() + " selection for \"" + text + "\"");
        else
            m_verdict.require(index >= 0 && equalsIgnoringCase(list.list(index), text),
                              list.name() + " selects \"" + text + "\"");
    }

    // The page shows the object-link or the table-link controls, as the box's number says.
    void linkControls() {
        const auto& d = m_designer;
        const bool toObjects = FieldUtility::ToLong(d.txtObjectType.text()) != 0;
        using Controls = std::initializer_list<const view::Control*>;
        for (const view::Control* control :
             Controls{&d.txtCoreFilter, &d.txtAdditionalFilter, &d.txtOrderField, &d.txtStatus})
            m_verdict.equal(control->visible(), toObjects, control->name() + " visible");
        for (const view::Control* control :
             Controls{&d.txtLinkIDField, &d.txtLinkDisplayField, &d.txtLinkSelect})
            m_verdict.equal(control->visible(), !toObjects, control->name() + " visible");
    }

    Verdict& m_verdict;
    const control::Morvel& m_designer;
    const FieldDef& m_field;
    const std::set<std::string>& m_pending;
};

void checkRows(Verdict& verdict, const control::Morvel& designer, const FieldDefs* fields) {
    const view::ListView& lst = designer.lst;
    verdict.equal(lst.count(), fields ? fields->Count() : 0, "number of rows");
    const auto column = [&](const char* key) { return lst.columnIndex(key) - 1; };
    const std::int32_t size = column("Size");
    const std::pair<std::int32_t, const char*> cells[] = {
        {column("Type"), "type"},
        {column("DisplayName"), "display name"},
        {column("Validation"), "validation"},
        {column("CtrlReadOnly"), "read-only ctrl"},
        {column("CtrlEdit"), "edit ctrl"},
        {column("CtrlList"), "list ctrl"}};
    // Checked after every event over every row: nothing is built unless a row is wrong.
    for (std::int32_t i = 1; i <= lst.count() && verdict.ok(); ++i) {
        const view::ListItem& row = lst.item(i);
        const auto field = fields ? fields->find(row.key()) : nullptr;
        const auto where = [&] {
            return "row " + std::to_string(i) + " \"" + std::string(row.key()) + "\"";
        };
        if (!field || row.text() != row.key() || field->Name() != row.key() ||
            fields->Item(i) != field) {
            verdict.equal(row.text(), row.key(), where() + " text");
            verdict.require(field && field->Name() == row.key(), where() + " is a field's name");
            verdict.require(field && fields->Item(i) == field,
                            where() + " stands in collection order");
            return;
        }
        const std::string_view expected[] = {catalogue::typeName(field->FieldType()),
                                             field->DisplayName(),
                                             catalogue::validationName(field->Validation()),
                                             field->CtrlReadOnly(),
                                             field->CtrlEdit(),
                                             field->CtrlList()};
        for (std::size_t c = 0; c < std::size(cells); ++c)
            if (row.subItem(cells[c].first) != expected[c])
                verdict.equal(row.subItem(cells[c].first), expected[c],
                              where() + " " + cells[c].second);
        // The size cell shows what was typed, which converts to the stored size. Other types show
        // none, unless typed into: the size box stays visible after a field with a size.
        const std::string_view sizeCell = row.subItem(size);
        if ((catalogue::hasSize(field->FieldType()) || !sizeCell.empty()) &&
            FieldUtility::ToLong(sizeCell) != field->Size())
            verdict.equal(FieldUtility::ToLong(sizeCell), field->Size(), where() + " size");
    }
}

} // namespace

std::optional<std::string> checkDesigner(const control::Morvel& designer, const FieldDefs* fields,
                                         const std::set<std::string>& pending) {
    Verdict verdict;
    checkRows(verdict, designer, fields);

    const auto& current = designer.SelectedFieldDef();
    const view::ListItem* selected = designer.lst.selectedItem();
    if (designer.lst.count() == 0) {
        verdict.require(!current, "SelectedFieldDef is none with an empty list");
    } else {
        verdict.require(selected != nullptr, "a row is selected");
        verdict.require(selected && current && fields && fields->find(selected->key()) == current,
                        "SelectedFieldDef is the selected row's field");
    }

    const view::TabStrip& tabs = designer.TabStrip;
    verdict.require(tabs.count() >= 1 && tabs.count() <= 2, "one or two tabs");
    verdict.equal(tabs.caption(1), std::string("Properties"), "tab 1");
    using catalogue::TypePage;
    const TypePage page = current ? catalogue::typePage(current->FieldType()) : TypePage::None;
    const bool hasPage = page != TypePage::None;
    verdict.equal(tabs.count(), hasPage ? 2 : 1, "number of tabs");
    if (hasPage && tabs.count() == 2)
        verdict.equal(tabs.caption(2), std::string(catalogue::tabCaption(page)), "tab 2");
    const std::int32_t panel =
        tabs.selectedIndex() == 1 ? 1 : (hasPage ? static_cast<std::int32_t>(page) : 0);
    for (std::int32_t i = 1; i <= control::PanelArray::kCount; ++i)
        verdict.equal(designer.pic(i).visible(), i == panel,
                      "pic(" + std::to_string(i) + ") visible");

    if (!verdict.ok())
        return verdict.result();
    if (!current) {
        for (const view::TextBox* box : {&designer.txtName, &designer.txtSize,
                                         &designer.txtDisplayName, &designer.txtDescription})
            verdict.require(!box->enabled(), box->name() + " is disabled with no field");
        return verdict.result();
    }
    PanelCheck check(verdict, designer, *current, pending);
    check.general();
    if (hasPage)
        check.typePage();
    return verdict.result();
}

std::optional<std::string> checkLocaleEditor(const dialogs::frmLocale& form, const FieldDef& field,
                                             const std::set<std::pair<std::string, int>>& blank) {
    Verdict verdict;
    const view::ListView& list = form.lstLocale;
    for (std::int32_t i = 1; i <= list.count() && verdict.ok(); ++i) {
        const view::ListItem& row = list.item(i);
        const std::string n = std::to_string(FieldUtility::ToLong(row.key().substr(1)));
        const std::string key(row.key());
        if (!blank.contains({key, 1}))
            verdict.equal(row.subItem(1), field.LocaleDisplayName(n),
                          "locale " + n + " display name");
        if (!blank.contains({key, 2}))
            verdict.equal(row.subItem(2), field.LocaleDescription(n),
                          "locale " + n + " description");
    }
    return verdict.result();
}

} // namespace morvel::reliability
