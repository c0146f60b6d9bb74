// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// The small window beside the chosen corner that shows the region's size and place. A window of
/// its own, because the overlay draws nothing but the region; it takes no events, and as one of our
/// own windows it is never recorded.
class RegionTip : public QLabel {
    Q_OBJECT

public:
    explicit RegionTip(QWidget *parent);

    /// Shows `text` near `corner`, away from `pointer`, inside `screen`. All in global points,
    /// upper left origin.
    void showNear(const QPoint &corner, const QPoint &pointer, const QRect &screen,
                  const QString &text);
};
