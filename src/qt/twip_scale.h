// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/geometry.h"

#include <QRect>
#include <cmath>
#include <cstdint>

class QWidget;

namespace morvel::qt {

// Converts the headless design's units to pixels at a screen's logical dpi: twips (1/1440 inch,
// 15 to a pixel at 96 dpi) for positions and sizes, hundredths of a millimetre for list columns.
class TwipScale {
public:
    explicit TwipScale(double dpi = 96.0)
        : m_dpi(dpi > 0 ? dpi : 96.0) {}
    // The scale of the screen the widget is on.
    static TwipScale of(const QWidget& widget);

    double dpi() const { return m_dpi; }
    int toPixels(std::int32_t twips) const {
        return static_cast<int>(std::lround(twips * m_dpi / 1440.0));
    }
    std::int32_t toTwips(int pixels) const {
        return static_cast<std::int32_t>(std::lround(pixels * 1440.0 / m_dpi));
    }
    int columnPixels(std::int32_t hundredthsOfMm) const {
        return static_cast<int>(std::lround(hundredthsOfMm * m_dpi / 2540.0));
    }
    QRect toPixels(const view::Rect& rect) const {
        return {toPixels(rect.left), toPixels(rect.top), toPixels(rect.width),
                toPixels(rect.height)};
    }

private:
    double m_dpi;
};

} // namespace morvel::qt
