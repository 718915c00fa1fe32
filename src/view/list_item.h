#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace morvel::view {

class ListView;

// One row of a ListView: key, text (the first column), tag, and sub items for the other columns
// (1-based: sub item i shows in column i + 1). Setters tell the list's observers which cell
// changed.
class ListItem {
public:
    ListItem(ListView& owner, std::string key, std::string text);
    ListItem(const ListItem&) = delete;
    ListItem& operator=(const ListItem&) = delete;

    const std::string& key() const { return m_key; }
    // Changes the row's key; throws DuplicateKeyError when another row has it.
    void setKey(std::string key);
    const std::string& text() const { return m_text; }
    void setText(std::string text);
    const std::string& tag() const { return m_tag; }
    void setTag(std::string tag) { m_tag = std::move(tag); }
    // An absent sub item reads as "".
    const std::string& subItem(std::int32_t index) const;
    void setSubItem(std::int32_t index, std::string text);

    // 1-based position in the list.
    std::int32_t index() const;
    bool selected() const;

private:
    friend class ListView;

    ListView& m_owner;
    std::string m_key;
    std::string m_text;
    std::string m_tag;
    std::vector<std::string> m_subItems;
    // Position as of the last renumbering; the owner renumbers lazily after a removal.
    mutable std::int32_t m_position = 0;
};

} // namespace morvel::view
