// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/elided_label.h"

#include <QPainter>
#include <QStyle>

QRect ElidedLabel::textArea() const {
    return contentsRect().adjusted(margin(), margin(), -margin(), -margin());
}

QString ElidedLabel::shownText() const {
    const int room = textArea().width();
    QString shown = text();
    for (qsizetype end = shown.size(); leavesPartsOut_ && end > 0;
         end = shown.lastIndexOf(QStringLiteral(" · "))) {
        shown.truncate(end);
        if (fontMetrics().horizontalAdvance(shown) <= room)
            break;
    }
    return fontMetrics().elidedText(shown, mode_, room);
}

void ElidedLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    style()->drawItemText(&painter, textArea(), static_cast<int>(alignment()), palette(),
                          isEnabled(), shownText(), foregroundRole());
}
