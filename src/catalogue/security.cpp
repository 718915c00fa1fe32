// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/security.h"

#include <array>

namespace morvel::catalogue {

namespace {
constexpr std::array<Choice, 2> kCiphers{{
    {"AES (best for security)", 1},
    {"Blowfish (best for performance)", 2},
}};
constexpr std::array<Choice, 2> kHashes{{
    {"SHA (best for security)", 1},
    {"MD5 (best for performance)", 2},
}};
// The wording differs on purpose: "256 (strongest)" for AES, "256 (strong)" for Blowfish.
constexpr std::array<Choice, 4> kAesLengths{
    {{"Default", 0}, {"128 (fastest)", 128}, {"192 (typical)", 192}, {"256 (strongest)", 256}}};
constexpr std::array<Choice, 5> kBlowfishLengths{{{"Default", 0},
                                                  {"64 (fastest)", 64},
                                                  {"128 (typical)", 128},
                                                  {"256 (strong)", 256},
                                                  {"448 (strongest)", 448}}};
constexpr std::array<Choice, 4> kShaLengths{
    {{"Default", 0}, {"256 (fastest)", 256}, {"384 (typical)", 384}, {"512 (strongest)", 512}}};
constexpr std::array<Choice, 1> kDefaultOnly{{{"Default", 0}}};
} // namespace

std::span<const Choice> ciphers() {
    return kCiphers;
}
std::span<const Choice> hashes() {
    return kHashes;
}

std::span<const Choice> cipherKeyLengths(std::int32_t cipherCode) {
    if (cipherCode == 1)
        return kAesLengths;
    if (cipherCode == 2)
        return kBlowfishLengths;
    return kDefaultOnly;
}

std::span<const Choice> hashKeyLengths(std::int32_t hashCode) {
    if (hashCode == 1)
        return kShaLengths;
    return kDefaultOnly;
}

} // namespace morvel::catalogue
