// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/view_cut_preview.h"

#include "record/fitting.h"
#include "record/recorder.h"
#include "shell/coordinates.h"
#include "shell/surroundings.h"
#include "trim/range_rules.h"
#include "trim/trim_editor.h"

#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>

namespace {

constexpr int noVideoSize = 46; // points of the screen, which the toolkit calls pixels

} // namespace

View_Cut_Preview::View_Cut_Preview(QWidget *parent) : QWidget(parent) {
    // Every pixel is painted by the view itself: nothing beneath needs to be.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void View_Cut_Preview::setEditor(TrimEditor &editor) {
    editor_ = &editor;
    connect(editor_, &TrimEditor::viewsChanged, this, qOverload<>(&QWidget::update));
}

void View_Cut_Preview::paintEvent(QPaintEvent *event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::black);
    if (!editor_)
        return;
    const bool exists = editor_->surroundings().firstFrameFileExists();
    if (exists)
        editor_->updateTrimmedRange();
    editor_->showTrimmedRange(exists);
    if (exists)
        drawFrame(painter);
    else
        drawNoVideo(painter);
}

void View_Cut_Preview::drawNoVideo(QPainter &painter) const {
    const QString text = QStringLiteral("No Video");
    QFont font(QStringLiteral("Verdana"));
    font.setPixelSize(noVideoSize);
    const QFontMetricsF metrics(font);
    const double textWidth = metrics.horizontalAdvance(text);
    painter.setFont(font);
    painter.setPen(Qt::white);
    // The text's box is centred; its baseline is above the box's lower edge.
    painter.drawText(QPointF(width() / 2.0 - textWidth / 2.0,
                             height() / 2.0 + metrics.height() / 2.0 - metrics.descent()),
                     text);
}

void View_Cut_Preview::drawFrame(QPainter &painter) {
    const TrimFields &trim = editor_->trim;
    const auto &frames = editor_->recorder().recording.array_Images;
    const auto number =
        range_rules::existingFrame(editor_->shownFrame(), frames ? frames->size() : 0);
    if (!number)
        return;
    const Image &frame = (*frames)[*number];
    const FittingFrame fit = bestFitFrame(frame.width(), frame.height(), width(), height());
    const double ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(fit.width, fit.height) * ratio).toSize();
    if (pixels.isEmpty())
        return;
    const QPointF corner =
        ImageScaler::onGrid({fit.x, coordinates::flipped(fit.y, fit.height, height())}, ratio);
    const bool moving = trim.m_PlayStatus() == PLAY_STATUS_PLAY;
    painter.drawImage(corner,
                      scaler_.scaled(frame, pixels, ratio,
                                     moving ? ImageScaler::Care::Quick : ImageScaler::Care::Fine));
}
