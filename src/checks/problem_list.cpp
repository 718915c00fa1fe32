// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "checks/problem_list.h"

#include "base/text.h"
#include "catalogue/field_types.h"
#include "checks/name_text.h"

#include <algorithm>
#include <limits>

namespace morvel::checks {

namespace {

// Names as the library tells them apart: ignoring ASCII letter case.
std::string libraryFolded(std::string_view name) {
    std::string folded(name);
    for (char& c : folded)
        c = foldAscii(c);
    return folded;
}

void erase(std::vector<FieldId>& ids, FieldId id) {
    ids.erase(std::remove(ids.begin(), ids.end(), id), ids.end());
}

bool sameProblems(const std::vector<Problem>& a, const std::vector<Problem>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const Problem& x, const Problem& y) {
                          return x.rule == y.rule && x.severity == y.severity && x.what == y.what &&
                                 x.fix == y.fix;
                      });
}

std::int32_t lowBit(std::size_t i) {
    return static_cast<std::int32_t>(i & (~i + 1));
}

} // namespace

ProblemList::ProblemList(std::shared_ptr<FieldDefs> fields, Database* database)
    : m_fields(std::move(fields))
    , m_database(database)
    , m_context{*m_fields, database ? &m_tables : nullptr,
                [this](const FieldDef& of) { return caseTwin(of); }} {
    m_tree.push_back(0);
    loadTables();
    checkAll();
    m_watch += m_fields->changed.connect([this](const FieldChange& change) { changed(change); });
    m_watch += m_fields->inserted.connect([this](const FieldPlaced& placed) {
        index(*placed.field);
        recheck(*placed.field);
        recheckName(placed.field->Name());
    });
    m_watch += m_fields->removed.connect(
        [this](const FieldPlaced& placed) { forget(*placed.field, placed.field->Name()); });
}

ProblemList::~ProblemList() = default;

std::int32_t ProblemList::rowCount() const {
    return rowsBefore(m_groups.size());
}

const Problem& ProblemList::row(std::int32_t index) const {
    const std::size_t group = groupOfRow(index);
    return m_groups[group].problems[static_cast<std::size_t>(index)];
}

const std::vector<Problem>& ProblemList::problemsOf(FieldId field) const {
    static const std::vector<Problem> kNone;
    const auto found = m_groupOf.find(field);
    return found == m_groupOf.end() ? kNone : m_groups[found->second].problems;
}

const FieldDef* ProblemList::field(FieldId id) const {
    const auto found = m_byId.find(id);
    return found == m_byId.end() ? nullptr : found->second;
}

void ProblemList::refreshTables() {
    loadTables();
    for (const auto& field : *m_fields) {
        const std::int32_t type = field->FieldType();
        if (catalogue::isLinkType(type) || type == catalogue::type::SubTable)
            recheck(*field);
    }
}

void ProblemList::loadTables() {
    m_tables = {};
    if (!m_database)
        return;
    for (const SearchItem& item :
         m_database->Search("", "", std::numeric_limits<std::int32_t>::max())) {
        m_tables.foldedNames.insert(libraryFolded(item.ItemObject.TableName));
        if (item.ID.kind() == Value::Kind::Long)
            m_tables.ids.insert(item.ID.asLong());
    }
}

void ProblemList::checkAll() {
    const auto count = static_cast<std::size_t>(m_fields->Count());
    m_byId.reserve(count);
    m_spellings.reserve(count);
    m_spellingOf.reserve(count);
    for (const auto& field : *m_fields)
        index(*field);
    for (const auto& field : *m_fields)
        recheck(*field);
}

void ProblemList::recheck(const FieldDef& field) {
    replace(field.id(), checkField(field, m_context));
}

// Re-checks the fields whose problems depend on a field of that name: those that refer to it and
// those spelt the same but for letter case.
void ProblemList::recheckName(std::string_view name) {
    std::vector<FieldId> affected;
    if (const auto found = m_referrers.find(libraryFolded(name)); found != m_referrers.end())
        affected = found->second;
    if (const auto found = m_spellings.find(foldCase(name)); found != m_spellings.end())
        affected.insert(affected.end(), found->second.begin(), found->second.end());
    for (FieldId id : affected)
        if (const auto field = m_byId.find(id); field != m_byId.end())
            recheck(*field->second);
}

void ProblemList::changed(const FieldChange& change) {
    const FieldDef& field = change.field;
    const bool renamed = change.member == FieldMember::Name;
    if (renamed || change.member == FieldMember::FieldType ||
        change.member == FieldMember::Properties) {
        unindex(field.id());
        index(field);
    }
    recheck(field);
    if (renamed)
        recheckName(change.oldValue.toText());
    if (renamed || change.member == FieldMember::FieldType)
        recheckName(field.Name());
}

