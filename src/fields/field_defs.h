#pragma once

#include "base/signal.h"
#include "fields/field_def.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace morvel {

// A table's field definitions in their order. Look-up by name ignores letter case (ASCII) and is
// O(1) on average; look-up by 1-based position is O(1). Additions and removals come from the host
// and raise AfterAdd / AfterRemove after the collection has changed.
class FieldDefs {
public:
    using FieldPtr = std::shared_ptr<FieldDef>;
    using const_iterator = std::vector<FieldPtr>::const_iterator;

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

    Signal<const FieldPtr&> AfterAdd;
    Signal<const FieldPtr&> AfterRemove;
    // Every change of every field of the collection, after it happened.
    Signal<const FieldChange&> changed;

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

    std::vector<FieldPtr> m_fields;
    // Keys view the names held by the fields themselves.
    std::unordered_map<std::string_view, FieldPtr, FoldedHash, FoldedEqual> m_byName;
};

} // namespace morvel
