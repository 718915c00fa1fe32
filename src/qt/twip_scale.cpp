// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt/twip_scale.h"

#include <QWidget>

namespace morvel::qt {

TwipScale TwipScale::of(const QWidget& widget) {
    return TwipScale(widget.logicalDpiX());
}

} // namespace morvel::qt
