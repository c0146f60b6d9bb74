// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/scrolling_options.h"

#include <QBoxLayout>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int edgeHeight = 26; // points
constexpr int besideBar = 4;   // points

/// Fades out what is cut at the lower edge.
class MoreBelow : public QWidget {
public:
    explicit MoreBelow(QWidget *parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent *) override {
        const QColor ground = palette().color(QPalette::Window);
        QColor clear = ground;
        clear.setAlpha(0);
        QLinearGradient fade(0, 0, 0, height());
        fade.setColorAt(0, clear);
        fade.setColorAt(1, ground);
        QPainter painter(this);
        painter.fillRect(rect(), fade);
    }
};

int widthOf(const QMargins &margins) { return margins.left() + margins.right(); }

/// Of its parts beside each other.
int neededWidth(const QBoxLayout &row) {
    int width = row.spacing() * std::max(0, row.count() - 1);
    for (int part = 0; part < row.count(); ++part)
        width += row.itemAt(part)->sizeHint().width();
    return width;
}

} // namespace

ScrollingOptions::ScrollingOptions(QWidget *parent)
    : QScrollArea(parent), edge_(new MoreBelow(this)) {
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &ScrollingOptions::placeEdge);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &ScrollingOptions::placeEdge);
}

void ScrollingOptions::addFoldingRow(QBoxLayout &row) { rows_.push_back(&row); }

bool ScrollingOptions::eventFilter(QObject *watched, QEvent *event) {
    // Another font, or another text.
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        arrange();
    return QScrollArea::eventFilter(watched, event);
}

void ScrollingOptions::resizeEvent(QResizeEvent *event) {
    QScrollArea::resizeEvent(event);
    arrange();
    placeEdge();
}

void ScrollingOptions::arrange() {
    // As if there were always a scroll bar: it comes and goes with what is folded.
    const int room =
        maximumViewportSize().width() - verticalScrollBar()->sizeHint().width() - besideBar;
    for (QBoxLayout *row : rows_) {
        const QWidget &group = *row->parentWidget();
        const int margins =
            widthOf(group.contentsMargins()) + widthOf(group.layout()->contentsMargins());
        row->setDirection(neededWidth(*row) <= room - margins ? QBoxLayout::LeftToRight
                                                              : QBoxLayout::TopToBottom);
    }
}

void ScrollingOptions::placeEdge() {
    const QScrollBar &bar = *verticalScrollBar();
    if (widget())
        widget()->setContentsMargins(0, 0, bar.maximum() > 0 ? besideBar : 0, 0);
    QRect place = viewport()->geometry();
    place.setTop(place.bottom() + 1 - edgeHeight);
    edge_->setGeometry(place);
    edge_->raise();
    edge_->setVisible(bar.value() < bar.maximum());
}
