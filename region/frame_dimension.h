// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>

/// A mutable holder of one size, used as a point in the region overlay's list of squares: the width
/// carries x, the height carries y.
class FrameDimension {
public:
    FrameDimension() = default;
    explicit FrameDimension(QSizeF size) : sizeDimension_(size) {}

    QSizeF sizeDimension() const { return sizeDimension_; }
    void setSizeDimension(QSizeF size) { sizeDimension_ = size; }

private:
    QSizeF sizeDimension_;
};
