// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/control.h"

#include <cstdint>
#include <string>
#include <vector>

namespace morvel::view {

// A combo box: a drop-down list the user can only pick from, or an editable box with
// suggestions. Entries carry item data (the number a choice stands for).
//
// Events: setting listIndex to another entry raises Click, from code as from the user; picking an
// entry raises Click (in an editable box it also takes the entry's text, without Change); typing
// into an editable box raises Change. A sorted box keeps its entries in case-insensitive text
// order, and addItem answers where the new entry went, so its item data can be set.
class ComboBox : public Control {
public:
    enum class Style : std::uint8_t { Editable, DropDownList };

    ComboBox(Container* parent, std::string name, Style style, bool sorted = false);

    Style style() const { return m_style; }
    bool sorted() const { return m_sorted; }

    std::int32_t addItem(std::string text);
    void removeItem(std::int32_t index);
    // Removes every entry; the selection becomes -1 without Click.
    void clear();
    std::int32_t listCount() const { return static_cast<std::int32_t>(m_items.size()); }
    const std::string& list(std::int32_t index) const;
    std::int32_t itemData(std::int32_t index) const;
    void setItemData(std::int32_t index, std::int32_t data);

    std::int32_t listIndex() const { return m_listIndex; }
    // -1 clears the selection; any other index outside the list throws InvalidOperationError.
    void setListIndex(std::int32_t index);

    // Editable: the box's text. Drop-down list: the selected entry's text, or "".
    const std::string& text() const;
    // Editable: sets the text, raising Change when it differs; the selection is dropped unless
    // the text equals the selected entry's. Drop-down list: selects the entry of exactly that text
    // (raising Click), or throws InvalidOperationError when there is none.
    void setText(std::string text);

    bool locked() const { return m_locked; }
    void setLocked(bool locked);

    // The user's actions; refused (false) when the box is locked or cannot take the focus.
    bool pick(std::int32_t index);
    bool type(std::string text);

    Signal<> Click;
    Signal<> Change;

private:
    struct Item {
        std::string text;
        std::int32_t data = 0;
    };
    const Item& at(std::int32_t index) const;
    void selectIndex(std::int32_t index);

    std::vector<Item> m_items;
    std::string m_text;
    std::int32_t m_listIndex = -1;
    Style m_style;
    bool m_sorted;
    bool m_locked = false;
};

} // namespace morvel::view
