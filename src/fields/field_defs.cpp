// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "fields/field_defs.h"

#include "base/error.h"
#include "base/text.h"

#include <algorithm>

namespace morvel {

std::size_t FieldDefs::FoldedHash::operator()(std::string_view text) const {
    // FNV-1a over the folded bytes: cheap, and no folded copy of the name is made.
    std::size_t hash = 14695981039346656037ull;
    for (char c : text) {
        hash ^= static_cast<unsigned char>(foldAscii(c));
        hash *= 1099511628211ull;
    }
    return hash;
}

bool FieldDefs::FoldedEqual::operator()(std::string_view a, std::string_view b) const {
    return equalsIgnoringCase(a, b);
}

FieldDefs::~FieldDefs() {
    for (const auto& field : m_fields)
        field->m_collection = nullptr;
}

const FieldDefs::FieldPtr& FieldDefs::Item(std::string_view name) const {
    auto found = m_byName.find(name);
    if (found == m_byName.end())
        throw NotFoundError("There is no field named \"" + std::string(name) + "\".");
    return found->second;
}

const FieldDefs::FieldPtr& FieldDefs::Item(std::int32_t position) const {
    if (position < 1 || position > Count())
        throw NotFoundError("There is no field at position " + std::to_string(position) + ".");
    return m_fields[static_cast<std::size_t>(position - 1)];
}

FieldDefs::FieldPtr FieldDefs::find(std::string_view name) const {
    auto found = m_byName.find(name);
    return found == m_byName.end() ? nullptr : found->second;
}

std::int32_t FieldDefs::positionOf(const FieldDef& field) const {
    auto found = std::find_if(m_fields.begin(), m_fields.end(),
                              [&](const FieldPtr& each) { return each.get() == &field; });
    return found == m_fields.end() ? 0 : static_cast<std::int32_t>(found - m_fields.begin()) + 1;
}

FieldDefs::FieldPtr FieldDefs::Add(FieldPtr field) {
    return Insert(Count() + 1, std::move(field));
}

FieldDefs::FieldPtr FieldDefs::Add(std::string name, std::int32_t fieldType) {
    return Add(std::make_shared<FieldDef>(std::move(name), fieldType));
}

FieldDefs::FieldPtr FieldDefs::Insert(std::int32_t position, FieldPtr field) {
    if (!field)
        throw InvalidOperationError("No field was given to add.");
    if (field->m_collection)
        throw InvalidOperationError("The field \"" + field->Name() +
                                    "\" belongs to a collection already.");
    if (position < 1 || position > Count() + 1)
        throw NotFoundError("There is no position " + std::to_string(position) + " to add at.");
    checkName(*field, field->Name());
    const StepTag step = stepTag();
    m_fields.insert(m_fields.begin() + (position - 1), field);
    m_byName.emplace(field->Name(), field);
    field->m_collection = this;
    AfterAdd.notify(field);
    // An AfterAdd observer may have moved or removed it meanwhile. Mostly it stays where it was
    // put, and looking there first keeps building a large collection linear.
    const auto at = static_cast<std::size_t>(position - 1);
    const std::int32_t now =
        at < m_fields.size() && m_fields[at] == field ? position : positionOf(*field);
    if (now != 0)
        inserted.notify({field, now, step});
    return field;
}

void FieldDefs::Remove(std::string_view name) {
    auto found = m_byName.find(name);
    if (found == m_byName.end())
        throw NotFoundError("There is no field named \"" + std::string(name) + "\".");
    FieldPtr field = found->second;
    const StepTag step = stepTag();
    const std::int32_t position = positionOf(*field);
    aboutToRemove.notify({field, position, step});
    // An observer may have changed the collection: remove the field from where it is now.
    const std::int32_t now = positionOf(*field);
    if (now == 0)
        return;
    m_byName.erase(std::string_view(field->Name()));
    m_fields.erase(m_fields.begin() + (now - 1));
    field->m_collection = nullptr;
    AfterRemove.notify(field);
    removed.notify({field, now, step});
}

void FieldDefs::Move(std::int32_t from, std::int32_t to) {
    const FieldPtr field = Item(from);
    if (to < 1 || to > Count())
        throw NotFoundError("There is no position " + std::to_string(to) + " to move to.");
    if (from == to)
        return;
    const auto first = m_fields.begin();
    if (from < to)
        std::rotate(first + (from - 1), first + from, first + to);
    else
        std::rotate(first + (to - 1), first + (from - 1), first + from);
    moved.notify({field, from, to, stepTag()});
}

FieldDefs::Step FieldDefs::beginStep(std::string_view text, ChangeOrigin origin) {
    if (m_stepDepth++ == 0) {
        ++m_lastSequence;
        m_stepOrigin = origin;
        m_stepText.assign(text);
        stepBegan.notify({{m_lastSequence, m_stepOrigin}, m_stepText});
    }
    return Step(*this);
}

FieldDefs::Step::~Step() {
    if (m_owner)
        m_owner->endStep();
}

void FieldDefs::endStep() {
    if (--m_stepDepth != 0)
        return;
    stepEnded.notify({{m_lastSequence, m_stepOrigin}, m_stepText});
}

StepTag FieldDefs::stepTag() {
    if (m_stepDepth != 0)
        return {m_lastSequence, m_stepOrigin};
    return {++m_lastSequence, ChangeOrigin::Host};
}

const char* originName(ChangeOrigin origin) {
    switch (origin) {
    case ChangeOrigin::Person:
        return "Person";
    case ChangeOrigin::Host:
        return "Host";
    case ChangeOrigin::Undo:
        return "Undo";
    case ChangeOrigin::Redo:
        return "Redo";
    case ChangeOrigin::Merge:
        return "Merge";
    case ChangeOrigin::Paste:
        return "Paste";
    }
    return "";
}

void FieldDefs::checkName(const FieldDef& field, std::string_view name) const {
    if (name.empty())
        throw FieldNameError("A field needs a name.");
    auto found = m_byName.find(name);
    if (found != m_byName.end() && found->second.get() != &field)
        throw FieldNameError("The name \"" + std::string(name) + "\" is taken by the field \"" +
                             found->second->Name() + "\".");
}

void FieldDefs::rename(FieldDef& field, std::string name) {
    checkName(field, name);
    // The index key views the field's own name: take the entry out before the name changes.
    auto entry = m_byName.extract(std::string_view(field.m_name));
    field.m_name = std::move(name);
    entry.key() = field.m_name;
    m_byName.insert(std::move(entry));
}

} // namespace morvel
