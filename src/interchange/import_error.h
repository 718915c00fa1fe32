// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/error.h"

#include <cstddef>
#include <string>

namespace morvel::interchange {

// Text that cannot become a table definition. The message names the line and column (1-based;
// the column counts characters, not bytes) and, when it is known, the field concerned.
class ImportError : public Error {
public:
    ImportError(const std::string& problem, std::size_t line, std::size_t column, std::string field)
        : Error(describe(problem, line, column, field), "", field)
        , m_line(line)
        , m_column(column)
        , m_problem(problem) {}

    std::size_t line() const { return m_line; }
    std::size_t column() const { return m_column; }
    // The field concerned, empty when none is.
    const std::string& field() const { return key(); }
    // What is wrong, without the place.
    const std::string& problem() const { return m_problem; }

private:
    static std::string describe(const std::string& problem, std::size_t line, std::size_t column,
                                const std::string& field) {
        std::string text = "line " + std::to_string(line) + ", column " + std::to_string(column);
        if (!field.empty())
            text += ", field \"" + field + "\"";
        return text + ": " + problem;
    }

    std::size_t m_line;
    std::size_t m_column;
    std::string m_problem;
};

} // namespace morvel::interchange
