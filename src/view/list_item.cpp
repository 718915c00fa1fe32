#include "view/list_item.h"

#include "fields/error.h"
#include "view/list_view.h"

namespace morvel::view {

namespace {
const std::string kEmpty;
}

ListItem::ListItem(ListView& owner, std::string key, std::string text)
    : m_owner(owner)
    , m_key(std::move(key))
    , m_text(std::move(text)) {}

void ListItem::setKey(std::string key) {
    if (key != m_key)
        m_owner.rekey(*this, std::move(key));
}

void ListItem::setText(std::string text) {
    if (text == m_text)
        return;
    m_text = std::move(text);
    m_owner.cellChanged(*this, 0);
}

const std::string& ListItem::subItem(std::int32_t index) const {
    if (index < 1 || static_cast<std::size_t>(index) > m_subItems.size())
        return kEmpty;
    return m_subItems[static_cast<std::size_t>(index - 1)];
}

void ListItem::setSubItem(std::int32_t index, std::string text) {
    if (index < 1 || index >= m_owner.columnCount())
        throw NotFoundError("The list \"" + m_owner.name() + "\" has no sub item " +
                            std::to_string(index) + ".");
    const auto at = static_cast<std::size_t>(index - 1);
    if (at >= m_subItems.size()) {
        if (text.empty())
            return;
        // Room for every column at once: growing cell by cell reallocates the row several times
        // and leaves it with up to twice the capacity it needs.
        if (m_subItems.capacity() == 0)
            m_subItems.reserve(static_cast<std::size_t>(m_owner.columnCount() - 1));
        m_subItems.resize(at + 1);
    }
    if (m_subItems[at] == text)
        return;
    m_subItems[at] = std::move(text);
    m_owner.cellChanged(*this, index);
}

std::int32_t ListItem::index() const {
    return m_owner.positionOf(*this) + 1;
}

bool ListItem::selected() const {
    return m_owner.selectedItem() == this;
}

} // namespace morvel::view
