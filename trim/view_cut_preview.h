// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image.h"

#include <QImage>
#include <QWidget>

/// The preview on the Cut tab: one frame of the recording, fitted over black. Each drawing also
/// works out the trimmed range from the handles' percentages, which the exports read. Without a
/// recording it says so.
class View_Cut_Preview : public QWidget {
    Q_OBJECT

public:
    explicit View_Cut_Preview(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void drawNoVideo(QPainter &painter) const;
    void drawFrame(QPainter &painter);
    /// Brings `scaled_` up to the frame at this size: quickly while it plays, with care otherwise.
    void scale(const Image &frame, QSize pixels, bool quickly);

    // The last picture that was scaled for the screen, and what it was made of.
    Image scaledFrom_;
    QImage scaled_;
    bool scaledQuickly_ = false;
};
