// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "control/morvel.h"
#include "fields/field_defs.h"
#include "testing/in_memory_database.h"
#include "testing/scripted_modal_host.h"
#include "testing/scripted_prompter.h"
#include "testing/snapshot.h"
#include "view/modal_host.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>

namespace morvel::testing {

// A designer driven as a person would drive it, with a scripted prompter, a scripted modal host
// and an in-memory database that records every search.
class DesignerTest : public ::testing::Test {
protected:
    DesignerTest()
        : designer(prompter, modalHost) {
        designer.move(0, 0, 12000, 9000);
    }

    // A collection with the given (name, type) fields, handed to the designer.
    std::shared_ptr<FieldDefs> give(std::initializer_list<std::pair<std::string, int>> fields) {
        auto defs = std::make_shared<FieldDefs>();
        for (const auto& [name, type] : fields)
            defs->Add(name, type);
        designer.SetFieldDefs(defs);
        return defs;
    }

    std::shared_ptr<testkit::InMemoryDatabase> attachDatabase() {
        auto db = std::make_shared<testkit::InMemoryDatabase>();
        db->addTable({1, "Customers", "Customers", 2});
        db->addTable({2, "Products", "Product Catalogue", 2});
        db->addTable({3, "OrderLines", "Order Lines", 4});
        db->addTable({4, "Addresses", "Addresses", 4});
        designer.SetDatabase(db);
        return db;
    }

    // Types text one character at a time, as a keyboard would: one Change per keystroke.
    template <typename Box> static void typeInto(Box& box, std::string_view text) {
        for (char c : text)
            box.type(box.text() + c);
    }

    // Picks the entry with that item data as a person would, from the drop-down.
    static void pickByData(view::ComboBox& box, int data) { box.pick(indexOf(box, data)); }
    // Selects the entry with that item data from code, as a host or a loader would: no focus,
    // no lock check, Click raised when the selection moves.
    static void selectByData(view::ComboBox& box, int data) {
        box.setListIndex(indexOf(box, data));
    }
    static int indexOf(const view::ComboBox& box, int data) {
        for (int i = 0; i < box.listCount(); ++i)
            if (box.itemData(i) == data)
                return i;
        ADD_FAILURE() << box.name() << " offers no entry with item data " << data;
        return -1;
    }

    // The item data of the selected entry, or -1 when nothing is selected.
    static int selectedData(const view::ComboBox& box) {
        return box.listIndex() < 0 ? -1 : box.itemData(box.listIndex());
    }

    // The entries of a combo box, joined by '|'.
    static std::string entries(const view::ComboBox& box) {
        std::string out;
        for (int i = 0; i < box.listCount(); ++i)
            out += (i ? "|" : "") + box.list(i);
        return out;
    }

    // The panel's frame as one line: the name box ("-" after it when disabled), the type's item
    // data, the tabs with the selected one starred, the visible panels, create on demand.
    std::string panelState() const {
        const auto& tabs = designer.TabStrip;
        std::string out = designer.txtName.text() + (designer.txtName.enabled() ? "|" : "-|") +
                          std::to_string(selectedData(designer.cboType)) + "|";
        for (int i = 1; i <= tabs.count(); ++i)
            out += tabs.caption(i) + (tabs.selectedIndex() == i ? "*," : ",");
        for (int i = 1; i <= control::PanelArray::kCount; ++i)
            out += designer.pic(i).visible() ? "|pic" + std::to_string(i) : "";
        return out + "|cod" + std::to_string(designer.chkCreateOnDemand.value());
    }

    // Clicks the row of that field.
    void clickRow(std::string_view name) { designer.lst.clickItem(designer.lst.item(name)); }

    // The list as one string: each row's text and cells joined by '|', rows by '\n'.
    std::string listSnapshot() const { return testkit::listSnapshot(designer.lst); }

    testkit::ScriptedPrompter prompter;
    testkit::ScriptedModalHost modalHost;
    control::Morvel designer;
};

} // namespace morvel::testing
