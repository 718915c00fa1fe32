// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "reliability/designer_session.h"

#include "base/error.h"
#include "base/handler_policy.h"
#include "catalogue/property_keys.h"
#include "dialogs/frm_edit_list.h"
#include "dialogs/frm_locale.h"
#include "fields/field_utility.h"
#include "reliability/designer_invariants.h"
#include "reliability/random_collection.h"
#include "testing/in_memory_database.h"
#include "testing/snapshot.h"

#include <numeric>
#include <typeinfo>

namespace morvel::reliability {

namespace {

// A broken rule found inside an editor: carried out of the modal show past every handler, none
// of which catches anything but std::exception.
struct BrokenRule {
    std::string message;
};

constexpr std::int32_t kDeleteKey = 46;

const std::set<std::string> kNumericBoxes{"txtSize", "txtObjectType", "txtStatus", "txtSubTable",
                                          "txtSubTableFieldID"};
// Boxes whose text is stored when the focus leaves them (or, for the template combos, when a
// picked suggestion is left).
const std::set<std::string> kStoredOnLeave{
    "txtCtrlEdit",           "txtCtrlReadOnly",   "txtSubLinkTable",   "txtSubLinkPIDField",
    "txtSubLinkDisplayName", "txtSubLinkOrderBy", "txtSignatureFields"};
// Typing into the key of a box makes another box showing the same key out of date.
const std::map<std::string, std::string> kSharedKey{{"txtLinkTableName", "cboLinkTableName"},
                                                    {"cboLinkTableName", "txtLinkTableName"},
                                                    {"txtSubTable", "cboSubTable"},
                                                    {"cboSubTable", "txtSubTable"}};
// What these boxes write is not what they show (the ADO keys), or not yet (the name).
const std::set<std::string> kShownDiffers{"txtName", "txtIDField", "txtDispField", "txtSQL"};

std::string answerYesNo(RandomSource& random) {
    return random.chance(0.6) ? "?Yes" : "?No";
}

// The UTF-8 characters of text, one string each.
std::vector<std::string> characters(const std::string& text) {
    std::vector<std::string> out;
    for (char c : text) {
        if (out.empty() || (static_cast<unsigned char>(c) & 0xC0U) != 0x80U)
            out.emplace_back();
        out.back() += c;
    }
    return out;
}

bool wellFormedLocales(const FieldDef& field) {
    for (const ListEntry& entry : field.Locales()) {
        const std::size_t prefix = entry.Key.starts_with("DN")  ? 2
                                   : entry.Key.starts_with("D") ? 1
                                                                : 0;
        const std::string n = entry.Key.substr(prefix);
        if (prefix == 0 || n != std::to_string(FieldUtility::ToLong(n)))
            return false;
    }
    return true;
}

// The first line in which two snapshots differ, as "was | is".
std::string firstDifference(const std::string& was, const std::string& is) {
    std::size_t start = 0;
    while (start < was.size() && start < is.size()) {
        const std::size_t end = std::min(was.find('\n', start), was.size());
        if (was.compare(start, end - start, is, start, end - start) != 0 ||
            (end < is.size() && is[end] != '\n'))
            break;
        start = end + 1;
    }
    auto line = [&](const std::string& text) {
        return start >= text.size() ? std::string("(end)")
                                    : text.substr(start, text.find('\n', start) - start);
    };
    return line(was) + " | " + line(is);
}

std::string storeText(const PropertyStore& store) {
    std::string text;
    for (const ListEntry& entry : store)
        text += entry.Key + "=" + entry.Value.toText() + "; ";
    return text;
}

} // namespace

DesignerSession::DesignerSession()
    : m_database(std::make_shared<testkit::InMemoryDatabase>())
    , m_designer(std::make_unique<control::Morvel>(m_prompter, m_modalHost))
    , m_steps(*m_designer) {
    m_database->addTable({1, "Customers", "Customers", 2});
    m_database->addTable({2, "Products", "Product Catalogue", 2});
    m_database->addTable({3, "OrderLines", "Order Lines", 4});
    m_database->addTable({4, "Addresses", "Addresses", 4});
    m_designer->move(0, 0, 12000, 9000);

    std::vector<view::Control*> open{m_designer.get()};
    while (!open.empty()) {
        view::Control* control = open.back();
        open.pop_back();
        if (auto* container = dynamic_cast<view::Container*>(control)) {
            open.insert(open.end(), container->children().begin(), container->children().end());
            continue;
        }
        if (!dynamic_cast<view::Label*>(control))
            m_controls[control->name()] = control;
    }
    m_loadWatch = m_designer->currentFieldChanged.connect(
        [this](const control::Morvel::FieldDefPtr&) { m_pending.clear(); });
}

DesignerSession::~DesignerSession() = default;

Event DesignerSession::typingEvent(RandomSource& random, const std::string& target) {
    Event event{Event::Kind::Type, target};
    const std::int32_t mode = random.between(0, 19);
    event.typing = mode < 10 ? Event::Typing::Replace
                             : (mode < 17 ? Event::Typing::Append : Event::Typing::Backspace);
    if (target == "txtName")
        event.text = random.chance(0.1) ? "" : random.fieldName();
    else if (kNumericBoxes.contains(target))
        event.text = random.numberish();
    else if (target == "txtCtrlEdit" || target == "txtCtrlReadOnly")
        event.text = random.chance(0.5) ? "TEXTBOX" : random.word(8);
    else
        event.text = random.text();
    return event;
}

Event DesignerSession::generate(RandomSource& random) {
    using Kind = Event::Kind;
    const std::int32_t roll = random.between(0, 999);
    auto& d = *m_designer;
    if (roll < 2 || !m_fields) {
        Event event{Kind::HostReplace};
        event.seed = random.next();
        event.number = random.chance(0.05)
                           ? 0
                           : (random.chance(0.1) ? random.between(1, 3) : random.between(20, 200));
        return event;
    }
    if (roll < 40) {
        Event event{Kind::HostAdd};
        event.seed = random.next();
        event.number2 = random.chance(0.5) ? 0 : random.between(1, 1000);
        return event;
    }
    if (roll < 70)
        return Event{Kind::HostRemove, "", "", random.between(0, 100000)};
    if (roll < 74)
        return Event{Kind::HostCanModify, "", "", random.between(0, 1)};
    if (roll < 77)
        return Event{Kind::HostDatabase, "", "", random.between(0, 1)};
    // Others write to the fields between the person's events: the host, undo, a merge.
    if (roll < 85)
        return Event{Kind::HostRename, "", random.fieldName(), random.between(0, 100000),
                     random.chance(0.5) ? 1 : 0};
    if (roll < 115) {
        Event event{Kind::HostWrite, "", "", random.between(0, 100000), random.chance(0.6) ? 1 : 0};
        event.seed = random.next();
        return event;
    }
    if (roll < 125)
        return Event{Kind::HostMove, "", "", random.between(0, 100000), random.between(0, 100000)};
    if (roll < 132)
        return Event{Kind::Undo};
    if (roll < 136)
        return Event{Kind::Redo};
    if (roll < 138)
        return Event{Kind::JumpInHistory, "", "", random.between(0, 100000)};
    if (roll < 200)
        return Event{Kind::ClickRow, "", "", random.between(0, 100000)};
    if (roll < 230) {
        Event event{Kind::Find};
        std::string search = random.chance(0.5) ? random.word(3) : "";
        if (search.empty() && d.lst.count() > 0) {
            const std::string name(d.lst.item(random.between(1, d.lst.count())).text());
            search = name.substr(0, static_cast<std::size_t>(random.between(0, 3)));
        }
        if (random.chance(0.2))
            search = random.pick(std::vector<std::string>{"link", "LIST", "Text", "sub "});
        event.answers = {search, answerYesNo(random)};
        return event;
    }
    if (roll < 260)
        return Event{Kind::FindNext,       "", "", 0, 0, Event::Typing::Replace, 0,
                     {answerYesNo(random)}};
    if (roll < 290 && d.cmdList.focusable())
        return generateDialog(random, Kind::EditList);
    if (roll < 305)
        return generateDialog(random, Kind::EditLocales);
    if (roll < 320) {
        const bool small = random.chance(0.2);
        return Event{Kind::Resize, "", "", random.between(small ? 0 : 4000, small ? 6000 : 16000),
                     random.between(small ? 0 : 5000, small ? 7000 : 14000)};
    }
    if (roll < 380)
        return Event{Kind::ClickTab, "", "", random.between(1, 2)};

    // The person's input goes to controls that can take it now.
    std::vector<std::string> boxes, combos, checks, focusable;
    for (const auto& [name, control] : m_controls) {
        if (!control->focusable())
            continue;
        focusable.push_back(name);
        if (auto* box = dynamic_cast<view::TextBox*>(control); box && !box->locked())
            boxes.push_back(name);
        if (auto* combo = dynamic_cast<view::ComboBox*>(control); combo && !combo->locked()) {
            if (combo->listCount() > 0)
                combos.push_back(name);
            if (combo->style() == view::ComboBox::Style::Editable)
                boxes.push_back(name);
        }
        if (dynamic_cast<view::CheckBox*>(control))
            checks.push_back(name);
    }
    if (roll < 430 && !focusable.empty())
        return Event{Kind::Focus, random.pick(focusable)};
    if (roll < 470 && !checks.empty())
        return Event{Kind::ClickCheck, random.pick(checks)};
    if (roll < 560 && d.cboType.focusable() && !d.cboType.locked())
        return Event{Kind::Pick, "cboType", "", random.between(0, 1000)};
    if (roll < 640 && !combos.empty())
        return Event{Kind::Pick, random.pick(combos), "", random.between(0, 1000)};
    if (boxes.empty())
        return Event{Kind::ClickRow, "", "", random.between(0, 100000)};
    if (random.chance(0.1) && d.txtName.focusable() && !d.txtName.locked())
        return typingEvent(random, "txtName");
    return typingEvent(random, random.pick(boxes));
}

Event DesignerSession::generateDialog(RandomSource& random, Event::Kind kind) {
    using Kind = Event::Kind;
    Event event{kind};
    const std::int32_t steps = random.between(1, 12);
    for (std::int32_t i = 0; i < steps; ++i) {
        const std::int32_t roll = random.between(0, 9);
        Event step{Kind::DialogButton};
        if (kind == Kind::EditList) {
            if (roll < 3) {
                step.target = "cmdNew";
            } else if (roll < 5) {
                step.target = "cmdAddSpecific";
                const std::string value =
                    random.chance(0.5) ? std::to_string(std::int64_t{1} << random.between(0, 31))
                                       : random.numberish();
                step.answers = {value, answerYesNo(random)};
            } else if (roll < 7) {
                step = Event{Kind::DialogLabelEdit, "", random.text(), random.between(0, 1000)};
            } else if (roll < 8) {
                step = Event{Kind::DialogClickRow, "", "", random.between(0, 1000)};
            } else if (roll < 9) {
                step = Event{Kind::DialogKey, "", "", random.chance(0.8) ? kDeleteKey : 13};
            } else {
                step = Event{Kind::DialogResize, "", "", random.between(0, 9000),
                             random.between(0, 7000)};
            }
        } else {
            if (roll < 3) {
                step.target = "cmdAddLocale";
                step.answers = {random.pick(
                    std::vector<std::string>{"1033", "1031", "1036", "", "abc", " 2057 ",
                                             std::to_string(random.between(-5, 40000))})};
            } else if (roll < 4) {
                step.target = "cmdDeleteLocale";
                step.answers = {answerYesNo(random)};
            } else if (roll < 5) {
                step = Event{Kind::DialogClickRow, "", "", random.between(0, 1000)};
            } else {
                step = Event{Kind::DialogType,
                             random.pick(std::vector<std::string>{
                                 "txtDisplayName", "txtDescription", "txtLinkLocale"}),
                             random.text()};
            }
        }
        event.steps.push_back(std::move(step));
    }
    const std::int32_t end = random.between(0, 9);
    if (kind == Kind::EditList && end < 9)
        event.steps.push_back(Event{Kind::DialogButton, end < 6 ? "cmdOK" : "cmdCancel"});
    if (kind == Kind::EditLocales && end < 8)
        event.steps.push_back(Event{Kind::DialogButton, "cmdClose"});
    return event;
}

void DesignerSession::queueAnswers(const std::vector<std::string>& answers) {
    m_prompter.reset();
    for (const std::string& answer : answers) {
        if (answer == "?Yes")
            m_prompter.answer(view::MsgBoxResult::Yes);
        else if (answer == "?No")
            m_prompter.answer(view::MsgBoxResult::No);
        else
            m_prompter.answer(answer);
    }
}

void DesignerSession::type(view::Control& control, const Event& event) {
    auto* box = dynamic_cast<view::TextBox*>(&control);
    auto* combo = dynamic_cast<view::ComboBox*>(&control);
    auto text = [&] { return box ? box->text() : combo->text(); };
    auto put = [&](std::string typed) {
        return box ? box->type(std::move(typed)) : combo->type(std::move(typed));
    };
    if (!box && !combo)
        return;
    switch (event.typing) {
    case Event::Typing::Replace:
        put(event.text);
        return;
    case Event::Typing::Backspace: {
        std::vector<std::string> kept = characters(text());
        if (!kept.empty())
            kept.pop_back();
        put(std::accumulate(kept.begin(), kept.end(), std::string()));
        return;
    }
    case Event::Typing::Append:
        // One Change per keystroke, as a keyboard gives them.
        for (const std::string& character : characters(event.text))
            if (!put(text() + character))
                return;
        return;
    }
}

std::optional<std::string> DesignerSession::apply(const Event& event) {
    auto& d = *m_designer;
    // The errors the designer lets reach its host, and when.
    const bool noField = !d.SelectedFieldDef();
    const bool leavingEmptyName = d.focused() == &d.txtName && d.txtName.text().empty();
    // Locale keys that no editor writes can read as one locale twice; the editor's loading
    // catches nothing.
    const bool oddLocales = event.kind == Event::Kind::EditLocales && d.SelectedFieldDef() &&
                            !wellFormedLocales(*d.SelectedFieldDef());
    bool completed = false;
    const auto shownBefore = d.SelectedFieldDef();
    const long unexpectedBefore = unexpectedFailureCount();
    m_written.clear();
    m_hostWrite.reset();
    m_writtenOnLeave = 0;
    m_firstWrite.clear();
    try {
        if (auto broken = run(event))
            return broken;
        completed = true;
    } catch (const BrokenRule& broken) {
        return broken.message;
    } catch (const NoCurrentFieldError& error) {
        if (!noField)
            return std::string("NoCurrentFieldError while a field was shown: ") + error.what();
        ++m_allowedErrors;
    } catch (const FieldNameError& error) {
        if (!leavingEmptyName)
            return std::string("FieldNameError: ") + error.what();
        ++m_allowedErrors;
    } catch (const DuplicateKeyError& error) {
        if (!oddLocales)
            return std::string("DuplicateKeyError: ") + error.what();
        ++m_allowedErrors;
    } catch (const std::exception& error) {
        return std::string("unexpected ") + typeid(error).name() + ": " + error.what();
    }
    if (unexpectedFailureCount() != unexpectedBefore)
        return std::string("a failure that is not the library's was passed over");
    markPending(event, completed);
    if (auto broken = checkWrites(event, shownBefore.get()))
        return broken;
    if (auto broken = checkDesigner(d, m_fields.get(), m_pending))
        return "invariant broken: " + *broken;
    return std::nullopt;
}

void DesignerSession::markPending(const Event& event, bool completed) {
    // A click on a row loads the panel, unless leaving the name box failed first.
    if (event.kind == Event::Kind::ClickRow && completed)
        m_pending.clear();
    if (event.kind == Event::Kind::Type || event.kind == Event::Kind::Pick) {
        const std::string& target = event.target;
        const bool picked = event.kind == Event::Kind::Pick;
        if ((!picked && (kNumericBoxes.contains(target) || kShownDiffers.contains(target))) ||
            kStoredOnLeave.contains(target))
            m_pending.insert(target);
        if (auto shared = kSharedKey.find(target); shared != kSharedKey.end())
            m_pending.insert(shared->second);
    }
    // A box that stores on leaving shows the stored value again once left.
    for (const std::string& name : kStoredOnLeave)
        if (m_pending.contains(name) && m_designer->focused() != m_controls.at(name))
            m_pending.erase(name);
}

void DesignerSession::watchWrites() {
    m_writeWatch = m_fields->changed.connect([this](const FieldChange& change) {
        // The host's own write is told first (the watch is the first observer), before the
        // designer hears of it.
        if (m_hostWrite && !m_hostWrite->seen && &change.field == m_hostWrite->field) {
            m_hostWrite->seen = true;
            return;
        }
        if (m_written.empty())
            m_firstWrite = std::string(memberName(change.member)) + " " + change.key + " = \"" +
                           change.newValue.toText() + "\"";
        m_written.push_back(&change.field);
        using namespace catalogue;
        static const std::set<std::string_view> kKeysStoredOnLeave{
            kSubLinkTable, kSubLinkParentId, kSubLinkDisplayName, kSubLinkOrderBy, kSignFields};
        if (change.member == FieldMember::Name || change.member == FieldMember::CtrlEdit ||
            change.member == FieldMember::CtrlReadOnly ||
            (change.member == FieldMember::Properties && kKeysStoredOnLeave.contains(change.key)))
            ++m_writtenOnLeave;
    });
}

std::optional<std::string> DesignerSession::checkWrites(const Event& event,
                                                        const FieldDef* shown) const {
    using Kind = Event::Kind;
    // The host's kinds stand together, from HostAdd to HostMove.
    const bool byHost = event.kind >= Kind::HostAdd && event.kind <= Kind::HostMove;
    // A host's change first leaves the focused box, so an edit that a box stores on leaving lands
    // in the field it was typed for, the one shown before the change; nothing else may be written.
    const bool onlyLeaving = m_writtenOnLeave == m_written.size();
    // Undo and redo write wherever the steps they apply wrote.
    if (event.kind == Kind::Undo || event.kind == Kind::Redo || event.kind == Kind::JumpInHistory)
        return std::nullopt;
    for (const FieldDef* field : m_written) {
        if (byHost && (field != shown || !onlyLeaving))
            return "the host's change wrote to field \"" + field->Name() + "\": " + m_firstWrite;
        if (field != shown)
            return "a write went to field \"" + field->Name() +
                   "\", which was not shown: " + m_firstWrite;
    }
    return std::nullopt;
}

std::optional<std::string> DesignerSession::run(const Event& event) {
    using Kind = Event::Kind;
    auto& d = *m_designer;
    queueAnswers(event.answers);
    auto control = [&](const std::string& name) -> view::Control* {
        auto found = m_controls.find(name);
        return found == m_controls.end() ? nullptr : found->second;
    };
    switch (event.kind) {
    case Kind::ClickRow:
        if (d.lst.count() > 0)
            d.lst.clickItem(d.lst.item(event.number % d.lst.count() + 1));
        return std::nullopt;
    case Kind::Type:
        if (view::Control* target = control(event.target))
            type(*target, event);
        return std::nullopt;
    case Kind::Pick:
        if (auto* combo = dynamic_cast<view::ComboBox*>(control(event.target));
            combo && combo->listCount() > 0)
            combo->pick(event.number % combo->listCount());
        return std::nullopt;
    case Kind::ClickCheck:
        if (auto* check = dynamic_cast<view::CheckBox*>(control(event.target)))
            check->click();
        return std::nullopt;
    case Kind::ClickTab:
        if (event.number <= d.TabStrip.count())
            d.TabStrip.click(event.number);
        return std::nullopt;
    case Kind::Focus:
        if (view::Control* target = control(event.target))
            target->setFocus();
        return std::nullopt;
    case Kind::Find:
        d.cmdFind.click();
        return std::nullopt;
    case Kind::FindNext:
        d.cmdFindNext.click();
        return std::nullopt;
    case Kind::EditList:
    case Kind::EditLocales: {
        std::optional<std::string> broken;
        m_modalHost.setScript([&](view::Form& form) {
            broken = event.kind == Kind::EditList ? runEditList(form, event)
                                                  : runEditLocales(form, event);
        });
        (event.kind == Kind::EditList ? d.cmdList : d.cmdLocale).click();
        m_modalHost.setScript(nullptr);
        return broken;
    }
    case Kind::Resize:
        d.move(0, 0, event.number, event.number2);
        return std::nullopt;
    case Kind::HostAdd: {
        if (!m_fields)
            return std::nullopt;
        RandomSource random(event.seed);
        auto field = randomField(random);
        if (m_fields->find(field->Name()))
            return std::nullopt;
        if (event.number2 == 0)
            m_fields->Add(std::move(field));
        else
            m_fields->Insert(event.number2 % (m_fields->Count() + 1) + 1, std::move(field));
        return std::nullopt;
    }
    case Kind::HostRemove:
        if (m_fields && m_fields->Count() > 0)
            m_fields->Remove(m_fields->Item(event.number % m_fields->Count() + 1)->Name());
        return std::nullopt;
    case Kind::HostReplace:
        if (auto broken = undoAndRedoEverything())
            return broken;
        // What that wrote is the history's; from here on, handing over and showing writes nothing.
        m_written.clear();
        m_writtenOnLeave = 0;
        m_history.reset();
        m_fields = randomCollection(event.seed, event.number);
        watchWrites();
        d.SetFieldDefs(m_fields);
        // Handing the fields over is no edit: the history starts here.
        m_history = std::make_unique<History>(*m_fields);
        m_handedOver = testkit::fieldsSnapshot(*m_fields);
        m_pending.clear();
        return std::nullopt;
    case Kind::Undo:
    case Kind::Redo:
    case Kind::JumpInHistory: {
        if (!m_history)
            return std::nullopt;
        const bool applied =
            event.kind == Kind::Undo ? m_steps.undo(*m_history)
            : event.kind == Kind::Redo
                ? m_steps.redo(*m_history)
                : m_steps.jumpTo(*m_history,
                                 static_cast<std::size_t>(event.number) % (m_history->count() + 1));
        // The field the step changed is shown again, as stored.
        if (applied)
            m_pending.clear();
        return std::nullopt;
    }
    case Kind::HostRename:
    case Kind::HostWrite:
        return runHostWrite(event);
    case Kind::HostMove:
        if (m_fields && m_fields->Count() > 0)
            m_fields->Move(event.number % m_fields->Count() + 1,
                           event.number2 % m_fields->Count() + 1);
        return std::nullopt;
    case Kind::HostCanModify:
        d.SetCanModifyExisting(event.number != 0);
        return std::nullopt;
    case Kind::HostDatabase:
        d.SetDatabase(event.number ? m_database : nullptr);
        return std::nullopt;
    default:
        return "a dialog step outside a dialog";
    }
}

std::optional<std::string> DesignerSession::undoAndRedoEverything() {
    if (!m_history || m_history->cleanIndex() != 0u)
        return std::nullopt;
    // An emptied name box refuses to be left, so the edit cannot be ended and the history
    // cannot be walked past it: the designer says why, as any other leave of that box would.
    if (m_designer->focused() == &m_designer->txtName && m_designer->txtName.text().empty())
        return std::nullopt;
    m_steps.commitEdit();
    // The present state, which need not be the last one: steps may have been undone.
    const std::size_t present = m_history->index();
    const std::string edited = testkit::fieldsSnapshot(*m_fields);
    m_steps.jumpTo(*m_history, 0);
    if (const std::string undone = testkit::fieldsSnapshot(*m_fields); undone != m_handedOver)
        return "undoing every step did not give back the fields handed over: " +
               firstDifference(m_handedOver, undone);
    if (auto broken = checkDesigner(*m_designer, m_fields.get(), {}))
        return "invariant broken after undoing every step: " + *broken;
    m_steps.jumpTo(*m_history, present);
    if (const std::string redone = testkit::fieldsSnapshot(*m_fields); redone != edited)
        return "redoing the steps done did not give back the edited fields: " +
               firstDifference(edited, redone);
    m_pending.clear();
    return std::nullopt;
}

std::shared_ptr<FieldDef> DesignerSession::hostTarget(const Event& event) const {
    if (event.number2 != 0 && m_designer->SelectedFieldDef())
        return m_designer->SelectedFieldDef();
    if (!m_fields || m_fields->Count() == 0)
        return nullptr;
    return m_fields->Item(event.number % m_fields->Count() + 1);
}

// The designer follows the write, and writes nothing back; a write to what the panel shows
// reloads it, so from then on the panel must show the stored values again.
std::optional<std::string> DesignerSession::runHostWrite(const Event& event) {
    const std::shared_ptr<FieldDef> field = hostTarget(event);
    if (!field)
        return std::nullopt;
    FieldMember member = FieldMember::Name;
    if (event.kind == Event::Kind::HostRename) {
        // A name the collection refuses is the host's mistake, not the designer's.
        const auto holder = m_fields->find(event.text);
        if (event.text.empty() || (holder && holder != field))
            return std::nullopt;
        m_hostWrite = HostWriteWatch{field.get()};
        field->SetName(event.text);
    } else {
        RandomSource random(event.seed);
        m_hostWrite = HostWriteWatch{field.get()};
        member = randomWrite(random, *field).member;
    }
    const bool changed = m_hostWrite->seen;
    m_hostWrite.reset();
    const bool shown = field == m_designer->SelectedFieldDef();
    if (changed && shown && member != FieldMember::ListValues && member != FieldMember::Locales)
        m_pending.clear();
    return std::nullopt;
}

std::optional<std::string> DesignerSession::runEditList(view::Form& form, const Event& event) {
    auto& editor = dynamic_cast<dialogs::frmEditList&>(form);
    const FieldDef& field = *editor.FieldDef();
    const std::string before = storeText(field.ListValues());
    std::optional<std::string> written;
    for (const Event& step : event.steps) {
        if (!editor.isOpen())
            break;
        ++m_dialogSteps;
        queueAnswers(step.answers);
        auto& list = editor.lstValues;
        switch (step.kind) {
        case Event::Kind::DialogButton:
            for (view::Button* button : {&editor.cmdNew, &editor.cmdAddSpecific, &editor.cmdCancel})
                if (button->name() == step.target)
                    button->click();
            if (step.target == "cmdOK") {
                editor.cmdOK.click();
                // What OK wrote: the rows, in the list's order after its re-sort.
                written.emplace();
                for (std::int32_t i = 1; i <= list.count(); ++i)
                    written->append(list.item(i).subItem(1))
                        .append("=")
                        .append(list.item(i).text())
                        .append("; ");
            }
            break;
        case Event::Kind::DialogLabelEdit:
            if (list.count() > 0)
                list.editLabel(list.item(step.number % list.count() + 1), step.text);
            break;
        case Event::Kind::DialogClickRow:
            if (list.count() > 0)
                list.clickItem(list.item(step.number % list.count() + 1));
            break;
        case Event::Kind::DialogKey:
            list.keyDown(step.number);
            break;
        case Event::Kind::DialogResize:
            editor.move(0, 0, step.number, step.number2);
            break;
        default:
            break;
        }
    }
    const std::string after = storeText(field.ListValues());
    if (written && after != *written)
        return "OK in the list values editor wrote \"" + after + "\", its rows were \"" + *written +
               "\"";
    if (!written && after != before)
        return "the list values editor changed the values without OK: \"" + before +
               "\" became \"" + after + "\"";
    return std::nullopt;
}

std::optional<std::string> DesignerSession::runEditLocales(view::Form& form, const Event& event) {
    auto& editor = dynamic_cast<dialogs::frmLocale&>(form);
    const FieldDef& field = *m_designer->SelectedFieldDef();
    const bool checkRows = wellFormedLocales(field);
    std::set<std::pair<std::string, int>> blank;
    for (const Event& step : event.steps) {
        if (!editor.isOpen())
            break;
        ++m_dialogSteps;
        queueAnswers(step.answers);
        auto& list = editor.lstLocale;
        const bool nothingSelected = list.selectedItem() == nullptr;
        bool localeListed = false;
        if (!step.answers.empty() && FieldUtility::IsNumeric(step.answers.front()))
            localeListed =
                list.find("K" + std::to_string(FieldUtility::ToLong(step.answers.front())));
        try {
            switch (step.kind) {
            case Event::Kind::DialogButton:
                if (step.target == "cmdAddLocale") {
                    editor.cmdAddLocale.click();
                    if (const view::ListItem* added = list.selectedItem()) {
                        blank.insert({std::string(added->key()), 1});
                        blank.insert({std::string(added->key()), 2});
                    }
                } else if (step.target == "cmdDeleteLocale")
                    editor.cmdDeleteLocale.click();
                else
                    editor.cmdClose.click();
                break;
            case Event::Kind::DialogClickRow:
                if (list.count() > 0)
                    list.clickItem(list.item(step.number % list.count() + 1));
                break;
            case Event::Kind::DialogType:
                // Typing what the box shows already changes nothing, so writes nothing.
                if (const view::ListItem* selected = list.selectedItem();
                    selected && step.target != "txtLinkLocale" &&
                    step.text != (step.target == "txtDisplayName" ? editor.txtDisplayName
                                                                  : editor.txtDescription)
                                     .text())
                    blank.erase(
                        {std::string(selected->key()), step.target == "txtDisplayName" ? 1 : 2});
                for (view::TextBox* box :
                     {&editor.txtDisplayName, &editor.txtDescription, &editor.txtLinkLocale})
                    if (box->name() == step.target)
                        box->type(step.text);
                break;
            default:
                break;
            }
        } catch (const DuplicateKeyError& error) {
            // Adding a listed locale fails on its taken key; nothing is caught there.
            if (!(step.target == "cmdAddLocale" && localeListed))
                throw BrokenRule{std::string("DuplicateKeyError: ") + error.what()};
            ++m_allowedErrors;
        } catch (const NotFoundError& error) {
            // Typing with no locale selected fails; nothing is caught there.
            if (!(step.kind == Event::Kind::DialogType && nothingSelected))
                throw BrokenRule{std::string("NotFoundError: ") + error.what()};
            ++m_allowedErrors;
        }
        if (checkRows)
            if (auto broken = checkLocaleEditor(editor, field, blank))
                throw BrokenRule{"locale editor: " + *broken};
    }
    return std::nullopt;
}

} // namespace morvel::reliability
