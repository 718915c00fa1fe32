// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "view/list_item.h"

#include "base/error.h"
#include "view/list_view.h"

#include <algorithm>
#include <cstring>
#include <functional>

namespace morvel::view {

namespace {

// A cell is its length, then its bytes. A length under kLongCell takes one byte; a longer one is
// kLongCell and four bytes.
constexpr unsigned char kLongCell = 0xFF;
constexpr std::size_t kLongHeader = 1 + sizeof(std::uint32_t);
// The room a typical cell takes, length included, when a row grows.
constexpr std::size_t kShortCell = 8;

struct CellSpan {
    std::size_t at;
    std::size_t header;
    std::size_t length;
};

CellSpan spanAt(const std::string& cells, std::size_t at) {
    const auto first = static_cast<unsigned char>(cells[at]);
    if (first != kLongCell)
        return {at, 1, first};
    std::uint32_t length = 0;
    std::memcpy(&length, cells.data() + at + 1, sizeof length);
    return {at, kLongHeader, length};
}

// The span of a cell; at is the buffer's end when the buffer holds fewer cells.
CellSpan locate(const std::string& cells, std::size_t index) {
    std::size_t at = 0;
    for (; index != 0 && at < cells.size(); --index) {
        const CellSpan span = spanAt(cells, at);
        at += span.header + span.length;
    }
    if (at >= cells.size())
        return {cells.size(), 0, 0};
    return spanAt(cells, at);
}

std::size_t cellCount(const std::string& cells) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < cells.size(); ++count) {
        const CellSpan span = spanAt(cells, at);
        at += span.header + span.length;
    }
    return count;
}

// Writes the length of a cell of that size; gives the bytes used.
std::size_t writeHeader(char* header, std::size_t length) {
    if (length < kLongCell) {
        header[0] = static_cast<char>(length);
        return 1;
    }
    header[0] = static_cast<char>(kLongCell);
    const auto value = static_cast<std::uint32_t>(length);
    std::memcpy(header + 1, &value, sizeof value);
    return kLongHeader;
}

} // namespace

ListItem::ListItem(ListView& owner, std::string_view key, std::string_view text)
    : m_owner(owner) {
    setCell(kTextCell, text);
    if (key != text)
        m_ownKey = std::make_unique<std::string>(key);
}

ListItem::~ListItem() = default;

void ListItem::setKey(std::string key) {
    if (key != this->key())
        m_owner.rekey(*this, std::move(key));
}

void ListItem::setText(std::string_view text) {
    if (text == this->text())
        return;
    keepKey();
    setCell(kTextCell, text);
    m_owner.cellChanged(*this, 0);
}

std::string_view ListItem::subItem(std::int32_t index) const {
    if (index < 1)
        return {};
    return cell(static_cast<std::size_t>(index) - 1 + kFirstSubItemCell);
}

void ListItem::setSubItem(std::int32_t index, std::string_view text) {
    if (index < 1 || index >= m_owner.columnCount())
        throw NotFoundError("The list \"" + m_owner.name() + "\" has no sub item " +
                            std::to_string(index) + ".");
    if (setCell(static_cast<std::size_t>(index) - 1 + kFirstSubItemCell, text))
        m_owner.cellChanged(*this, index);
}

std::int32_t ListItem::index() const {
    return m_owner.positionOf(*this) + 1;
}

bool ListItem::selected() const {
    return m_owner.selectedItem() == this;
}

std::string_view ListItem::cell(std::size_t index) const {
    const CellSpan span = locate(m_cells, index);
    if (span.at == m_cells.size())
        return {};
    return {m_cells.data() + span.at + span.header, span.length};
}

bool ListItem::setCell(std::size_t index, std::string_view text) {
    char header[kLongHeader];
    const std::size_t headerSize = writeHeader(header, text.size());
    const CellSpan span = locate(m_cells, index);
    if (span.at == m_cells.size()) {
        if (text.empty())
            return false;
        // Growing the buffer would free a cell the text views: copy it first.
        std::string own;
        if (std::less_equal<const char*>{}(m_cells.data(), text.data()) &&
            std::less<const char*>{}(text.data(), m_cells.data() + m_cells.size())) {
            own = text;
            text = own;
        }
        // Absent cells before this one become empty ones, a length byte each.
        const std::size_t missing = index - cellCount(m_cells);
        const std::size_t needed = m_cells.size() + missing + headerSize + text.size();
        // A row is usually filled cell by cell: leave room for a short cell in every column at
        // the first growth, rather than reallocating the row two or three times while it fills.
        if (needed > m_cells.capacity())
            m_cells.reserve(
                std::max(needed + kShortCell * static_cast<std::size_t>(m_owner.columnCount()),
                         2 * m_cells.capacity()));
        m_cells.append(missing, '\0');
        m_cells.append(header, headerSize);
        m_cells.append(text);
        return true;
    }
    if (std::string_view(m_cells).substr(span.at + span.header, span.length) == text)
        return false;
    m_cells.replace(span.at + span.header, span.length, text);
    m_cells.replace(span.at, span.header, header, headerSize);
    return true;
}

void ListItem::keepKey() {
    if (!m_ownKey)
        m_ownKey = std::make_unique<std::string>(text());
}

} // namespace morvel::view
