#pragma once

#include "base/error.h"

namespace morvel {

// The table definition database could not be opened, read or written: a file that is not a
// Morvel database, a newer schema, a damaged file, a busy or read-only file.
class StoreError : public Error {
public:
    using Error::Error;
};

// A save found that the table had been saved by someone else since it was loaded. Nothing was
// written; the caller's definitions are untouched, so they can be saved under another name.
class ConcurrentSaveError : public StoreError {
public:
    using StoreError::StoreError;
};

} // namespace morvel
