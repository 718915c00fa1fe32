// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "fields/field_def.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace morvel {

// A field that entered or left the collection, at its 1-based position.
struct FieldPlaced {
    const std::shared_ptr<FieldDef>& field;
    std::int32_t position;
    StepTag step;
};

// A field that moved within the collection, from and to 1-based positions.
struct FieldMoved {
    const std::shared_ptr<FieldDef>& field;
    std::int32_t from;
    std::int32_t to;
    StepTag step;
};

// A table's field definitions in their order. Look-up by name ignores letter case (ASCII) and is
// O(1) on average; look-up by 1-based position is O(1).
//
// It tells everything that happens to it, with positions: an insertion raises AfterAdd, then
// inserted; a removal raises aboutToRemove while the field is still in place, then AfterRemove
// and removed once it is gone; a move raises moved; a write to a member field raises changed.
// A step (beginStep) groups the notifications of one action.
class FieldDefs {
public:
    using FieldPtr = std::shared_ptr<FieldDef>;
    using const_iterator = std::vector<FieldPtr>::const_iterator;

    // Groups every notification raised while it lives into one step. Steps nest: one begun while
    // another is open joins it, and only the outermost one begins and ends the step.
    class Step {
    public:
        Step(Step&& other) noexcept
            : m_owner(std::exchange(other.m_owner, nullptr)) {}
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;
        Step& operator=(Step&&) = delete;
        ~Step();

    private:
        friend class FieldDefs;
        explicit Step(FieldDefs& owner)
            : m_owner(&owner) {}
        FieldDefs* m_owner;
    };

    FieldDefs() = default;
    FieldDefs(const FieldDefs&) = delete;
    FieldDefs& operator=(const FieldDefs&) = delete;
    ~FieldDefs();

    // Throws NotFoundError when there is no such field.
    const FieldPtr& Item(std::string_view name) const;
    const FieldPtr& Item(std::int32_t position) const;
    // The field of that name, or null.
    FieldPtr find(std::string_view name) const;
    std::int32_t Count() const { return static_cast<std::int32_t>(m_fields.size()); }
    // 1-based position of a field of this collection, 0 when it is not in it. Linear.
    std::int32_t positionOf(const FieldDef& field) const;

    const_iterator begin() const { return m_fields.begin(); }
    const_iterator end() const { return m_fields.end(); }

    // Appends the field, or inserts it before the 1-based position. Throws FieldNameError when its
    // name is empty or taken, InvalidOperationError when it belongs to a collection already.
    FieldPtr Add(FieldPtr field);
    FieldPtr Add(std::string name, std::int32_t fieldType);
    FieldPtr Insert(std::int32_t position, FieldPtr field);
    // Throws NotFoundError when there is no such field.
    void Remove(std::string_view name);
    // Moves the field at the 1-based position from so that it ends at position to; throws
    // NotFoundError when either is outside the collection. A move to where it is tells nothing.
    void Move(std::int32_t from, std::int32_t to);

    // Opens a step with the text a person reads ("Change type of Customer") and its origin.
    // Observers of stepEnded must not throw: the step ends in a destructor.
    [[nodiscard]] Step beginStep(std::string_view text, ChangeOrigin origin = ChangeOrigin::Host);
    bool inStep() const { return m_stepDepth != 0; }
    // The tag that a notification raised now carries: the open step's, or outside any step a
    // fresh one of its own.
    StepTag stepTag();

    Signal<const FieldPtr&> AfterAdd;
    Signal<const FieldPtr&> AfterRemove;
    Signal<const FieldPlaced&> inserted;
    Signal<const FieldPlaced&> aboutToRemove;
    Signal<const FieldPlaced&> removed;
    Signal<const FieldMoved&> moved;
    // Every change of every field of the collection, after it happened.
    Signal<const FieldChange&> changed;
    Signal<const StepInfo&> stepBegan;
    Signal<const StepInfo&> stepEnded;

private:
    friend class FieldDef;

    void checkName(const FieldDef& field, std::string_view name) const;
    // Gives a member field its new name and keeps the name index right; throws when refused.
    void rename(FieldDef& field, std::string name);

    struct FoldedHash {
        std::size_t operator()(std::string_view text) const;
    };
    struct FoldedEqual {
        bool operator()(std::string_view a, std::string_view b) const;
    };

    void endStep();

    std::vector<FieldPtr> m_fields;
    std::uint64_t m_lastSequence = 0;
    std::int32_t m_stepDepth = 0;
    ChangeOrigin m_stepOrigin = ChangeOrigin::Host;
    // Kept between steps, so that a step's text costs an allocation only when it outgrows them.
    std::string m_stepText;
    // Keys view the names held by the fields themselves.
    std::unordered_map<std::string_view, FieldPtr, FoldedHash, FoldedEqual> m_byName;
};

} // namespace morvel
