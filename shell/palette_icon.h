// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

/// Icons that follow the application's palette: drawings in one colour, painted again in each size,
/// scale and state from the palette of that moment. So they stay sharp on every screen, and a theme
/// that turns dark while the program runs needs nothing more than the repaint that it causes
/// anyway.
///
/// Every drawing is square and says `currentColor` (SVG 1.1, section 12.2) wherever it is not
/// transparent.

/// The one colour of our own: a red that stands out from light and dark buttons alike (contrast of
/// at least 3 to 1 with white and with the greys of dark themes, WCAG 2.1 section 1.4.11).
inline constexpr QColor recordRed(0xe5, 0x48, 0x4d);

/// The icon drawn in the SVG file `path`: in the palette's button text, or in `accent` when that is
/// valid, while its control is enabled, in the palette's disabled button text when it is not, and
/// in the highlighted text on a selected menu item. On dark buttons an accent has a rim in the
/// button text. A file that cannot be read gives an empty icon.
QIcon paletteIcon(const QString &path, const QColor &accent = {});

/// The icon drawn in the SVG file `path`, in its own colours. The toolkit's icons of SVG files need
/// a plugin, which not every distribution installs with it.
QIcon drawnIcon(const QString &path);
