// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image_scaler.h"

#include <QWidget>

class TrimEditor;

/// The preview on the Cut tab: one frame of the recording, fitted over black. Each drawing also
/// works out the trimmed range from the handles' percentages, which the exports read. Without a
/// recording it says so.
class View_Cut_Preview : public QWidget {
    Q_OBJECT

public:
    explicit View_Cut_Preview(QWidget *parent = nullptr);

    /// The desk, borrowed, whose frames it shows; without one it stays black.
    void setEditor(TrimEditor &editor);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawNoVideo(QPainter &painter) const;
    void drawFrame(QPainter &painter);

    TrimEditor *editor_ = nullptr;
    ImageScaler scaler_;
};
