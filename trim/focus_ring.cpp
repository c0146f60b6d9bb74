// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/focus_ring.h"

#include "trim/view_cut_range.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr int ringWidth = 4;   // points, all of it outside the strip
constexpr int lineWidth = 2;   // points
constexpr int markOverlap = 3; // points by which a mark is wider than its part, on either side

} // namespace

FocusRing::FocusRing(View_Cut_Range &strip) : QWidget(strip.parentWidget()), strip_(strip) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    strip.installEventFilter(this);
    connect(&strip, &View_Cut_Range::chosenPartChanged, this, qOverload<>(&QWidget::update));
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        follow();
        break;
    case QEvent::Paint:
        // The handles may have moved.
        update();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void FocusRing::follow() {
    setGeometry(strip_.geometry().adjusted(-ringWidth, -ringWidth, ringWidth, ringWidth));
    // Beneath the strip: what shows is the rim.
    stackUnder(&strip_);
    setVisible(strip_.hasFocus() && strip_.isVisible());
}

void FocusRing::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QColor colour = palette().color(QPalette::Highlight);
    const QRectF ring = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, lineWidth));
    painter.drawRoundedRect(ring, lineWidth, lineWidth);
    const QRect part = strip_.areaOf(strip_.chosenPart()).translated(ringWidth, 0);
    const QRect mark(part.x() - markOverlap, 0, part.width() + 2 * markOverlap, ringWidth);
    painter.fillRect(mark, colour);
    painter.fillRect(mark.translated(0, height() - ringWidth), colour);
}
