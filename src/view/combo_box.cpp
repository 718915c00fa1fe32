// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "view/combo_box.h"

#include "base/error.h"
#include "base/text.h"

#include <algorithm>

namespace morvel::view {

namespace {
const std::string kNoText;
}

ComboBox::ComboBox(Container* parent, std::string name, Style style, bool sorted)
    : Control(parent, std::move(name))
    , m_style(style)
    , m_sorted(sorted) {}

std::int32_t ComboBox::addItem(std::string text) {
    auto place = m_items.end();
    if (m_sorted)
        place = std::upper_bound(m_items.begin(), m_items.end(), text,
                                 [](const std::string& value, const Item& item) {
                                     return compareIgnoringCase(value, item.text) < 0;
                                 });
    const auto index = static_cast<std::int32_t>(place - m_items.begin());
    m_items.insert(place, Item{std::move(text), 0});
    if (m_listIndex >= index)
        ++m_listIndex;
    notify(Property::Items);
    return index;
}

void ComboBox::removeItem(std::int32_t index) {
    at(index);
    m_items.erase(m_items.begin() + index);
    if (m_listIndex == index) {
        m_listIndex = -1;
        if (m_style == Style::DropDownList)
            m_text.clear();
        notify(Property::ListIndex);
    } else if (m_listIndex > index) {
        --m_listIndex;
    }
    notify(Property::Items);
}

void ComboBox::clear() {
    if (m_items.empty() && m_listIndex == -1)
        return;
    m_items.clear();
    m_listIndex = -1;
    if (m_style == Style::DropDownList)
        m_text.clear();
    notify(Property::Items);
}

const ComboBox::Item& ComboBox::at(std::int32_t index) const {
    if (index < 0 || index >= listCount())
        throw InvalidOperationError("\"" + name() + "\" has no entry " + std::to_string(index) +
                                    ".");
    return m_items[static_cast<std::size_t>(index)];
}

const std::string& ComboBox::list(std::int32_t index) const {
    return at(index).text;
}
std::int32_t ComboBox::itemData(std::int32_t index) const {
    return at(index).data;
}

void ComboBox::setItemData(std::int32_t index, std::int32_t data) {
    at(index);
    m_items[static_cast<std::size_t>(index)].data = data;
}

void ComboBox::setListIndex(std::int32_t index) {
    if (index != -1)
        at(index);
    if (index == m_listIndex)
        return;
    selectIndex(index);
    Click.notify();
}

void ComboBox::selectIndex(std::int32_t index) {
    m_listIndex = index;
    if (index >= 0)
        m_text = m_items[static_cast<std::size_t>(index)].text;
    else if (m_style == Style::DropDownList)
        m_text.clear();
    notify(Property::ListIndex);
    notify(Property::Text);
}

const std::string& ComboBox::text() const {
    if (m_style == Style::DropDownList && m_listIndex < 0)
        return kNoText;
    return m_text;
}

void ComboBox::setText(std::string text) {
    if (m_style == Style::DropDownList) {
        auto found = std::find_if(m_items.begin(), m_items.end(),
                                  [&](const Item& item) { return item.text == text; });
        if (found == m_items.end())
            throw InvalidOperationError("\"" + name() + "\" offers no entry \"" + text + "\".");
        setListIndex(static_cast<std::int32_t>(found - m_items.begin()));
        return;
    }
    if (text == m_text)
        return;
    m_text = std::move(text);
    if (m_listIndex >= 0 && m_items[static_cast<std::size_t>(m_listIndex)].text != m_text) {
        m_listIndex = -1;
        notify(Property::ListIndex);
    }
    notify(Property::Text);
    Change.notify();
}

void ComboBox::setLocked(bool locked) {
    if (locked == m_locked)
        return;
    m_locked = locked;
    notify(Property::Locked);
}

bool ComboBox::pick(std::int32_t index) {
    if (m_locked || !focusable())
        return false;
    at(index);
    setFocus();
    if (index != m_listIndex)
        selectIndex(index);
    Click.notify();
    return true;
}

bool ComboBox::type(std::string text) {
    if (m_style != Style::Editable || m_locked || !focusable())
        return false;
    setFocus();
    setText(std::move(text));
    return true;
}

} // namespace morvel::view
