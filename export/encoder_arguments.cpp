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
/// Doubling does not help there: with no number left in it, such a path is used as it stands.
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

/// The encoder's expression for the tick at which frame number N begins: rounded as `frame_timing`
/// rounds it, in whole numbers that a double holds exactly.
QString beginOfFrame(std::span<const frame_timing::TimedFrame> frames) {
    const std::uint64_t count = frames.size();
    return QStringLiteral("setpts=floor((") + QString::number(2 * frame_timing::length(frames)) +
           QStringLiteral("*N+") + QString::number(count) + QStringLiteral(")/") +
           QString::number(2 * count) + QLatin1Char(')');
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
                         const QString &height) {
    const QString filter = beginOfFrame(frames) + QLatin1Char(',') + scaleFilter(width, height) +
                           QStringLiteral("[x];[x][1:v]paletteuse");
    // The rate only gives the frames' times their unit.
    const QString unit = QString::number(frame_timing::gifTicks.perSecond);
    const std::uint64_t lastDelay = frames.empty() ? 0 : frames.back().delay;
    QStringList arguments{QStringLiteral("-f"),         QStringLiteral("image2"),
                          QStringLiteral("-framerate"), unit,
                          QStringLiteral("-i"),         inputPattern(exportFolder)};
    if (looksLikePattern(paletteFolder))
        arguments += {QStringLiteral("-f"), QStringLiteral("png_pipe")};
    return arguments +=
           {QStringLiteral("-i"), paletteFile(paletteFolder), QStringLiteral("-filter_complex"),
            filter,
            // As many frames as went in, each at its own time.
            QStringLiteral("-fps_mode"), QStringLiteral("passthrough"),
            // No frame follows that would end the last one.
            QStringLiteral("-final_delay"), QString::number(lastDelay), gifFile(exportFolder)};
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

QStringList webpArguments(QStringView loopsText, std::span<const WebPFrame> frames,
                          const QString &output) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t loops =
        std::clamp<std::int64_t>(integerValue(loopsText), Limits::min(), Limits::max());
    QStringList arguments{QStringLiteral("-v"), QStringLiteral("-loop"), QString::number(loops)};
    std::uint64_t milliseconds = 0;
    for (const WebPFrame &frame : frames) {
        // A duration holds until the next one, and a command line has an end.
        if (frame.milliseconds != milliseconds)
            arguments += {QStringLiteral("-d"), QString::number(frame.milliseconds)};
        milliseconds = frame.milliseconds;
        arguments += frame.file;
    }
    arguments += {QStringLiteral("-o"), output};
    return arguments;
}

} // namespace encoder_arguments
