// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif_preset.h"

#include <QRect>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <variant>

/// What the program was asked for on its command line. It is read before there is a display, so
/// that a mistake is told wherever it is made; nothing is done here. Texts come from the strings
/// table.
namespace command_line {

/// What the program ends with.
enum Status : int {
    done = 0,
    wrongUse = 2,
    cannotRecord = 3, ///< Nothing can be recorded here, or nobody is there to be told.
    noFile = 4,       ///< No file came of the recording.
    cancelled = 130,  ///< As shells have it for a program that a signal ended.
};

/// What a file is made as.
enum class Format { GIF, WebP, MP4 };

/// A recording that is made without a window.
struct Recording {
    /// What is recorded: the first of these that is set, else all monitors.
    std::optional<QRect> region;   ///< Pixels of the desktop, upper left origin.
    std::optional<int> monitor;    ///< Counted from 1.
    std::optional<QString> window; ///< What its title holds.
    double seconds = 0;            ///< How long, above 0.
    double delay = 0;              ///< Seconds before it begins.
    std::uint64_t rate = 0;        ///< Frames per second.
    GifPreset preset = GifPreset::Balanced;
    Format format = Format::GIF;
    QString output;     ///< The file; empty for a name that tells when it was made.
    bool force = false; ///< Whether that file is replaced if it exists.
};

/// The window, as without arguments.
struct ShowWindow {};

/// What the running instance is told; see `SingleInstance`.
struct Tell {
    QString wish;
};

/// A text that was asked for.
struct Say {
    QString text;
};

/// A mistake, in the user's words.
struct Mistake {
    QString text;
};

using Command = std::variant<ShowWindow, Recording, Tell, Say, Mistake>;

/// Reads the arguments, the program's name first. An application object must exist.
Command read(const QStringList &arguments, const QString &version);

} // namespace command_line
