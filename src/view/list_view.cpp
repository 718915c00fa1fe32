// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "view/list_view.h"

#include "base/error.h"
#include "base/text.h"

#include <algorithm>

namespace morvel::view {

ListView::~ListView() = default;

void ListView::addColumn(std::string key, std::string text, std::int32_t width) {
    m_columns.push_back({std::move(key), std::move(text), width});
    notify(Property::Columns);
}

const ColumnHeader& ListView::column(std::int32_t index) const {
    if (index < 1 || index > columnCount())
        throw NotFoundError("The list \"" + name() + "\" has no column " + std::to_string(index) +
                            ".");
    return m_columns[static_cast<std::size_t>(index - 1)];
}

void ListView::setColumnWidth(std::int32_t index, std::int32_t width) {
    column(index);
    auto& header = m_columns[static_cast<std::size_t>(index - 1)];
    if (header.width == width)
        return;
    header.width = width;
    notify(Property::Columns);
}

std::int32_t ListView::columnIndex(std::string_view key) const {
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (m_columns[i].key == key)
            return static_cast<std::int32_t>(i) + 1;
    throw NotFoundError("The list \"" + name() + "\" has no column \"" + std::string(key) + "\".");
}

ListItem& ListView::add(std::string_view key, std::string_view text) {
    auto row = std::make_unique<ListItem>(*this, key, text);
    ListItem& item = *row;
    // One look-up for both the duplicate check and the insertion.
    if (!m_byKey.insert(item))
        throw DuplicateKeyError("The list \"" + name() + "\" has a row with the key \"" +
                                    std::string(item.key()) + "\" already.",
                                name(), std::string(item.key()));
    const std::size_t place = m_sorted ? sortedPlace(item) : m_rows.size();
    try {
        m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(place), std::move(row));
    } catch (...) {
        m_byKey.erase(item);
        throw;
    }
    item.m_position = static_cast<std::int32_t>(place);
    if (place + 1 == m_rows.size() && m_numberedUpTo == place)
        m_numberedUpTo = m_rows.size();
    else
        m_numberedUpTo = std::min(m_numberedUpTo, place);
    emitRows(ListChange::Kind::Inserted, static_cast<std::int32_t>(place));
    return item;
}

void ListView::remove(std::string_view key) {
    ListItem& row = item(key);
    const std::int32_t position = positionOf(row);
    if (m_selected == &row) {
        m_selected = nullptr;
        emitRows(ListChange::Kind::SelectionChanged, -1);
    }
    m_byKey.erase(row);
    m_rows.erase(m_rows.begin() + position);
    m_numberedUpTo = std::min(m_numberedUpTo, static_cast<std::size_t>(position));
    emitRows(ListChange::Kind::Removed, position);
}

void ListView::moveItem(ListItem& item, std::int32_t index) {
    if (m_sorted)
        throw InvalidOperationError("The list \"" + name() + "\" is sorted: its rows cannot move.");
    if (index < 1 || index > count())
        throw NotFoundError("The list \"" + name() + "\" has no row " + std::to_string(index) +
                            ".");
    const std::int32_t from = positionOf(item);
    const std::int32_t to = index - 1;
    if (from == to)
        return;
    const auto first = m_rows.begin();
    if (from < to)
        std::rotate(first + from, first + from + 1, first + to + 1);
    else
        std::rotate(first + to, first + from, first + from + 1);
    m_numberedUpTo = std::min(m_numberedUpTo, static_cast<std::size_t>(std::min(from, to)));
    emitRows(ListChange::Kind::Removed, from);
    emitRows(ListChange::Kind::Inserted, to);
    if (m_selected == &item)
        emitRows(ListChange::Kind::SelectionChanged, to);
}

void ListView::clear() {
    m_selected = nullptr;
    m_byKey.clear();
    m_rows.clear();
    m_numberedUpTo = 0;
    emitRows(ListChange::Kind::Reset, -1, 0);
}

void ListView::reserve(std::size_t rows) {
    m_rows.reserve(rows);
    m_byKey.reserve(rows);
}

void ListView::endUpdate() {
    if (m_updating == 0 || --m_updating != 0 || !m_heldBack)
        return;
    m_heldBack = false;
    emitRows(ListChange::Kind::Reset, -1, 0);
}

