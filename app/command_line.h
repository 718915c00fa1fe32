// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

class QApplication;

namespace morvel::app {

// Exit codes: 0 done, 1 a mistake on the command line, 2 the database cannot be used, 3 a
// screenshot could not be written, 4 a window was asked for and there is no display.
inline constexpr int kUsageError = 1;
inline constexpr int kDatabaseError = 2;
inline constexpr int kScreenshotError = 3;
inline constexpr int kNoDisplay = 4;

// Whether Qt can show a window here.
bool hasDisplay();
// What the command line asks for needs no window of its own: help, the version, screenshots.
bool needsNoWindow(int argc, char** argv);

// morvel-designer as the command line asks: opens the database (--db, else the sample in the
// data folder) on the table asked for (--table, else the first), then shows the window or writes
// screenshots. Returns the exit code.
int runDesigner(QApplication& app);

} // namespace morvel::app
