// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace morvel::view {

class ListView;

// One row of a ListView: key, text (the first column), tag, and sub items for the other columns
// (1-based: sub item i shows in column i + 1). Setters tell the list's observers which cell
// changed; the tag is the caller's own and changes silently.
//
// A list may hold 100,000 rows, so a row is packed: its text, tag and sub items sit one after the
// other in one buffer, each behind its length, and the key is stored apart only while it differs
// from the text. The views the getters return last until the row's next change; the setters take
// views, so that filling a row copies each text once, into the row.
class ListItem {
public:
    ListItem(ListView& owner, std::string_view key, std::string_view text);
    ListItem(const ListItem&) = delete;
    ListItem& operator=(const ListItem&) = delete;
    ~ListItem();

    std::string_view key() const { return m_ownKey ? std::string_view(*m_ownKey) : text(); }
    // Changes the row's key; throws DuplicateKeyError when another row has it.
    void setKey(std::string key);
    std::string_view text() const { return cell(kTextCell); }
    void setText(std::string_view text);
    std::string_view tag() const { return cell(kTagCell); }
    void setTag(std::string_view tag) { setCell(kTagCell, tag); }
    // An absent sub item reads as "".
    std::string_view subItem(std::int32_t index) const;
    void setSubItem(std::int32_t index, std::string_view text);

    // 1-based position in the list.
    std::int32_t index() const;
    bool selected() const;

private:
    friend class ListView;

    static constexpr std::size_t kTextCell = 0;
    static constexpr std::size_t kTagCell = 1;
    // Sub item i is cell i + 1.
    static constexpr std::size_t kFirstSubItemCell = 2;

    std::string_view cell(std::size_t index) const;
    // False when the cell had that text already. The text may be one of the row's own cells.
    bool setCell(std::size_t index, std::string_view text);
    // Keeps the key as it is while the text changes under it.
    void keepKey();

    ListView& m_owner;
    std::string m_cells;
    // Null while the key is the text, as it is for nearly every row.
    std::unique_ptr<std::string> m_ownKey;
    // Position as of the last renumbering; the owner renumbers lazily after a removal.
    mutable std::int32_t m_position = 0;
};

} // namespace morvel::view
