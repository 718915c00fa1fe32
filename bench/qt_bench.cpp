// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// The Qt front end on the offscreen platform, each operation measured until its repaint, next to
// the plain QTreeWidget reference (tree_widget_reference.cpp) in the same run.

#include "qt_harness.h"

#include <QApplication>
#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    morvel::bench::releaseQtWidgets();
    return 0;
}
