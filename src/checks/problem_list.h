// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/signal.h"
#include "checks/field_rules.h"
#include "checks/problem.h"
#include "fields/database.h"
#include "fields/field_defs.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace morvel::checks {

// Problems in rows: first, then count rows that go or come at that place.
struct ProblemRows {
    std::int32_t first;
    std::int32_t count;
};

// Every problem of a table's definition, kept current as the table changes. It hears the
// library's notifications, so every writer is covered (the panel, the editors, the host, undo,
// a merge); a change re-checks the field it touched and the fields that refer to it by name (a
// sub link's link field, a signature's fields, a name spelt the same but for letter case),
// found through indexes, never by a scan. A full check runs once, when the list is made.
//
// The problems read as rows, grouped by field: the fields in the order they first had problems,
// each field's problems in the order of the rules. Rows are found by position in O(log n).
class ProblemList {
public:
    // database null: table names in the settings are not checked.
    explicit ProblemList(std::shared_ptr<FieldDefs> fields, Database* database = nullptr);
    ProblemList(const ProblemList&) = delete;
    ProblemList& operator=(const ProblemList&) = delete;
    ~ProblemList();

    std::int32_t rowCount() const;
    const Problem& row(std::int32_t index) const;
    // The problems of one field, in the order of the rules.
    const std::vector<Problem>& problemsOf(FieldId field) const;
    // The field a problem is about, while it is in the table; null after it left.
    const FieldDef* field(FieldId id) const;
    std::int32_t errorCount() const { return m_errors; }
    std::int32_t warningCount() const { return m_warnings; }

    // Reads the database's tables again and re-checks the fields that name a table.
    void refreshTables();

    // Rows about to go, rows gone; rows come. Observers read the list in between as it is.
    Signal<const ProblemRows&> rowsAboutToBeRemoved;
    Signal<const ProblemRows&> rowsRemoved;
    Signal<const ProblemRows&> rowsAboutToBeInserted;
    Signal<const ProblemRows&> rowsInserted;
    // The counts changed.
    Signal<> countsChanged;

private:
    struct Group {
        FieldId field;
        std::vector<Problem> problems;
    };

    void checkAll();
    void recheck(const FieldDef& field);
    void recheckName(std::string_view name);
    void replace(FieldId field, std::vector<Problem> problems);
    void forget(const FieldDef& field, std::string_view name);
    void index(const FieldDef& field);
    void unindex(FieldId field);
    const FieldDef* caseTwin(const FieldDef& field) const;
    void loadTables();
    void changed(const FieldChange& change);

    // Rows before group g, and the group that holds row r (a Fenwick tree over group sizes).
    std::int32_t rowsBefore(std::size_t group) const;
    std::size_t groupOfRow(std::int32_t& row) const;
    void addToGroupSize(std::size_t group, std::int32_t delta);
    std::size_t appendGroup(FieldId field);

    std::shared_ptr<FieldDefs> m_fields;
    Database* m_database;
    KnownTables m_tables;
    // What every re-check reads besides the field; made once.
    CheckContext m_context;
    std::vector<Group> m_groups;
    std::vector<std::int32_t> m_tree; // 1-based Fenwick tree of group sizes
    std::unordered_map<FieldId, std::size_t> m_groupOf;
    // Names other fields refer to (folded as the library folds) and who refers to each.
    std::unordered_map<std::string, std::vector<FieldId>> m_referrers;
    std::unordered_map<FieldId, std::vector<std::string>> m_referencesOf;
    // Names folded in every letter case the checks know, and the fields spelt that way.
    std::unordered_map<std::string, std::vector<FieldId>> m_spellings;
    std::unordered_map<FieldId, std::string> m_spellingOf;
    std::unordered_map<FieldId, const FieldDef*> m_byId;
    std::int32_t m_errors = 0;
    std::int32_t m_warnings = 0;
    Connections m_watch;
};

} // namespace morvel::checks
