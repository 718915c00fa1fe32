// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/history_commands.h"
#include "control/morvel.h"
#include "history/history.h"
#include "reliability/designer_event.h"
#include "reliability/random_source.h"
#include "testing/in_memory_database.h"
#include "testing/scripted_modal_host.h"
#include "testing/scripted_prompter.h"
#include "view/modal_host.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>

namespace morvel::reliability {

// A designer with its host: a scripted prompter and modal host, an in-memory database, and the
// collection handed over. It makes random events from the state it is in and applies events,
// checking every invariant after each one (and after each step inside the editors).
class DesignerSession {
public:
    DesignerSession();
    ~DesignerSession();

    // An event that makes sense in the present state (mostly aimed at controls a person can
    // reach now).
    Event generate(RandomSource& random);
    // Applies the event as a person or the host would. Errors that the designer lets reach its
    // host are caught here, as the host's event boundary catches them, and counted; the message
    // of the first broken rule (an error that may not escape, or an invariant) is returned.
    std::optional<std::string> apply(const Event& event);

    // Undoes every step of the collection's history and compares it with the collection as it was
    // handed over, then redoes the steps that were done and compares it with the edited one; the
    // difference when either is not exact. Nothing to check once the oldest steps were dropped.
    std::optional<std::string> undoAndRedoEverything();

    std::uint64_t allowedErrors() const { return m_allowedErrors; }
    std::uint64_t dialogSteps() const { return m_dialogSteps; }
    // Writes of the known fault that a host's addition commits a box into the added field.

private:
    struct DialogOutcome;

    Event generateDialog(RandomSource& random, Event::Kind kind);
    Event typingEvent(RandomSource& random, const std::string& target);
    std::optional<std::string> run(const Event& event);
    // The field a host event aims at: the one shown, or the one at the position; null for none.
    std::shared_ptr<FieldDef> hostTarget(const Event& event) const;
    std::optional<std::string> runHostWrite(const Event& event);
    void type(view::Control& control, const Event& event);
    void queueAnswers(const std::vector<std::string>& answers);
    std::optional<std::string> runEditList(view::Form& form, const Event& event);
    std::optional<std::string> runEditLocales(view::Form& form, const Event& event);
    // Marks what the event leaves legitimately different from the stored values until the next
    // load: typed text not yet committed, picked suggestions not yet stored.
    void markPending(const Event& event, bool completed);
    // Showing a field never writes to it, and a person's event writes only to the field that was
    // shown when it began.
    std::optional<std::string> checkWrites(const Event& event, const FieldDef* shown) const;
    void watchWrites();

    testkit::ScriptedPrompter m_prompter;
    testkit::ScriptedModalHost m_modalHost;
    std::shared_ptr<testkit::InMemoryDatabase> m_database;
    std::unique_ptr<control::Morvel> m_designer;
    std::shared_ptr<FieldDefs> m_fields;
    // After the collection: it watches the collection and goes first.
    std::unique_ptr<History> m_history;
    std::string m_handedOver;
    commands::HistoryCommands m_steps;
    std::unordered_map<std::string, view::Control*> m_controls;
    // Controls whose shown value may differ from the stored one until the panel loads again.
    std::set<std::string> m_pending;
    Connection m_loadWatch;
    // Every field that a write changed during the event being applied.
    Connection m_writeWatch;
    std::vector<const FieldDef*> m_written;
    // The write a host event makes itself, which the watch does not count as the designer's.
    struct HostWriteWatch {
        const FieldDef* field;
        bool seen = false;
    };
    std::optional<HostWriteWatch> m_hostWrite;
    std::size_t m_writtenOnLeave = 0;
    std::string m_firstWrite;
    std::uint64_t m_allowedErrors = 0;
    std::uint64_t m_dialogSteps = 0;
};

} // namespace morvel::reliability
