// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

namespace morvel::qt {

// Draws a ring in the highlight colour around whichever widget inside a root has the keyboard
// focus, so that the person always sees where their keys go, whatever the style draws itself
// (several styles show no focus on a drop-down list, a check box or a list). The ring takes no
// mouse input and covers nothing but its own border.
class FocusRing : public QWidget {
    Q_OBJECT

public:
    explicit FocusRing(QWidget& root);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(QWidget* focus);
    void place();

    QWidget& m_root;
    QPointer<QWidget> m_target;
};

} // namespace morvel::qt