ListItem* ListView::find(std::string_view key) const {
    return m_byKey.find(key);
}

ListItem& ListView::item(std::string_view key) const {
    if (ListItem* row = find(key))
        return *row;
    throw NotFoundError("The list \"" + name() + "\" has no row with the key \"" +
                        std::string(key) + "\".");
}

ListItem& ListView::item(std::int32_t index) const {
    if (index < 1 || index > count())
        throw NotFoundError("The list \"" + name() + "\" has no row " + std::to_string(index) +
                            ".");
    return *m_rows[static_cast<std::size_t>(index - 1)];
}

void ListView::setSelectedItem(ListItem* item) {
    if (item == m_selected)
        return;
    m_selected = item;
    emitRows(ListChange::Kind::SelectionChanged, item ? positionOf(*item) : -1);
}

void ListView::ensureVisible(const ListItem& item) {
    emitRows(ListChange::Kind::EnsureVisible, positionOf(item));
}

void ListView::startLabelEdit(const ListItem& item) {
    emitRows(ListChange::Kind::LabelEditStarted, positionOf(item));
}

void ListView::setSorted(bool sorted) {
    m_sorted = sorted;
    if (!sorted)
        return;
    std::stable_sort(m_rows.begin(), m_rows.end(), [this](const auto& a, const auto& b) {
        const int order = compareIgnoringCase(sortText(*a), sortText(*b));
        return m_sortAscending ? order < 0 : order > 0;
    });
    m_numberedUpTo = 0;
    emitRows(ListChange::Kind::Reset, -1, 0);
}

bool ListView::clickItem(ListItem& item) {
    if (!focusable())
        return false;
    setFocus();
    setSelectedItem(&item);
    ItemClick.notify(item);
    Click.notify();
    return true;
}

bool ListView::keyDown(std::int32_t keyCode, std::int32_t shift) {
    if (!focusable())
        return false;
    KeyDown.notify(keyCode, shift);
    return true;
}

bool ListView::editLabel(ListItem& item, const std::string& text) {
    bool cancel = false;
    AfterLabelEdit.notify(item, text, cancel);
    if (cancel)
        return false;
    item.setText(text);
    return true;
}

void ListView::rekey(ListItem& item, std::string key) {
    if (m_byKey.find(key))
        throw DuplicateKeyError("The list \"" + name() + "\" has a row with the key \"" + key +
                                    "\" already.",
                                name(), key);
    // The index hashes the row's own key: take the row out before the key changes.
    m_byKey.erase(item);
    if (key == item.text())
        item.m_ownKey.reset();
    else
        item.m_ownKey = std::make_unique<std::string>(std::move(key));
    m_byKey.insert(item);
}

void ListView::cellChanged(const ListItem& item, std::int32_t column) {
    if (rowsChanged.empty())
        return;
    if (m_updating != 0) {
        m_heldBack = true;
        return;
    }
    emitChange({ListChange::Kind::CellChanged, positionOf(item), column, 1});
}

void ListView::renumber() const {
    for (std::size_t i = m_numberedUpTo; i < m_rows.size(); ++i)
        m_rows[i]->m_position = static_cast<std::int32_t>(i);
    m_numberedUpTo = m_rows.size();
}

std::int32_t ListView::positionOf(const ListItem& item) const {
    if (static_cast<std::size_t>(item.m_position) >= m_numberedUpTo)
        renumber();
    return item.m_position;
}

std::size_t ListView::sortedPlace(const ListItem& item) const {
    auto place = std::upper_bound(
        m_rows.begin(), m_rows.end(), &item, [this](const ListItem* value, const auto& row) {
            const int order = compareIgnoringCase(sortText(*value), sortText(*row));
            return m_sortAscending ? order < 0 : order > 0;
        });
    return static_cast<std::size_t>(place - m_rows.begin());
}

std::string_view ListView::sortText(const ListItem& item) const {
    return m_sortKey == 0 ? item.text() : item.subItem(m_sortKey);
}

void ListView::emitRows(ListChange::Kind kind, std::int32_t row, std::int32_t count) {
    emitChange({kind, row, -1, count});
}

void ListView::emitChange(const ListChange& change) {
    if (rowsChanged.empty())
        return;
    if (m_updating != 0) {
        m_heldBack = true;
        return;
    }
    rowsChanged.notify(change);
}

} // namespace morvel::view
