// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <functional>

class QEvent;
class QWidget;

namespace morvel {
class FieldDef;
}

namespace morvel::bench {

// Counts the paint events a widget receives, so that a benchmark can run the event loop until
// the change it made is on screen, not merely scheduled.
class PaintProbe : public QObject {
public:
    explicit PaintProbe(QWidget& widget);
    int paints() const { return m_paints; }
    // Processes events until the widget has painted at least once more, and a little longer if
    // the first round of events scheduled more (a scroll, a layout); gives up after a few rounds
    // when nothing needs painting. Returns whether it painted.
    bool waitForPaint();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int m_paints = 0;
};

// Widgets kept for the whole run must go before the QApplication does: shared() functions
// register here how to drop theirs, and main runs it before returning.
void whenQtEnds(std::function<void()> release);
void releaseQtWidgets();

// Every benchmark window is this size, shown on the offscreen platform.
inline constexpr int kWindowWidth = 1200;
inline constexpr int kWindowHeight = 800;

// The geometry of the designer's list and display name box in a window of the benchmark size, so
// that the reference paints cells and a box of the same sizes as the designer does.
struct DesignerGeometry {
    QList<int> columnWidths;
    int displayNameBoxWidth = 0;
};
const DesignerGeometry& designerGeometry();

// The eight cells of a field's row, as the designer's list shows them.
QStringList rowTexts(const morvel::FieldDef& field);

} // namespace morvel::bench
