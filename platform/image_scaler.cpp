// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image_scaler.h"

#include <QPainter>

#include <utility>

const QImage &ImageScaler::scaled(const Image &image, QSize pixels, double ratio, Care care) {
    const bool known =
        from_.sameAs(image) && result_.size() == pixels && result_.devicePixelRatio() == ratio;
    if (known && (care == Care::Quick || care_ == Care::Fine))
        return result_;
    QImage picture = image.toQImage();
    if (care == Care::Fine)
        picture = picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // The last result's memory serves again: fresh pages would cost more than the scaling.
    if (result_.size() != pixels || result_.format() != QImage::Format_RGB32)
        result_ = QImage(pixels, QImage::Format_RGB32);
    result_.setDevicePixelRatio(1.0);
    if (image.hasAlpha())
        result_.fill(Qt::black);
    QPainter painter(&result_);
    if (!image.hasAlpha())
        painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(QPoint(0, 0), pixels), picture);
    painter.end();
    result_.setDevicePixelRatio(ratio);
    from_ = image;
    care_ = care;
    return result_;
}
