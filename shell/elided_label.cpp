// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/elided_label.h"

#include <QPainter>
#include <QStyle>

void ElidedLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    style()->drawItemText(&painter, area, static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), mode_, area.width()), foregroundRole());
}
