// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace morvel {

// Every failure that Morvel raises derives from Error, so that a host can catch one type and show
// what() to a person: messages are written for the person, not for a log.
//
// A failure may also say what it is about: the owner (the list whose key was taken, say) and the
// key or value concerned, so that a front end can word it for a person without reading what().
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    Error(const std::string& message, std::string owner, std::string key)
        : std::runtime_error(message)
        , m_owner(std::move(owner))
        , m_key(std::move(key)) {}

    const std::string& owner() const { return m_owner; }
    const std::string& key() const { return m_key; }

private:
    std::string m_owner;
    std::string m_key;
};

// The field library refused a name: empty, or taken by another field of the same collection.
class FieldNameError : public Error {
public:
    using Error::Error;
};

// A keyed or positional look-up found nothing where something was required.
class NotFoundError : public Error {
public:
    using Error::Error;
};

// A key that must be unique is taken already (list view rows, collection members).
class DuplicateKeyError : public Error {
public:
    using Error::Error;
};

// A value of one kind was read as another (a text read as a whole number, say).
class TypeMismatchError : public Error {
public:
    using Error::Error;
};

// A handler needed the field shown in the panel, and none is shown.
class NoCurrentFieldError : public Error {
public:
    NoCurrentFieldError()
        : Error("No field is selected.") {}
};

// A call that is not valid in the object's present state or with these arguments.
class InvalidOperationError : public Error {
public:
    using Error::Error;
};

} // namespace morvel

namespace morvel {

// A Database search was given a filter it does not understand.
class SearchFilterError : public Error {
public:
    using Error::Error;
};

} // namespace morvel
