// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

/// The first picture in the file at `path`, made smaller to what a card shows; empty where the
/// toolkit cannot read it.
QImage firstPicture(const QString &path);

/// The size of its pictures in pixels, also of a WebP that the toolkit cannot read; empty where it
/// cannot be told.
QSize pictureSize(const QString &path);
