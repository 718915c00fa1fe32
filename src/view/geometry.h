// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace morvel::view {

// Positions and sizes are in twips (1/1440 inch): 15 twips to a pixel at 96 dpi.
inline constexpr std::int32_t kTwipsPerPixelAt96Dpi = 15;

struct Rect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    std::int32_t right() const { return left + width; }
    std::int32_t bottom() const { return top + height; }
    friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace morvel::view
