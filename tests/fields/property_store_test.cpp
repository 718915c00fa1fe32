// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "fields/field_def.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace morvel {
namespace {

// The store as one line: "key=value" per entry in enumeration order.
std::string snapshot(const PropertyStore& store) {
    std::string text;
    for (const ListEntry& entry : store)
        text += (text.empty() ? "" : "|") + entry.Key + "=" + entry.Value.toText();
    return text;
}

struct Recorder : StoreObserver {
    std::vector<std::string> seen;
    void storeChanged(const PropertyStore&, const StoreChange& change) override {
        static const char* const kActions[] = {"Added", "Changed", "Removed", "Cleared"};
        seen.push_back(std::string(kActions[static_cast<int>(change.action)]) + " " + change.key +
                       " " + change.oldValue.toText() + ">" + change.newValue.toText());
    }
};

TEST(Value, KeepsItsKindAndComparesByKind) {
    EXPECT_TRUE(Value().isEmpty());
    // Same text when shown, different values: a Long 1 is neither "1" nor True.
    EXPECT_NE(Value(1), Value("1"));
    EXPECT_NE(Value(-1), Value(true));
    EXPECT_NE(Value(0), Value(false));
    EXPECT_NE(Value(""), Value());
    EXPECT_EQ(Value(true).toText(), "True");
    EXPECT_THROW(Value("7").asLong(), TypeMismatchError);
    EXPECT_THROW(Value(7).asText(), TypeMismatchError);
}

TEST(PropertyStore, KeepsFirstStoredOrderAcrossUpdateRemoveAndReAdd) {
    PropertyStore store;
    store.SetValue("a", 1, true);
    store.SetValue("b", "x", true);
    store.SetValue("c", true, true);
    store.SetValue("b", "y", true);
    EXPECT_EQ(snapshot(store), "a=1|b=y|c=True");
    store.Remove("a");
    store.SetValue("a", 2, true);
    EXPECT_EQ(snapshot(store), "b=y|c=True|a=2");
    EXPECT_EQ(store.Count(), 3);
}

// Small stores are searched in order, large ones through an index with holes for removed
// entries: order, look-ups and counts must not depend on which one a store is at the moment.
TEST(PropertyStore, LargeStoresKeepOrderAndLookUpsThroughRemovalsAndCompaction) {
    PropertyStore store;
    Recorder recorder;
    store.setObserver(&recorder);
    std::string expected;
    for (int i = 0; i < 40; ++i)
        store.SetValue("k" + std::to_string(i), i, true);
    for (int i = 0; i < 40; ++i)
        if (i % 4 != 1)
            store.Remove("k" + std::to_string(i)); // the index compacts on the way
    store.SetValue("k0", "back", true);
    store.SetValue("k5", "five", true);
    for (int i = 1; i < 40; i += 4)
        expected += "k" + std::to_string(i) + "=" + (i == 5 ? "five" : std::to_string(i)) + "|";
    EXPECT_EQ(snapshot(store), expected + "k0=back");
    EXPECT_EQ(store.Count(), 11);
    EXPECT_EQ(store.Lookup("k2"), nullptr);
    EXPECT_EQ(store.GetValue("k37", 0), Value(37));
    EXPECT_EQ(recorder.seen.size(), 40u + 30u + 2u);
    EXPECT_EQ(recorder.seen[69], "Removed k39 39>");
    for (int i = 0; i < 20; ++i)
        store.SetValue("m" + std::to_string(i), i, true);
    store.Remove("k1");
    EXPECT_EQ(store.Count(), 30);
    EXPECT_EQ(store.Lookup("m19")->Value, Value(19));
    store.Clear();
    EXPECT_EQ(snapshot(store), "");
    store.SetValue("m19", 1, false);
    EXPECT_EQ(snapshot(store), "m19=1");
}

TEST(PropertyStore, AbsentKeysReadAsTheDefaultAndLookUpAsNothing) {
    PropertyStore store;
    store.SetValue("Encyrpt.Type", 2, true);
    EXPECT_EQ(store.GetValue("Encyrpt.Type", 1), Value(2));
    EXPECT_EQ(store.GetValue("Encyrpt.KeyLen", 0), Value(0));
    EXPECT_EQ(store.GetValue("zrDirect.OB", "DisplayName"), Value("DisplayName"));
    // Keys are case-exact.
    EXPECT_EQ(store.GetValue("encyrpt.type", 1), Value(1));
    ASSERT_NE(store.Lookup("Encyrpt.Type"), nullptr);
    EXPECT_EQ(store.Lookup("Encyrpt.Type")->Value, Value(2));
    EXPECT_EQ(store.Lookup("Sign.Type"), nullptr);
}

TEST(PropertyStore, AbsentKeyWithoutAddIfMissingIsStoredOnlyDuringARewrite) {
    FieldDef field("Colour", 1100);
    PropertyStore& store = field.ListValues();
    EXPECT_FALSE(store.SetValue("I1", "One", false));
    EXPECT_EQ(store.Count(), 0);
    store.SetValue("I1", "One", true);
    EXPECT_TRUE(store.SetValue("I1", "Uno", false)); // existing keys always take the value
    store.Clear();
    EXPECT_TRUE(store.SetValue("I1", "One", false));
    EXPECT_TRUE(store.SetValue("I2", "Two", false));
    field.CommitListValues();
    EXPECT_FALSE(store.SetValue("I3", "Three", false));
    EXPECT_EQ(snapshot(store), "I1=One|I2=Two");
}

TEST(PropertyStore, TellsItsObserverEachChangeOnce) {
    PropertyStore store;
    Recorder recorder;
    store.setObserver(&recorder);
    store.SetValue("k", 1, true);
    store.SetValue("k", 1, true); // same value: nothing changed
    store.SetValue("k", "t", true);
    store.Remove("k");
    store.Remove("k"); // absent: harmless and silent
    store.Clear();     // already empty
    store.SetValue("k", false, true);
    store.Clear();
    EXPECT_EQ(recorder.seen,
              (std::vector<std::string>{"Added k >1", "Changed k 1>t", "Removed k t>",
                                        "Added k >False", "Cleared  >"}));
}

// Undo puts a removed entry back where it stood and a cleared store back as it was: the
// notifications tell the place and the entries, with and without the hash index and its holes.
TEST(PropertyStore, TellsWhereAnEntryWasAndWhatAClearTookSoBothCanBePutBack) {
    struct Case {
        int entries;
        int holes; // removed before the test, leaving holes in an indexed store
        std::string removedKey;
        std::int32_t position;
    };
    for (const Case& c : {Case{3, 0, "k1", 2}, Case{30, 0, "k20", 21}, Case{30, 5, "k20", 16},
                          Case{30, 5, "k29", 25}}) {
        SCOPED_TRACE(c.entries * 100 + c.holes);
        PropertyStore store;
        for (int i = 0; i < c.entries; ++i)
            store.SetValue("k" + std::to_string(i), i % 2 ? Value(i) : Value("t"), true);
        for (int i = 0; i < c.holes; ++i)
            store.Remove("k" + std::to_string(i));
        const std::string before = snapshot(store);
        struct Kept : StoreObserver {
            StoreChange last{StoreChange::Action::Changed, {}, {}, {}};
            void storeChanged(const PropertyStore&, const StoreChange& change) override {
                last = change;
            }
        } kept;
        store.setObserver(&kept);
        store.Remove(c.removedKey);
        EXPECT_EQ(kept.last.position, c.position);
        store.Insert(kept.last.position, kept.last.key, kept.last.oldValue);
        EXPECT_EQ(kept.last.position, c.position);
        EXPECT_EQ(snapshot(store), before);
        EXPECT_THROW(store.Insert(1, c.removedKey, 1), InvalidOperationError);
        EXPECT_THROW(store.Insert(store.Count() + 2, "new", 1), NotFoundError);
        store.Clear();
        ASSERT_TRUE(kept.last.cleared);
        PropertyStore refilled;
        for (const ListEntry& entry : *kept.last.cleared)
            refilled.SetValue(entry.Key, entry.Value, true);
        EXPECT_EQ(snapshot(refilled), before);
    }
}

} // namespace
} // namespace morvel
