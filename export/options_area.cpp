// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/options_area.h"

#include <QEvent>

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
    setMaximumHeight(widget()->hasHeightForWidth() ? widget()->heightForWidth(viewport()->width())
                                                   : widget()->sizeHint().height());
}
