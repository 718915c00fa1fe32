// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "fields/field_defs.h"
#include "history/recorded_change.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace morvel {

// How the list of steps changed: the steps [first, first + count) were inserted or removed (the
// indexes are those before a removal and after an insertion), or the whole list was replaced.
struct StepsChange {
    enum class Kind : std::uint8_t { Inserted, Removed, Reset };
    Kind kind = Kind::Reset;
    std::size_t first = 0;
    std::size_t count = 0;
};

// The undo history of one collection, recorded from its notifications alone, so that every writer
// (the panel, the editors, the host, paste, merge) is covered without telling it anything.
//
// A step of the collection (beginStep) is one step here; a write outside any step is a step of its
// own. Consecutive Person steps that each change the same member or stored key of the same field
// (the keystrokes in one box) fold into one until breakMerge() or a step with another target.
// undo() and redo() write through the library in a step of origin Undo / Redo, so every listener
// hears them; nothing of those origins is recorded. The clean point marks the saved state.
//
// Index n means the first n steps are done: undo() goes to n - 1, redo() to n + 1. The history
// must not outlive its collection.
class History {
public:
    static constexpr std::size_t kDefaultLimit = 10000;

    explicit History(FieldDefs& fields, std::size_t limit = kDefaultLimit);
    History(const History&) = delete;
    History& operator=(const History&) = delete;
    ~History();

    bool canUndo() const { return m_index != 0; }
    bool canRedo() const { return m_index != m_steps.size(); }
    // The text of the step undo() / redo() would apply, empty when there is none.
    std::string_view undoText() const;
    std::string_view redoText() const;
    // Throw InvalidOperationError while a step of the collection is open or nothing is to do.
    void undo();
    void redo();

    std::size_t count() const { return m_steps.size(); }
    std::size_t index() const { return m_index; }
    // The text of the step at 0-based i (i < count()).
    std::string_view text(std::size_t i) const { return m_steps.at(i).text; }
    // The changes of the step at 0-based i, in the order they were made.
    std::span<const RecordedChange> changes(std::size_t i) const { return m_steps.at(i).changes; }
    // Undoes or redoes steps until index() is n (at most count()).
    void setIndex(std::size_t n);

    // Marks the present state as the saved one.
    void setClean();
    bool isClean() const { return m_clean == m_index; }
    // The index of the saved state, or nothing when it can no longer be reached.
    std::optional<std::size_t> cleanIndex() const { return m_clean; }

    // Starts again (a load, a revert): no steps, and the present state is the clean one.
    void clear();
    // The next step does not fold into the last one (the focus left the box).
    void breakMerge() { m_mergeOpen = false; }

    // The most steps kept; the oldest are dropped beyond it.
    std::size_t limit() const { return m_limit; }
    void setLimit(std::size_t limit);

    // Bytes held by all steps, for the cost of a step.
    std::size_t memoryUse() const;

    // Raised when anything above may read differently: availability, texts, index, cleanliness.
    Signal<> stateChanged;
    // Raised as steps come and go, before the stateChanged of the same call, so that a list of
    // the steps follows them row by row instead of reading them all again.
    Signal<const StepsChange&> stepsChanged;

private:
    struct Step {
        std::string text;
        std::uint64_t sequence = 0;
        ChangeOrigin origin = ChangeOrigin::Host;
        std::vector<RecordedChange> changes;
    };

    void stepBegan(const StepInfo& info);
    void stepEnded(const StepInfo& info);
    void record(const StepTag& tag, RecordedChange change);
    void push(Step step);
    // Whether step folds into the last one done (and then folds it).
    bool mergedIntoLast(Step& step);
    void dropOldest();
    void undoOne();
    void redoOne();
    void checkNotInStep() const;

    FieldDefs& m_fields;
    std::deque<Step> m_steps;
    std::size_t m_index = 0;
    std::optional<std::size_t> m_clean = 0;
    std::size_t m_limit;
    // The step of the collection being recorded, while one is open.
    std::optional<Step> m_open;
    // Whether the last step done may still take the next keystroke.
    bool m_mergeOpen = false;
    Connections m_connections;
};

} // namespace morvel
