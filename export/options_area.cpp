// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/options_area.h"

#include <QEvent>
#include <QScrollBar>

bool OptionsArea::eventFilter(QObject *watched, QEvent *event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        fitHeight();
    return QScrollArea::eventFilter(watched, event);
}

void OptionsArea::resizeEvent(QResizeEvent *event) {
    QScrollArea::resizeEvent(event);
    fitHeight();
}

void OptionsArea::fitHeight() {
    // Lines of text break otherwise in another width.
    const int options = widget()->hasHeightForWidth() ? widget()->heightForWidth(widget()->width())
                                                      : widget()->sizeHint().height();
    const bool wider = widget()->minimumSizeHint().width() > viewport()->width();
    setMaximumHeight(options + (wider ? horizontalScrollBar()->sizeHint().height() : 0));
}
