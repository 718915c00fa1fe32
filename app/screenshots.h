// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace morvel::app {

class DesignerWindow;

// Writes a PNG of the window as it stands; false when the file could not be written.
bool writeScreenshot(DesignerWindow& window, const QString& file);

// Writes the documentation screenshots into folder, each at the smallest size and at a large
// one: the designer on a "Link" field's link page and on an encrypted field's encryption page,
// the list values editor and the locale editor. False, with a message on stderr, when a shot
// could not be taken.
bool writeAllScreenshots(DesignerWindow& window, const QString& folder);

} // namespace morvel::app
