// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "history/history.h"

#include "base/error.h"

#include <utility>

namespace morvel {

namespace {

bool replaying(ChangeOrigin origin) {
    return origin == ChangeOrigin::Undo || origin == ChangeOrigin::Redo;
}

} // namespace

History::History(FieldDefs& fields, std::size_t limit)
    : m_fields(fields)
    , m_limit(limit == 0 ? 1 : limit) {
    m_connections += fields.stepBegan.connect([this](const StepInfo& info) { stepBegan(info); });
    m_connections += fields.stepEnded.connect([this](const StepInfo& info) { stepEnded(info); });
    // A field that entered or left the collection is recorded with its position.
    auto placedAs = [this](RecordedChange::Kind kind) {
        return [this, kind](const FieldPlaced& placed) {
            RecordedChange change;
            change.kind = kind;
            change.field = placed.field;
            change.from = placed.position;
            record(placed.step, std::move(change));
        };
    };
    m_connections += fields.inserted.connect(placedAs(RecordedChange::Kind::Insert));
    m_connections += fields.removed.connect(placedAs(RecordedChange::Kind::Remove));
    m_connections += fields.moved.connect([this](const FieldMoved& moved) {
        RecordedChange change;
        change.kind = RecordedChange::Kind::Move;
        change.field = moved.field;
        change.from = moved.from;
        change.to = moved.to;
        record(moved.step, std::move(change));
    });
    m_connections += fields.changed.connect([this](const FieldChange& change) {
        if (replaying(change.step.origin))
            return;
        // Keyed: the field is in the collection under its present name.
        if (auto field = m_fields.find(change.field.Name()))
            record(change.step, RecordedChange::of(std::move(field), change));
    });
}

History::~History() = default;

std::string_view History::undoText() const {
    return canUndo() ? std::string_view(m_steps[m_index - 1].text) : std::string_view();
}

std::string_view History::redoText() const {
    return canRedo() ? std::string_view(m_steps[m_index].text) : std::string_view();
}

void History::undo() {
    checkNotInStep();
    if (!canUndo())
        throw InvalidOperationError("There is nothing to undo.");
    undoOne();
    stateChanged.notify();
}

void History::redo() {
    checkNotInStep();
    if (!canRedo())
        throw InvalidOperationError("There is nothing to redo.");
    redoOne();
    stateChanged.notify();
}

void History::setIndex(std::size_t n) {
    checkNotInStep();
    if (n > m_steps.size())
        throw NotFoundError("There is no step " + std::to_string(n) + " in the history.");
    if (n == m_index)
        return;
    while (m_index > n)
        undoOne();
    while (m_index < n)
        redoOne();
    stateChanged.notify();
}

void History::setClean() {
    m_clean = m_index;
    stateChanged.notify();
}

void History::clear() {
    m_steps.clear();
    stepsChanged.notify({StepsChange::Kind::Reset, 0, 0});
    m_index = 0;
    m_clean = 0;
    m_mergeOpen = false;
    // A step open now goes on, but what it did before the clear is not undoable.
    if (m_open)
        m_open->changes.clear();
    stateChanged.notify();
}

void History::setLimit(std::size_t limit) {
    m_limit = limit == 0 ? 1 : limit;
    if (m_steps.size() <= m_limit)
        return;
    while (m_steps.size() > m_limit)
        dropOldest();
    stateChanged.notify();
}

std::size_t History::memoryUse() const {
    std::size_t bytes = 0;
    for (const Step& step : m_steps) {
        bytes += sizeof(Step) + (step.text.capacity() > 15 ? step.text.capacity() + 1 : 0);
        bytes += (step.changes.capacity() - step.changes.size()) * sizeof(RecordedChange);
        for (const RecordedChange& change : step.changes)
            bytes += change.bytes();
    }
    return bytes;
}

void History::stepBegan(const StepInfo& info) {
    if (replaying(info.tag.origin))
        return;
    m_open = Step{std::string(info.text), info.tag.sequence, info.tag.origin, {}};
}

void History::stepEnded(const StepInfo& info) {
    if (!m_open || m_open->sequence != info.tag.sequence)
        return;
    Step step = std::move(*m_open);
    m_open.reset();
    if (!step.changes.empty())
        push(std::move(step));
}

void History::record(const StepTag& tag, RecordedChange change) {
    if (replaying(tag.origin))
        return;
    if (m_open && m_open->sequence == tag.sequence) {
        m_open->changes.push_back(std::move(change));
        return;
    }
    Step step{change.text(), tag.sequence, tag.origin, {}};
    step.changes.push_back(std::move(change));
    push(std::move(step));
}

void History::push(Step step) {
    if (mergedIntoLast(step)) {
        stateChanged.notify();
        return;
    }
    if (m_index < m_steps.size()) {
        const std::size_t undone = m_steps.size() - m_index;
        m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(m_index), m_steps.end());
        if (m_clean && *m_clean > m_index)
            m_clean.reset();
        stepsChanged.notify({StepsChange::Kind::Removed, m_index, undone});
    }
    m_mergeOpen = step.origin == ChangeOrigin::Person && step.changes.size() == 1 &&
                  step.changes.front().mergeable();
    m_steps.push_back(std::move(step));
    ++m_index;
    stepsChanged.notify({StepsChange::Kind::Inserted, m_index - 1, 1});
    while (m_steps.size() > m_limit)
        dropOldest();
    stateChanged.notify();
}

bool History::mergedIntoLast(Step& step) {
    // The saved state stays reachable: a keystroke after a save starts a step of its own.
    if (!m_mergeOpen || m_index == 0 || m_index != m_steps.size() || m_clean == m_index)
        return false;
    if (step.origin != ChangeOrigin::Person || step.changes.size() != 1)
        return false;
    RecordedChange& last = m_steps.back().changes.front();
    RecordedChange& next = step.changes.front();
    if (!next.mergeable() || !last.sameTarget(next))
        return false;
    last.absorb(std::move(next));
    return true;
}

void History::dropOldest() {
    // Only a done step may go from the front; with none done, the newest undone step goes.
    if (m_index == 0) {
        m_steps.pop_back();
        if (m_clean && *m_clean > m_steps.size())
            m_clean.reset();
        stepsChanged.notify({StepsChange::Kind::Removed, m_steps.size(), 1});
        return;
    }
    m_steps.pop_front();
    --m_index;
    if (m_clean && *m_clean == 0)
        m_clean.reset();
    else if (m_clean)
        --*m_clean;
    stepsChanged.notify({StepsChange::Kind::Removed, 0, 1});
}

void History::undoOne() {
    const Step& step = m_steps[m_index - 1];
    {
        const auto scope = m_fields.beginStep(step.text, ChangeOrigin::Undo);
        for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change)
            change->undo(m_fields);
    }
    --m_index;
    m_mergeOpen = false;
}

void History::redoOne() {
    const Step& step = m_steps[m_index];
    {
        const auto scope = m_fields.beginStep(step.text, ChangeOrigin::Redo);
        for (const RecordedChange& change : step.changes)
            change.redo(m_fields);
    }
    ++m_index;
    m_mergeOpen = false;
}

void History::checkNotInStep() const {
    if (m_fields.inStep())
        throw InvalidOperationError("Undo and redo wait until the action under way has ended.");
}

} // namespace morvel
