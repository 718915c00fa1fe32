// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "interchange/json_position.h"

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>

namespace morvel::interchange {

namespace {

// Reads the text for the parser and remembers the last byte it handed out: a SAX event follows
// the reading of its token, so the event knows how far the parser has come.
class TrackingIterator {
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    TrackingIterator() = default;
    TrackingIterator(const char* at, const char** last)
        : m_at(at)
        , m_last(last) {}
    reference operator*() const {
        *m_last = m_at;
        return *m_at;
    }
    TrackingIterator& operator++() {
        ++m_at;
        return *this;
    }
    TrackingIterator operator++(int) {
        TrackingIterator before = *this;
        ++m_at;
        return before;
    }
    bool operator==(const TrackingIterator& other) const { return m_at == other.m_at; }

private:
    const char* m_at = nullptr;
    const char** m_last = nullptr;
};

using Json = nlohmann::ordered_json;

// Follows the parse with the path of each value; stops at the value sought.
class PathFollower : public nlohmann::json_sax<Json> {
public:
    PathFollower(std::string_view text, const JsonPath* target)
        : m_text(text)
        , m_target(target)
        , m_last(text.data()) {}

    const char** lastRead() { return &m_last; }
    std::size_t found() const { return m_found; }
    const std::string& fieldName() const { return m_fieldName; }

    bool null() override { return scalar(); }
    bool boolean(bool) override { return scalar(); }
    bool number_integer(number_integer_t) override { return scalar(); }
    bool number_unsigned(number_unsigned_t) override { return scalar(); }
    bool number_float(number_float_t, const string_t&) override { return scalar(); }
    bool binary(binary_t&) override { return scalar(); }
    bool string(string_t& text) override {
        if (m_path.size() == 3 && m_path[0] == JsonPath::value_type("fields") &&
            m_path[2] == JsonPath::value_type("name"))
            m_fieldName = text;
        return scalar();
    }
    bool start_object(std::size_t) override { return open(false); }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(true); }
    bool end_array() override { return close(); }
    bool key(string_t& name) override {
        m_path.back() = name;
        return mark();
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }

private:
    // The value starting now begins after the blanks and separators that follow the last token.
    bool begin() {
        if (m_target && m_path == *m_target) {
            m_found = start();
            return false;
        }
        if (m_path.size() == 2 && m_path[0] == JsonPath::value_type("fields"))
            m_fieldName.clear();
        return true;
    }
    bool scalar() {
        if (!begin())
            return false;
        next();
        return mark();
    }
    bool open(bool array) {
        if (!begin())
            return false;
        m_open.push_back(array);
        m_path.emplace_back(std::size_t{0});
        return mark();
    }
    bool close() {
        m_open.pop_back();
        m_path.pop_back();
        next();
        return mark();
    }
    // Moves an array's index on past the value just read.
    void next() {
        if (!m_open.empty() && m_open.back())
            ++std::get<std::size_t>(m_path.back());
    }
    bool mark() {
        m_boundary = static_cast<std::size_t>(m_last - m_text.data()) + 1;
        return true;
    }
    std::size_t start() const {
        std::size_t at = m_boundary;
        while (at < m_text.size() &&
               std::string_view(" \t\r\n,:").find(m_text[at]) != std::string_view::npos)
            ++at;
        return at;
    }

    std::string_view m_text;
    const JsonPath* m_target;
    const char* m_last;
    std::size_t m_boundary = 0;
    std::size_t m_found = 0;
    JsonPath m_path;
    std::vector<bool> m_open;
    std::string m_fieldName;
};

} // namespace

TextPosition positionAt(std::string_view text, std::size_t offset) {
    offset = std::min(offset, text.size());
    TextPosition position;
    for (std::size_t i = 0; i < offset; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte == '\n') {
            ++position.line;
            position.column = 1;
        } else if ((byte & 0xC0U) != 0x80U) {
            ++position.column;
        }
    }
    return position;
}

TextPosition locate(std::string_view text, const JsonPath& path) {
    PathFollower follower(text, &path);
    Json::sax_parse(TrackingIterator(text.data(), follower.lastRead()),
                    TrackingIterator(text.data() + text.size(), follower.lastRead()), &follower);
    return positionAt(text, follower.found());
}

std::string fieldBefore(std::string_view text, std::size_t offset) {
    PathFollower follower(text, nullptr);
    const std::string_view before = text.substr(0, std::min(offset, text.size()));
    Json::sax_parse(TrackingIterator(before.data(), follower.lastRead()),
                    TrackingIterator(before.data() + before.size(), follower.lastRead()),
                    &follower);
    return follower.fieldName();
}

} // namespace morvel::interchange