void ProblemList::forget(const FieldDef& field, std::string_view name) {
    unindex(field.id());
    m_byId.erase(field.id());
    replace(field.id(), {});
    recheckName(name);
}

void ProblemList::index(const FieldDef& field) {
    m_byId[field.id()] = &field;
    std::string spelling = foldCase(field.Name());
    m_spellings[spelling].push_back(field.id());
    m_spellingOf[field.id()] = std::move(spelling);
    std::vector<std::string> references = referencedNames(field);
    if (references.empty())
        return;
    for (std::string& name : references) {
        name = libraryFolded(name);
        m_referrers[name].push_back(field.id());
    }
    m_referencesOf[field.id()] = std::move(references);
}

void ProblemList::unindex(FieldId id) {
    if (const auto found = m_spellingOf.find(id); found != m_spellingOf.end()) {
        auto group = m_spellings.find(found->second);
        erase(group->second, id);
        if (group->second.empty())
            m_spellings.erase(group);
        m_spellingOf.erase(found);
    }
    if (const auto found = m_referencesOf.find(id); found != m_referencesOf.end()) {
        for (const std::string& name : found->second) {
            auto referrers = m_referrers.find(name);
            if (referrers == m_referrers.end())
                continue;
            erase(referrers->second, id);
            if (referrers->second.empty())
                m_referrers.erase(referrers);
        }
        m_referencesOf.erase(found);
    }
}

const FieldDef* ProblemList::caseTwin(const FieldDef& field) const {
    const auto spelling = m_spellingOf.find(field.id());
    if (spelling == m_spellingOf.end())
        return nullptr;
    const auto found = m_spellings.find(spelling->second);
    if (found == m_spellings.end() || found->second.size() < 2)
        return nullptr;
    for (FieldId id : found->second)
        if (id != field.id())
            if (const auto other = m_byId.find(id); other != m_byId.end())
                return other->second;
    return nullptr;
}

void ProblemList::replace(FieldId field, std::vector<Problem> problems) {
    auto found = m_groupOf.find(field);
    if (found == m_groupOf.end()) {
        if (problems.empty())
            return;
        found = m_groupOf.emplace(field, appendGroup(field)).first;
    }
    const std::size_t group = found->second;
    std::vector<Problem>& held = m_groups[group].problems;
    if (sameProblems(held, problems))
        return;
    const std::int32_t first = rowsBefore(group);
    if (!held.empty()) {
        const ProblemRows rows{first, static_cast<std::int32_t>(held.size())};
        rowsAboutToBeRemoved.notify(rows);
        for (const Problem& problem : held)
            --(problem.severity == Severity::Error ? m_errors : m_warnings);
        held.clear();
        addToGroupSize(group, -rows.count);
        rowsRemoved.notify(rows);
    }
    if (!problems.empty()) {
        const ProblemRows rows{first, static_cast<std::int32_t>(problems.size())};
        rowsAboutToBeInserted.notify(rows);
        for (const Problem& problem : problems)
            ++(problem.severity == Severity::Error ? m_errors : m_warnings);
        held = std::move(problems);
        addToGroupSize(group, rows.count);
        rowsInserted.notify(rows);
    }
    countsChanged.notify();
}

std::int32_t ProblemList::rowsBefore(std::size_t group) const {
    std::int32_t sum = 0;
    for (std::size_t i = group; i > 0; i -= static_cast<std::size_t>(lowBit(i)))
        sum += m_tree[i];
    return sum;
}

std::size_t ProblemList::groupOfRow(std::int32_t& row) const {
    std::size_t at = 0;
    std::size_t step = 1;
    while (step * 2 <= m_groups.size())
        step *= 2;
    for (; step != 0; step /= 2)
        if (at + step <= m_groups.size() && m_tree[at + step] <= row) {
            at += step;
            row -= m_tree[at];
        }
    return at;
}

void ProblemList::addToGroupSize(std::size_t group, std::int32_t delta) {
    for (std::size_t i = group + 1; i < m_tree.size(); i += static_cast<std::size_t>(lowBit(i)))
        m_tree[i] += delta;
}

std::size_t ProblemList::appendGroup(FieldId field) {
    m_groups.push_back({field, {}});
    const std::size_t i = m_groups.size();
    // The new node covers the groups (i - lowBit(i), i]; the new one is still empty.
    m_tree.push_back(rowsBefore(i - 1) - rowsBefore(i - static_cast<std::size_t>(lowBit(i))));
    return i - 1;
}

} // namespace morvel::checks
