// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>

namespace morvel::qt {

// A bar between two parts of a window that the person drags up or down, drawn and used like a
// splitter's handle. It reports each move of a drag as the distance from where the drag began.
class SplitHandle : public QWidget {
public:
    using Dragged = std::function<void(int fromStart)>;
    SplitHandle(QWidget& parent, std::function<void()> started, Dragged dragged);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    std::function<void()> m_started;
    Dragged m_dragged;
    int m_pressedAt = 0;
};

} // namespace morvel::qt
