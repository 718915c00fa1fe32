// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "store/change_writer.h"

#include "history/change_set.h"
#include "store/field_rows.h"
#include "store/sqlite_connection.h"
#include "store/statement.h"

#include <array>
#include <vector>

namespace morvel::field_rows {

namespace {

constexpr std::array<StoreName, 3> kStores = {StoreName::Properties, StoreName::ListValues,
                                              StoreName::Locales};

schema::Store storedAs(StoreName store) {
    return static_cast<schema::Store>(static_cast<std::int32_t>(store));
}

std::int64_t idOf(const FieldDef& field) {
    return static_cast<std::int64_t>(field.id().value());
}

// Gives the added and moved fields their places, between the positions of the neighbours that
// keep theirs. Walks the collection only as far as the last field to place; asks the store for
// the position of those neighbours alone. False when two neighbours have no room between them.
class Placer {
public:
    Placer(Writer& writer, const ChangeSet& changes)
        : m_writer(writer)
        , m_changes(changes)
        , m_find(writer.connection(), "SELECT position FROM fields WHERE table_id = ? AND "
                                      "field_id = ?")
        , m_move(writer.connection(), "UPDATE fields SET position = ? WHERE table_id = ? AND "
                                      "field_id = ?") {}

    bool place(const FieldDefs& fields, std::size_t toPlace) {
        const FieldDef* lastKept = nullptr;
        for (const auto& field : fields) {
            if (toPlace == 0 && m_run.empty())
                return true;
            if (needsPlace(*field)) {
                m_run.push_back(field.get());
                --toPlace;
                continue;
            }
            if (!m_run.empty() && !placeRun(positionOf(lastKept), positionOf(field.get())))
                return false;
            lastKept = field.get();
        }
        if (m_run.empty())
            return true;
        const std::int64_t before = positionOf(lastKept);
        return placeRun(before, before + static_cast<std::int64_t>(m_run.size() + 1) * kGap);
    }

    bool needsPlace(const FieldDef& field) const {
        return m_changes.isAdded(field.id()) || m_changes.isMoved(field.id());
    }

    // Takes a moved field out of the way, so that its old position is free for another.
    void park(const FieldDef& field) { move(field, -idOf(field)); }

private:
    std::int64_t positionOf(const FieldDef* field) {
        if (!field)
            return 0;
        m_find.bind(1, m_writer.tableId()).bind(2, idOf(*field));
        const std::int64_t position = m_find.step() ? m_find.integer(0) : 0;
        m_find.reset();
        return position;
    }

    bool placeRun(std::int64_t before, std::int64_t after) {
        const auto count = static_cast<std::int64_t>(m_run.size());
        if (after - before <= count)
            return false;
        for (std::int64_t i = 0; i < count; ++i) {
            const FieldDef& field = *m_run[static_cast<std::size_t>(i)];
            const std::int64_t position = before + (after - before) * (i + 1) / (count + 1);
            if (m_changes.isAdded(field.id()))
                m_writer.insert(field, position);
            else
                move(field, position);
        }
        m_run.clear();
        return true;
    }

    void move(const FieldDef& field, std::int64_t position) {
        m_move.bind(1, position).bind(2, m_writer.tableId()).bind(3, idOf(field)).run();
    }

    Writer& m_writer;
    const ChangeSet& m_changes;
    Statement m_find;
    Statement m_move;
    std::vector<const FieldDef*> m_run;
};

} // namespace

void writeChanges(SqliteConnection& connection, std::int64_t tableId, const FieldDefs& fields,
                  const ChangeSet& changes) {
    Writer writer(connection, tableId);
    Placer placer(writer, changes);
    Statement dropField(connection, "DELETE FROM fields WHERE table_id = ? AND field_id = ?");
    Statement dropValues(connection,
                         "DELETE FROM field_values WHERE table_id = ? AND field_id = ?");
    Statement dropStore(connection, "DELETE FROM field_values WHERE table_id = ? AND "
                                    "field_id = ? AND store = ?");
    Statement update(connection, "UPDATE fields SET name = ?, description = ?, display_name = ?, "
                                 "default_value = ?, field_type = ?, size = ?, ctrl_edit = ?, "
                                 "ctrl_read_only = ?, ctrl_list = ?, validation = ?, "
                                 "create_on_demand = ? WHERE table_id = ? AND field_id = ?");
    std::size_t toPlace = 0;
    for (FieldId id : changes.differingFields()) {
        const auto stored = static_cast<std::int64_t>(id.value());
        if (changes.isRemoved(id)) {
            dropValues.bind(1, tableId).bind(2, stored).run();
            dropField.bind(1, tableId).bind(2, stored).run();
            continue;
        }
        if (changes.isAdded(id)) {
            ++toPlace;
            continue;
        }
        const FieldDef& field = *changes.fieldOf(id);
        if (changes.membersDiffer(id)) {
            Writer::bindMembers(update, 1, field);
            update.bind(12, tableId).bind(13, stored).run();
        }
        for (StoreName store : kStores) {
            if (!changes.storeDiffers(id, store))
                continue;
            dropStore.bind(1, tableId)
                .bind(2, stored)
                .bind(3, std::int64_t{static_cast<std::int32_t>(storedAs(store))})
                .run();
            writeStore(writer.valueInsert(), tableId, stored, storedAs(store),
                       storeOf(field, store));
        }
        if (changes.isMoved(id)) {
            placer.park(field);
            ++toPlace;
        }
    }
    if (toPlace != 0 && !placer.place(fields, toPlace))
        writer.replaceAll(fields);
}

} // namespace morvel::field_rows
