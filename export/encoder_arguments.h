// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

/// The encoders' command lines and the names of the files that they hand to each other. Rules only:
/// nothing is run and no file is touched. Folders are absolute, without a slash at the end. Numbers
/// are written in the C locale.
///
/// Encoders read a sequence by a pattern ("image%d.png"), in which a percent sign of the folder's
/// own name would be taken for the number: there, and only there, it is doubled. A single picture's
/// path is searched for a number too ("/%d/palette.png"): in such a folder, and only there, an
/// option more says that it is one picture.
namespace encoder_arguments {

/// Frames that the palette is made of, at most: the first ones of the range.
inline constexpr std::uint64_t paletteFrames = 60;

QString inputPattern(const QString &folder);
QString videoFile(const QString &paletteFolder);
QString paletteFile(const QString &paletteFolder);
QString gifFile(const QString &exportFolder);
QString webpFile(const QString &recordingFolder);

/// First run: the palette folder's frames as a small video.
QStringList paletteVideoArguments(const QString &paletteFolder);

/// Second run: the palette of that video.
QStringList paletteArguments(const QString &paletteFolder);

/// Third run: the GIF. `rate` is in frames per second; `width` and `height` are the user's texts as
/// they stand, since it is the encoder that judges them.
QStringList gifArguments(const QString &exportFolder, const QString &paletteFolder,
                         std::uint64_t rate, const QString &width, const QString &height);

/// The WebP. `loopsText` is the user's: text that does not begin with a number means 0, for ever.
QStringList webpArguments(QStringView loopsText, const QStringList &frameFiles,
                          const QString &output);

} // namespace encoder_arguments
