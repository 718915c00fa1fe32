// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "fields/field_defs.h"
#include "testing/snapshot.h"

#include <gtest/gtest.h>
#include <string>

namespace morvel {
namespace {

TEST(FieldDefs, FindsFieldsByNameIgnoringCaseAndByOneBasedPosition) {
    FieldDefs defs;
    auto amount = defs.Add("Amount", 6);
    auto note = defs.Add("Note", 200);
    EXPECT_EQ(defs.Count(), 2);
    EXPECT_EQ(defs.Item("amount"), amount);
    EXPECT_EQ(defs.Item("NOTE"), note);
    EXPECT_EQ(defs.Item(1), amount);
    EXPECT_EQ(defs.Item(2), note);
    EXPECT_THROW(defs.Item(0), NotFoundError);
    EXPECT_THROW(defs.Item(3), NotFoundError);
    EXPECT_THROW(defs.Item("Amoun"), NotFoundError);
    EXPECT_EQ(defs.find("Missing"), nullptr);
}

TEST(FieldDefs, RaisesAfterAddAndAfterRemoveOnceTheCollectionHasChanged) {
    FieldDefs defs;
    defs.Add("First", 3);
    std::string seen;
    auto added = defs.AfterAdd.connect([&](const FieldDefs::FieldPtr& field) {
        seen += "+" + field->Name() + std::to_string(defs.Count());
        EXPECT_EQ(defs.find(field->Name()), field);
        EXPECT_EQ(field->collection(), &defs);
    });
    auto removed = defs.AfterRemove.connect([&](const FieldDefs::FieldPtr& field) {
        seen += "-" + field->Name() + std::to_string(defs.Count());
        EXPECT_EQ(defs.find(field->Name()), nullptr);
        EXPECT_EQ(field->collection(), nullptr);
    });
    defs.Add("Second", 3);
    defs.Insert(1, std::make_shared<FieldDef>("Zero", 3));
    defs.Remove("First");
    EXPECT_EQ(seen, "+Second2+Zero3-First2");
}

TEST(FieldDefs, RefusesEmptyAndClashingNames) {
    FieldDefs defs;
    defs.Add("Amount", 6);
    int added = 0;
    auto connection = defs.AfterAdd.connect([&](const FieldDefs::FieldPtr&) { ++added; });
    EXPECT_THROW(FieldDef(""), FieldNameError);
    EXPECT_THROW(defs.Add("AMOUNT", 3), FieldNameError);
    EXPECT_EQ(testkit::fieldNames(defs), "Amount");
    EXPECT_EQ(added, 0);
    auto other = defs.Add("Other", 3);
    EXPECT_THROW(other->SetName("amount"), FieldNameError);
    EXPECT_THROW(other->SetName(""), FieldNameError);
    EXPECT_EQ(other->Name(), "Other");
    EXPECT_EQ(defs.Item("other"), other);
    // A field in one collection cannot join a second one.
    FieldDefs second;
    EXPECT_THROW(second.Add(other), InvalidOperationError);
}

TEST(FieldDefs, RenameKeepsTheNameLookUpRight) {
    FieldDefs defs;
    auto shortName = defs.Add("Id", 3);
    auto longName = defs.Add("CustomerReferenceNumber", 8);
    shortName->SetName("ID"); // only the letter case of its own name
    EXPECT_EQ(defs.Item("id"), shortName);
    // Short names live inside the string object, long ones on the heap: the index must follow
    // both, also when a rename moves a name from one form to the other.
    shortName->SetName("CustomerIdentifierLong");
    longName->SetName("Ref");
    EXPECT_EQ(defs.find("Id"), nullptr);
    EXPECT_EQ(defs.find("CustomerReferenceNumber"), nullptr);
    EXPECT_EQ(defs.Item("customeridentifierlong"), shortName);
    EXPECT_EQ(defs.Item("REF"), longName);
    longName->SetName("Id"); // the old name is free again
    EXPECT_EQ(defs.Item("id"), longName);
    defs.Remove("CUSTOMERIDENTIFIERLONG");
    EXPECT_EQ(testkit::fieldNames(defs), "Id");
    // A removed field no longer answers to its former collection's names.
    shortName->SetName("Id");
    EXPECT_EQ(defs.Item("Id"), longName);
}

} // namespace
} // namespace morvel
