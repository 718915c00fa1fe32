// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace morvel::reliability {

// A seeded source of the random choices of a run, with the kinds of text a person or a host
// produces: names with digits, blanks and letters from other alphabets, numbers and near-numbers.
class RandomSource {
public:
    explicit RandomSource(std::uint64_t seed)
        : m_engine(seed) {}

    std::uint64_t next() { return m_engine(); }
    // A whole number in [low, high].
    std::int32_t between(std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution<std::int32_t>(low, high)(m_engine);
    }
    std::size_t index(std::size_t size) {
        return std::uniform_int_distribution<std::size_t>(0, size - 1)(m_engine);
    }
    bool chance(double probability) { return std::bernoulli_distribution(probability)(m_engine); }
    template <typename T> const T& pick(const std::vector<T>& items) {
        return items[index(items.size())];
    }

    // Mostly ASCII words, with digits, blanks and UTF-8 letters (Latin, Greek, Cyrillic, CJK).
    std::string word(std::size_t maxLength = 12);
    // A field name: sometimes beginning with digits or blanks, sometimes a reserved name.
    std::string fieldName();
    // What a person types into a numeric box: numbers, signs, blanks, letters, huge numbers.
    std::string numberish();
    // Free text for any box, from empty to a few words.
    std::string text();

private:
    std::mt19937_64 m_engine;
};

} // namespace morvel::reliability
