// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "history/change_review.h"

#include "history/three_way_merge.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace morvel {

ChangeReview::ChangeReview(FieldDefs& fields, const ChangeSet& changes)
    : m_fields(fields)
    , m_changes(changes) {}

std::vector<ChangeReview::Row> ChangeReview::rows() const {
    std::vector<FieldDifference> differences = m_changes.differences();
    std::unordered_map<FieldId, std::int32_t> place;
    std::int32_t position = 0;
    for (const auto& field : m_fields)
        place.emplace(field->id(), ++position);
    const auto placeOf = [&](const FieldDifference& difference) {
        const auto found = place.find(difference.id);
        return found == place.end() ? position + 1 : found->second;
    };
    std::stable_sort(differences.begin(), differences.end(),
                     [&](const auto& a, const auto& b) { return placeOf(a) < placeOf(b); });
    std::vector<Row> rows;
    for (const FieldDifference& difference : differences) {
        const std::string& name = difference.field->Name();
        auto row = [&](std::string item, std::string oldText, std::string newText) {
            rows.push_back(
                {difference.id, name, std::move(item), std::move(oldText), std::move(newText)});
        };
        if (difference.added)
            row("New field", "", name);
        if (difference.removed)
            row("Removed", name, "");
        if (difference.moved)
            row("Moved", "", "");
        for (const MemberDifference& member : difference.members)
            row(memberName(member.member), describeValue(member.oldValue),
                describeValue(member.newValue));
        for (const KeyDifference& key : difference.keys)
            row(std::string(storeLabel(key.store)) + " " + key.key, describeValue(key.oldValue),
                describeValue(key.newValue));
        for (StoreName store : difference.reordered)
            row(std::string(storeLabel(store)) + " order", "", "");
    }
    return rows;
}

std::vector<std::shared_ptr<FieldDef>>
ChangeReview::withBaselineOf(const std::vector<FieldId>& ids) const {
    const std::unordered_set<FieldId> reverted(ids.begin(), ids.end());
    std::vector<std::shared_ptr<FieldDef>> target;
    target.reserve(static_cast<std::size_t>(m_fields.Count()) + ids.size());
    std::unordered_map<FieldId, std::size_t> at;
    for (const auto& field : m_fields) {
        const FieldId id = field->id();
        if (reverted.count(id) && m_changes.isAdded(id))
            continue;
        const bool placeAgain = reverted.count(id) && m_changes.isMoved(id);
        if (!placeAgain) {
            at.emplace(id, target.size());
            target.push_back(reverted.count(id) ? baselineCopy(m_changes, *field) : field);
        }
    }
    // Removed and moved fields go back after the field that stood before them in the baseline
    // and is still here.
    const auto& order = m_changes.baselineOrder();
    for (std::size_t i = 0; i < order.size(); ++i) {
        const FieldId id = order[i];
        if (!reverted.count(id) || !(m_changes.isRemoved(id) || m_changes.isMoved(id)))
            continue;
        std::size_t place = 0;
        for (std::size_t before = i; before-- > 0;) {
            const auto found = at.find(order[before]);
            if (found != at.end()) {
                place = found->second + 1;
                break;
            }
        }
        target.insert(target.begin() + static_cast<std::ptrdiff_t>(place),
                      baselineCopy(m_changes, *m_changes.fieldOf(id)));
        at.clear();
        for (std::size_t k = 0; k < target.size(); ++k)
            at.emplace(target[k]->id(), k);
    }
    return target;
}

void ChangeReview::revertField(FieldId id) {
    const auto field = m_changes.fieldOf(id);
    if (!field || !m_changes.differs(id))
        return;
    const auto step = m_fields.beginStep("Revert " + field->Name(), ChangeOrigin::Host);
    assignFields(m_fields, withBaselineOf({id}));
}

void ChangeReview::revertAll() {
    if (m_changes.empty())
        return;
    const auto step = m_fields.beginStep("Revert all changes", ChangeOrigin::Host);
    assignFields(m_fields, withBaselineOf(m_changes.differingFields()));
}

} // namespace morvel
