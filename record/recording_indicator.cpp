// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/recording_indicator.h"

#include "shell/palette_icon.h"

#include <QPainter>

namespace {

constexpr int edge = 6;      // points to the left and right of the whole
constexpr int signSize = 12; // points
constexpr int signGap = 6;   // points between sign and words

} // namespace

RecordingIndicator::RecordingIndicator(QWidget *parent)
    : QLabel(parent), state_(RECORD_STATUS_STOP) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setContentsMargins(edge + signSize + signGap, 0, edge, 0);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    hide();
}

void RecordingIndicator::setState(RecordStatus state) {
    if (state_ == state)
        return;
    state_ = state;
    if (state != RECORD_STATUS_STOP)
        setText(state == RECORD_STATUS_RECORD
                    ? qtTrId("IDD_STATE_RECORDING")
                    : qtTrId("IDD_PAUSED_HINT").arg(qtTrId("IDD_RECORD")));
    setVisible(state != RECORD_STATUS_STOP);
    update();
}

void RecordingIndicator::paintEvent(QPaintEvent *event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF sign(edge, (height() - signSize) / 2.0, signSize, signSize);
    if (state_ == RECORD_STATUS_RECORD) {
        painter.setBrush(recordRed);
        painter.drawEllipse(sign);
        return;
    }
    painter.setBrush(palette().windowText());
    const double bar = sign.width() / 3.0;
    painter.drawRect(QRectF(sign.left(), sign.top(), bar, sign.height()));
    painter.drawRect(QRectF(sign.right() - bar, sign.top(), bar, sign.height()));
}
