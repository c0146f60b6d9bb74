// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

/// A rectangle in an area: offset of the image's lower left corner, then its size, in points.
struct FittingFrame {
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
};

/// Where an image of this size is drawn in an area of that size: centred, and grown or shrunk in
/// steps of one fiftieth of its own width. The steps and the offsets are computed in single
/// precision. A shrunk image stays one step larger than the area, and one that is too large in only
/// one dimension keeps its size: what is outside is cut off by the view, and x or y is negative.
///
/// Sizes that no picture and no view has (below one pixel, negative, undefined) give the empty
/// frame, as 0 by 0 does.
FittingFrame bestFitFrame(double imageWidth, double imageHeight, double areaWidth,
                          double areaHeight);
