// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/error.h"

#include <string>

namespace morvel {

// What kept the store from doing its work, for a host that says what the person can do about it.
enum class StoreFailure {
    Other,
    Busy,        // another program is writing to the file: try again
    ReadOnly,    // the file (or the way it was opened) allows no writing
    DiskFull,    // the disk has no room left
    CannotWrite, // the file is open, but what a save writes beside it cannot be made
};

// The table definition database could not be opened, read or written: a file that is not a
// Morvel database, a newer schema, a damaged file, a busy or read-only file.
class StoreError : public Error {
public:
    explicit StoreError(const std::string& message, StoreFailure failure = StoreFailure::Other)
        : Error(message)
        , m_failure(failure) {}

    StoreFailure failure() const { return m_failure; }

private:
    StoreFailure m_failure;
};

// A table name that the store refuses: empty, or taken by another table. The message says which.
class TableNameError : public StoreError {
public:
    using StoreError::StoreError;
};

// A save found that the table had been saved by someone else since it was loaded. Nothing was
// written; the caller's definitions are untouched, so they can be saved under another name.
class ConcurrentSaveError : public StoreError {
public:
    using StoreError::StoreError;
};

} // namespace morvel
