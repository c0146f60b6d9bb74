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

} // namespace

QString inputPattern(const QString &folder) {
    QString literal = folder;
    literal.replace(QLatin1Char('%'), QStringLiteral("%%"));
    return literal + QStringLiteral("/image%d.png");
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

QString webpFile(const QString &recordingFolder) {
    return recordingFolder + QStringLiteral("/output.webp");
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
                         std::uint64_t rate, const QString &width, const QString &height) {
    const QString filter = QStringLiteral("scale=") + width + QLatin1Char('x') + height +
                           QStringLiteral(":flags=lanczos[x];[x][1:v]paletteuse");
    QStringList arguments{QStringLiteral("-f"),         QStringLiteral("image2"),
                          QStringLiteral("-framerate"), QString::number(rate),
                          QStringLiteral("-i"),         inputPattern(exportFolder)};
    if (looksLikePattern(paletteFolder))
        arguments += {QStringLiteral("-f"), QStringLiteral("png_pipe")};
    return arguments += {QStringLiteral("-i"), paletteFile(paletteFolder),
                         QStringLiteral("-filter_complex"), filter, gifFile(exportFolder)};
}

QStringList webpArguments(QStringView loopsText, const QStringList &frameFiles,
                          const QString &output) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t loops =
        std::clamp<std::int64_t>(integerValue(loopsText), Limits::min(), Limits::max());
    QStringList arguments{QStringLiteral("-loop"), QString::number(loops)};
    arguments += frameFiles;
    arguments += {QStringLiteral("-o"), output};
    return arguments;
}

} // namespace encoder_arguments
