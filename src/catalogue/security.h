// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/choice.h"

#include <cstdint>
#include <span>

namespace morvel::catalogue {

// "AES (best for security)" 1, "Blowfish (best for performance)" 2.
std::span<const Choice> ciphers();
// "SHA (best for security)" 1, "MD5 (best for performance)" 2.
std::span<const Choice> hashes();
// Key lengths offered for an algorithm, always beginning with "Default" 0; unknown codes offer
// "Default" alone.
std::span<const Choice> cipherKeyLengths(std::int32_t cipherCode);
std::span<const Choice> hashKeyLengths(std::int32_t hashCode);

} // namespace morvel::catalogue
