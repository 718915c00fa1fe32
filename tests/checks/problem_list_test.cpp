// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/field_types.h"
#include "catalogue/property_keys.h"
#include "checks/problem_list.h"
#include "history/history.h"
#include "testing/in_memory_database.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace morvel::checks {
namespace {

namespace type = catalogue::type;
using FieldEdit = std::function<void(FieldDefs&, FieldDef&)>;

void set(FieldDef& field, std::string_view key, Value value) {
    field.Properties().SetValue(key, std::move(value), true);
}

// A table whose own fields have no problem, and a database with two tables.
struct Table {
    Table() {
        database.addTable({1, "Customers", "Customers", 2});
        database.addTable({4, "Lines", "Lines", 4});
        auto customer = fields->Add("Customer", type::Link);
        set(*customer, catalogue::kDirectTable, "Customers");
        fields->Add("Total", type::Long);
    }
    testkit::InMemoryDatabase database;
    std::shared_ptr<FieldDefs> fields = std::make_shared<FieldDefs>();
};

// Every row as "field|rule", in row order; and the same rows as the signals built them.
struct RowMirror {
    explicit RowMirror(ProblemList& watched)
        : list(watched) {
        for (std::int32_t i = 0; i < list.rowCount(); ++i)
            rows.push_back(text(list.row(i)));
        watch += list.rowsRemoved.connect([this](const ProblemRows& r) {
            rows.erase(rows.begin() + r.first, rows.begin() + r.first + r.count);
        });
        watch += list.rowsInserted.connect([this](const ProblemRows& r) {
            for (std::int32_t i = 0; i < r.count; ++i)
                rows.insert(rows.begin() + r.first + i, text(this->list.row(r.first + i)));
        });
    }
    static std::string text(const Problem& problem) {
        return std::to_string(static_cast<int>(problem.rule)) + ":" + problem.what;
    }
    std::vector<std::string> current() const {
        std::vector<std::string> now;
        for (std::int32_t i = 0; i < list.rowCount(); ++i)
            now.push_back(text(list.row(i)));
        return now;
    }
    ProblemList& list;
    std::vector<std::string> rows;
    Connections watch;
};

std::vector<Rule> rulesOf(const ProblemList& list, const FieldDef& field) {
    std::vector<Rule> rules;
    for (const Problem& problem : list.problemsOf(field.id()))
        rules.push_back(problem.rule);
    return rules;
}

TEST(ProblemList, EachRuleFindsItsFaultAndForgetsItOnceMended) {
    struct Case {
        const char* what;
        std::string name;
        std::int32_t type;
        FieldEdit fault;
        FieldEdit mend;
        Rule rule;
    };
    const auto none = [](FieldDefs&, FieldDef&) {};
    const std::vector<Case> cases{
        {"blank name", " ", type::Text, none, [](auto&, auto& f) { f.SetName("Blank"); },
         Rule::NameBlank},
        {"blank in name", "Order Date", type::Text, none,
         [](auto&, auto& f) { f.SetName("Order_Date"); }, Rule::NameCharacters},
        {"long name", std::string(65, 'a'), type::Text, none,
         [](auto&, auto& f) { f.SetName(std::string(64, 'a')); }, Rule::NameTooLong},
        {"case only", "\xC3\xA4nderung", type::Text,
         [](FieldDefs& all, auto&) { all.Add("\xC3\x84nderung", type::Text); },
         [](auto&, auto& f) { f.SetName("Anderung"); }, Rule::NameCaseOnly},
        {"system prefix", "zrNotes", type::Text, none, [](auto&, auto& f) { f.SetName("Notes"); },
         Rule::ReservedPrefix},
        {"link to nothing", "Supplier", type::Link, none,
         [](auto&, auto& f) { set(f, catalogue::kDirectObjectType, 12); }, Rule::LinkWithoutTarget},
        {"table not in database", "Supplier", type::MultipleLink,
         [](auto&, auto& f) { set(f, catalogue::kDirectTable, "Nowhere"); },
         [](auto&, auto& f) { set(f, catalogue::kDirectTable, "CUSTOMERS"); }, Rule::UnknownTable},
        {"sub table id not in database", "Lines", type::SubTable,
         [](auto&, auto& f) { set(f, catalogue::kDirectSubTable, 9); },
         [](auto&, auto& f) { set(f, catalogue::kDirectSubTable, 4); }, Rule::UnknownTable},
        {"sub link to a field of another type", "Address", type::SubLink,
         [](auto&, auto& f) {
             set(f, catalogue::kSubLinkTable, "Lines");
             set(f, catalogue::kSubLinkField, "Total");
         },
         [](auto&, auto& f) { set(f, catalogue::kSubLinkField, "customer"); }, Rule::SubLinkField},
        {"signature over a missing field", "zrSignature", type::Signature,
         [](auto&, auto& f) { set(f, catalogue::kSignFields, "Customer, Gone"); },
         [](FieldDefs& all, auto&) { all.Add("Gone", type::Text); }, Rule::SignatureFields},
        {"list without values", "State", type::List, none,
         [](auto&, auto& f) { f.ListValues().SetValue("1", Value("Open"), true); },
         Rule::ListWithoutValues},
        {"bit mask value of two bits", "Flags", type::BitMaskList,
         [](auto&, auto& f) {
             f.ListValues().SetValue("1", Value("A"), true);
             f.ListValues().SetValue("3", Value("B"), true);
         },
         [](auto&, auto& f) { f.ListValues().Remove("3"); }, Rule::BitMaskValues},
        {"whole number default", "Count", type::Long,
         [](auto&, auto& f) { f.SetDefaultValue("1.5"); },
         [](auto&, auto& f) { f.SetDefaultValue("-15"); }, Rule::DefaultValue},
        {"Boolean default", "Paid", 11, [](auto&, auto& f) { f.SetDefaultValue("Yes"); },
         [](auto&, auto& f) { f.SetDefaultValue("false"); }, Rule::DefaultValue},
        {"list default", "State", type::MultipleList,
         [](auto&, auto& f) {
             f.ListValues().SetValue("1", Value("Open"), true);
             f.ListValues().SetValue("2", Value("Done"), true);
             f.SetDefaultValue("1,3");
         },
         [](auto&, auto& f) { f.ListValues().SetValue("3", Value("Lost"), true); },
         Rule::DefaultValue},
        {"edit template", "Count", type::Long, [](auto&, auto& f) { f.SetCtrlEdit("CHECKBOX"); },
         [](auto&, auto& f) { f.SetCtrlEdit("NUMERICBOX"); }, Rule::EditTemplate},
        {"read-only template", "Customer2", type::Link,
         [](auto&, auto& f) {
             set(f, catalogue::kDirectTable, "Customers");
             f.SetCtrlReadOnly("HTML");
         },
         [](auto&, auto& f) { f.SetCtrlReadOnly("VALUELABELLINK"); }, Rule::ReadOnlyTemplate},
        {"size of a sized type", "Code", type::VarChar, none, [](auto&, auto& f) { f.SetSize(20); },
         Rule::Size},
        {"size of a type without one", "Notes", type::Text, [](auto&, auto& f) { f.SetSize(4001); },
         [](auto&, auto& f) { f.SetSize(0); }, Rule::Size},
    };
    for (const Case& c : cases) {
        Table table;
        auto field = std::make_shared<FieldDef>(c.name, c.type);
        if (c.type == type::VarChar)
            field->SetSize(0);
        c.fault(*table.fields, *field);
        table.fields->Add(field);
        ProblemList list(table.fields, &table.database);
        RowMirror mirror(list);
        EXPECT_EQ(rulesOf(list, *field), std::vector<Rule>{c.rule}) << c.what;
        c.mend(*table.fields, *field);
        EXPECT_EQ(list.rowCount(), 0)
            << c.what << ": " << (list.rowCount() ? list.row(0).what : "");
        EXPECT_EQ(mirror.rows, mirror.current()) << c.what;
        EXPECT_EQ(list.errorCount() + list.warningCount(), 0) << c.what;
    }
}

// A sub link and a signature follow the fields they name through a rename, an undo, a removal
// and a change of type, without the table being checked again as a whole.
TEST(ProblemList, FieldsThatReferToARenamedFieldAreCheckedAgain) {
    Table table;
    auto address = table.fields->Add("Address", type::SubLink);
    set(*address, catalogue::kSubLinkTable, "Lines");
    set(*address, catalogue::kSubLinkField, "Customer");
    auto signature = table.fields->Add("zrSignature", type::Signature);
    set(*signature, catalogue::kSignFields, "Total,Customer");
    History history(*table.fields);
    ProblemList list(table.fields, &table.database);
    RowMirror mirror(list);
    const auto customer = table.fields->Item("Customer");
    const auto problems = [&] {
        std::string text;
        for (const auto& field : *table.fields)
            for (const Problem& problem : list.problemsOf(field->id()))
                text += field->Name() + ": " + problem.what + "\n";
        return text;
    };
    ASSERT_EQ(problems(), "");

    struct Step {
        const char* what;
        std::function<void()> act;
        std::string problems;
    };
    const std::vector<Step> steps{
        {"rename", [&] { customer->SetName("Client"); },
         "Address: The link field \"Customer\" does not exist.\n"
         "zrSignature: The signature covers fields that do not exist: \"Customer\".\n"},
        {"undo", [&] { history.undo(); }, ""},
        {"type", [&] { customer->SetFieldType(type::Text); },
         "Address: The field \"Customer\" is of type Text, not Link.\n"},
        {"undo", [&] { history.undo(); }, ""},
        {"remove", [&] { table.fields->Remove("Total"); },
         "zrSignature: The signature covers fields that do not exist: \"Total\".\n"},
        {"undo", [&] { history.undo(); }, ""},
        {"redo", [&] { history.redo(); },
         "zrSignature: The signature covers fields that do not exist: \"Total\".\n"},
    };
    for (const Step& step : steps) {
        step.act();
        EXPECT_EQ(problems(), step.problems) << step.what;
        EXPECT_EQ(mirror.rows, mirror.current()) << step.what;
    }
}

} // namespace
} // namespace morvel::checks
