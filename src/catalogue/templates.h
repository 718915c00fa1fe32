// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace morvel::catalogue {

// Control templates suggested for a type, in the order they are offered. Suggestions only: a
// field may name any template.
std::span<const std::string_view> editTemplates(std::int32_t typeCode);
// For "Sub Table" the read-only suggestions are empty.
std::span<const std::string_view> readOnlyTemplates(std::int32_t typeCode);

} // namespace morvel::catalogue
