// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/frame_timing.h"
#include "export/gif_preset.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <span>

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
QString webpFile(const QString &exportFolder);
QString mp4File(const QString &exportFolder);
/// The file of scaled frame `number`, which the WebP is made of where it has a size of its own.
QString scaledFile(const QString &exportFolder, std::uint64_t number);

/// First run: the palette folder's frames as a small video.
QStringList paletteVideoArguments(const QString &paletteFolder);

/// Second run: the palette of that video.
QStringList paletteArguments(const QString &paletteFolder);

/// How a GIF ends.
struct GifEnd {
    /// How often a player begins again, 0 for forever; none plays it once.
    std::optional<std::uint16_t> repeats = 0;
    std::uint64_t held = 0; ///< That the last frame is shown longer, in hundredths of a second.
};

/// Third run: the GIF of the staged frames, each shown as long as `frames`, the same frames in the
/// same order, say in hundredths of a second. `width` and `height` are the user's texts as they
/// stand, since it is the encoder that judges them.
QStringList gifArguments(const QString &exportFolder, const QString &paletteFolder,
                         std::span<const frame_timing::TimedFrame> frames, const QString &width,
                         const QString &height, const GifEnd &end = {});

/// The run that scales the staged frames for the WebP, as the GIF's are scaled. It counts them at
/// one a second, which its time stamps go by.
QStringList scalingArguments(const QString &exportFolder, const QString &width,
                             const QString &height);

/// The MP4 of the staged frames, which are shown equally long, as long together as `frames` say in
/// `frame_timing::videoTicks`. H.264 in the colours that every player takes, which come in squares
/// of two pixels: an odd size gets its last column or row twice. What players need first is written
/// first. `width` and `height` are the user's texts.
QStringList mp4Arguments(const QString &exportFolder,
                         std::span<const frame_timing::TimedFrame> frames, const QString &width,
                         const QString &height, GifPreset preset);

/// A picture of the WebP and how long it is shown.
struct WebPFrame {
    QString file;
    std::uint64_t milliseconds = 0;
};

/// How the pictures of a WebP are coded.
struct WebPCoding {
    bool lossy = false;
    int quality = 75; ///< 0 to 100; of a lossless coding how hard it is tried.
};

/// The qualities of a lossy WebP that goes with a preset; none where it must be exact.
std::optional<int> lossyQuality(GifPreset preset);

/// The WebP: arguments one after another, of which only the paths may hold blanks. `loopsText` is
/// the user's: text that does not begin with a number means 0 = loop forever. The encoder says on
/// its error output which frames it has added.
QStringList webpArguments(QStringView loopsText, std::span<const WebPFrame> frames,
                          const WebPCoding &coding, const QString &output);

} // namespace encoder_arguments
