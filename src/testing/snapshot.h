// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace morvel {
class FieldDefs;
class PropertyStore;
namespace view {
class ListView;
}
} // namespace morvel

namespace morvel::testkit {

// One text per state, so that a test compares a whole list, store or collection with one
// EXPECT_EQ and a failure shows every difference at once.

// A list view: each row's text and its cells joined by '|', one row a line.
std::string listSnapshot(const view::ListView& list);
// A property store in stored order: key=value joined by ';', texts quoted, so that a whole
// number 0 and the text "0" differ.
std::string storeSnapshot(const PropertyStore& store);
// The names of a collection's fields in order, joined by '|'.
std::string fieldNames(const FieldDefs& fields);
// A collection in order: per field every member and every stored value with its kind, one field
// a line; two collections hold the same definitions exactly when their snapshots are equal.
std::string fieldsSnapshot(const FieldDefs& fields);

} // namespace morvel::testkit
