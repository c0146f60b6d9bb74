// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/encoder_arguments.h"

#include "platform/text_number.h"

#include <algorithm>
#include <limits>

namespace encoder_arguments {

// Everywhere below texts are joined, never filled in with QString::arg: a folder's name may hold
// "%1".

namespace {

/// Whether the path of a single picture in this folder may be taken for that of a sequence.
/// Doubling does not help there: with no number left in it, such a path is used as it is.
bool looksLikePattern(const QString &folder) { return folder.contains(QLatin1Char('%')); }

QString pattern(const QString &folder, QLatin1String name) {
    QString literal = folder;
    literal.replace(QLatin1Char('%'), QStringLiteral("%%"));
    return literal + name;
}

QString scaleFilter(const QString &width, const QString &height) {
    return QStringLiteral("scale=") + width + QLatin1Char('x') + height +
           QStringLiteral(":flags=lanczos");
}

/// Repeats the last column and row of a picture with odd sides.
QString evenSidesFilter(const QString &width, const QString &height) {
    const auto missing = [](const QString &side) { return integerValue(side) % 2 == 0 ? 0 : 1; };
    const QString right = QString::number(missing(width));
    const QString bottom = QString::number(missing(height));
    if (right == bottom && missing(width) == 0)
        return {};
    // Before colours are thinned out, so that the borders can be filled by single pixels.
    return QStringLiteral(",format=yuv444p,pad=iw+") + right + QStringLiteral(":ih+") + bottom +
           QStringLiteral(",fillborders=mode=smear:right=") + right + QStringLiteral(":bottom=") +
           bottom;
}

/// The encoder's measure of how much a picture may differ: less is better and larger.
int constantQuality(GifPreset preset) {
    switch (preset) {
    case GifPreset::Best:
        return 14;
    case GifPreset::Small:
        return 26;
    case GifPreset::Balanced:
    case GifPreset::Classic:
        break;
    }
    return 20;
}

/// The encoder's expression for the tick at which frame number N begins: rounded as `frame_timing`
/// rounds it, in whole numbers that a double holds exactly.
QString beginOfFrame(std::span<const frame_timing::TimedFrame> frames, std::uint64_t held) {
    const std::uint64_t count = frames.size();
    const std::uint64_t length = frame_timing::length(frames) - held;
    return QStringLiteral("setpts=floor((") + QString::number(2 * length) + QStringLiteral("*N+") +
           QString::number(count) + QStringLiteral(")/") + QString::number(2 * count) +
           QLatin1Char(')');
}

} // namespace

QString inputPattern(const QString &folder) {
    return pattern(folder, QLatin1String("/image%d.png"));
}

QString videoFile(const QString &paletteFolder) {
    return paletteFolder + QStringLiteral("/output.mp4");
}

QString paletteFile(const QString &paletteFolder) {
    return paletteFolder + QStringLiteral("/palette.png");
}

QString gifFile(const QString &exportFolder) {
    return exportFolder + QStringLiteral("/output.gif");
}

QString webpFile(const QString &exportFolder) {
    return exportFolder + QStringLiteral("/output.webp");
}

QString mp4File(const QString &exportFolder) {
    return exportFolder + QStringLiteral("/output.mp4");
}

QString scaledFile(const QString &exportFolder, std::uint64_t number) {
    return exportFolder + QStringLiteral("/scaled") + QString::number(number) +
           QStringLiteral(".png");
}

QStringList paletteVideoArguments(const QString &paletteFolder) {
    return {QStringLiteral("-i"), inputPattern(paletteFolder), QStringLiteral("-vf"),
            QStringLiteral("scale=640x480"), videoFile(paletteFolder)};
}

QStringList paletteArguments(const QString &paletteFolder) {
    QStringList arguments{QStringLiteral("-i"), videoFile(paletteFolder), QStringLiteral("-vf"),
                          QStringLiteral("scale=320:-1:flags=lanczos,palettegen")};
    if (looksLikePattern(paletteFolder))
        arguments += {QStringLiteral("-update"), QStringLiteral("1")};
    return arguments += paletteFile(paletteFolder);
}

QStringList gifArguments(const QString &exportFolder, const QString &paletteFolder,
                         std::span<const frame_timing::TimedFrame> frames, const QString &width,
                         const QString &height, const GifEnd &end) {
    const QString filter = beginOfFrame(frames, end.held) + QLatin1Char(',') +
                           scaleFilter(width, height) + QStringLiteral("[x];[x][1:v]paletteuse");
    // The rate only gives the frames' times their unit.
    const QString unit = QString::number(frame_timing::gifTicks.perSecond);
    const std::uint64_t lastDelay = frames.empty() ? 0 : frames.back().delay;
    QStringList arguments{QStringLiteral("-f"),         QStringLiteral("image2"),
                          QStringLiteral("-framerate"), unit,
                          QStringLiteral("-i"),         inputPattern(exportFolder)};
    if (looksLikePattern(paletteFolder))
        arguments += {QStringLiteral("-f"), QStringLiteral("png_pipe")};
    arguments += {QStringLiteral("-i"), paletteFile(paletteFolder),
                  QStringLiteral("-filter_complex"), filter,
                  // As many frames as went in, each at its own time.
                  QStringLiteral("-fps_mode"), QStringLiteral("passthrough"),
                  // No frame follows that would end the last one.
                  QStringLiteral("-final_delay"), QString::number(lastDelay)};
    // Without it a GIF plays forever; to this tool, -1 is once.
    if (end.repeats != 0)
        arguments += {QStringLiteral("-loop"), QString::number(end.repeats ? *end.repeats : -1)};
    return arguments += gifFile(exportFolder);
}

QStringList scalingArguments(const QString &exportFolder, const QString &width,
                             const QString &height) {
    return {QStringLiteral("-f"), QStringLiteral("image2"), QStringLiteral("-framerate"),
            QStringLiteral("1"), QStringLiteral("-i"), inputPattern(exportFolder),
            QStringLiteral("-vf"), scaleFilter(width, height),
            // These files are read once and thrown away.
            QStringLiteral("-compression_level"), QStringLiteral("1"),
            QStringLiteral("-start_number"), QStringLiteral("0"),
            pattern(exportFolder, QLatin1String("/scaled%d.png"))};
}

QStringList mp4Arguments(const QString &exportFolder,
                         std::span<const frame_timing::TimedFrame> frames, const QString &width,
                         const QString &height, GifPreset preset) {
    const std::uint64_t ticks = std::max<std::uint64_t>(frame_timing::length(frames), 1);
    const QString rate = QString::number(frames.size() * frame_timing::videoTicks.perSecond) +
                         QLatin1Char('/') + QString::number(ticks);
    return {QStringLiteral("-f"),
            QStringLiteral("image2"),
            QStringLiteral("-framerate"),
            rate,
            QStringLiteral("-i"),
            inputPattern(exportFolder),
            QStringLiteral("-vf"),
            scaleFilter(width, height) + QStringLiteral(":out_color_matrix=bt709:out_range=tv") +
                evenSidesFilter(width, height),
            QStringLiteral("-c:v"),
            QStringLiteral("libx264"),
            QStringLiteral("-crf"),
            QString::number(constantQuality(preset)),
            QStringLiteral("-pix_fmt"),
            QStringLiteral("yuv420p"),
            QStringLiteral("-colorspace"),
            QStringLiteral("bt709"),
            QStringLiteral("-color_primaries"),
            QStringLiteral("bt709"),
            QStringLiteral("-color_trc"),
            QStringLiteral("bt709"),
            QStringLiteral("-color_range"),
            QStringLiteral("tv"),
            QStringLiteral("-movflags"),
            QStringLiteral("+faststart"),
            mp4File(exportFolder)};
}

std::optional<int> lossyQuality(GifPreset preset) {
    switch (preset) {
    case GifPreset::Best:
        return std::nullopt;
    case GifPreset::Balanced:
        return 90;
    case GifPreset::Small:
    case GifPreset::Classic:
        break;
    }
    return 75;
}

QStringList webpArguments(QStringView loopsText, std::span<const WebPFrame> frames,
                          const WebPCoding &coding, const QString &output) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t loops =
        std::clamp<std::int64_t>(integerValue(loopsText), Limits::min(), Limits::max());
    QStringList arguments{QStringLiteral("-v"),
                          QStringLiteral("-loop"),
                          QString::number(loops),
                          coding.lossy ? QStringLiteral("-lossy") : QStringLiteral("-lossless"),
                          QStringLiteral("-q"),
                          QString::number(coding.quality)};
    std::uint64_t milliseconds = 0;
    for (const WebPFrame &frame : frames) {
        // A duration holds until the next one.
        if (frame.milliseconds != milliseconds)
            arguments += {QStringLiteral("-d"), QString::number(frame.milliseconds)};
        milliseconds = frame.milliseconds;
        arguments += frame.file;
    }
    arguments += {QStringLiteral("-o"), output};
    return arguments;
}

} // namespace encoder_arguments
