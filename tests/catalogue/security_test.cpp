// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "catalogue/security.h"
#include "choices.h"

#include <gtest/gtest.h>

namespace morvel::catalogue {
namespace {

TEST(Security, KeyLengthsDependOnTheAlgorithmAndStartWithDefault) {
    const std::pair<int, const char*> cases[] = {
        {1, "Default=0|128 (fastest)=128|192 (typical)=192|256 (strongest)=256 / "
            "Default=0|256 (fastest)=256|384 (typical)=384|512 (strongest)=512"},
        // Blowfish's 256 is "strong", not "strongest"; MD5 has no lengths to choose.
        {2, "Default=0|64 (fastest)=64|128 (typical)=128|256 (strong)=256|448 (strongest)=448 / "
            "Default=0"},
        {0, "Default=0 / Default=0"},
        {3, "Default=0 / Default=0"},
        {-1, "Default=0 / Default=0"},
    };
    for (const auto& [code, expected] : cases)
        EXPECT_EQ(snapshot(cipherKeyLengths(code)) + " / " + snapshot(hashKeyLengths(code)),
                  expected)
            << code;
}

} // namespace
} // namespace morvel::catalogue
