// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/security.h"
#include "choices.h"

#include <gtest/gtest.h>

namespace morvel::catalogue {
namespace {

TEST(Security, AlgorithmListsCarryTheirCodes) {
    EXPECT_EQ(snapshot(ciphers()), "AES (best for security)=1|Blowfish (best for performance)=2");
    EXPECT_EQ(snapshot(hashes()), "SHA (best for security)=1|MD5 (best for performance)=2");
}

TEST(Security, KeyLengthsDependOnTheAlgorithmAndStartWithDefault) {
    EXPECT_EQ(snapshot(cipherKeyLengths(1)),
              "Default=0|128 (fastest)=128|192 (typical)=192|256 (strongest)=256");
    // Blowfish's 256 is "strong", not "strongest".
    EXPECT_EQ(snapshot(cipherKeyLengths(2)),
              "Default=0|64 (fastest)=64|128 (typical)=128|256 (strong)=256|448 (strongest)=448");
    EXPECT_EQ(snapshot(hashKeyLengths(1)),
              "Default=0|256 (fastest)=256|384 (typical)=384|512 (strongest)=512");
    EXPECT_EQ(snapshot(hashKeyLengths(2)), "Default=0");
    for (int code : {0, 3, -1}) {
        EXPECT_EQ(snapshot(cipherKeyLengths(code)), "Default=0") << code;
        EXPECT_EQ(snapshot(hashKeyLengths(code)), "Default=0") << code;
    }
}

} // namespace
} // namespace morvel::catalogue
