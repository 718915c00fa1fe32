// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "qt_harness.h"

#include "catalogue/field_types.h"
#include "catalogue/validation.h"
#include "fields/field_def.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <vector>

namespace morvel::bench {

PaintProbe::PaintProbe(QWidget& widget) {
    widget.installEventFilter(this);
}

bool PaintProbe::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint)
        ++m_paints;
    return QObject::eventFilter(watched, event);
}

bool PaintProbe::waitForPaint() {
    const int before = m_paints;
    for (int round = 0; round < 4; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        if (m_paints > before) {
            // A paint may have posted a follow-up (scroll bars, deferred layout): let it run.
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
            return true;
        }
    }
    return false;
}

namespace {
std::vector<std::function<void()>>& releasers() {
    static std::vector<std::function<void()>> all;
    return all;
}
} // namespace

void whenQtEnds(std::function<void()> release) {
    releasers().push_back(std::move(release));
}

void releaseQtWidgets() {
    for (auto& release : releasers())
        release();
    releasers().clear();
}

namespace {
QString fromUtf8(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
QString fromView(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
} // namespace

QStringList rowTexts(const morvel::FieldDef& field) {
    const std::int32_t type = field.FieldType();
    return {fromUtf8(field.Name()),
            fromView(catalogue::typeName(type)),
            catalogue::hasSize(type) ? QString::number(field.Size()) : QString(),
            fromUtf8(field.DisplayName()),
            fromView(catalogue::validationName(field.Validation())),
            fromUtf8(field.CtrlReadOnly()),
            fromUtf8(field.CtrlEdit()),
            fromUtf8(field.CtrlList())};
}

} // namespace morvel::bench
