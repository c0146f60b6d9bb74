// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screen_source.h"

#include <QRect>
#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>

/// What is recorded and how often, as the labels beside the capture buttons say it.
struct CaptureMode {
    bool region = false; ///< Not the whole screen.
    QString monitor;     ///< The one that is recorded alone; empty for all of them.
    /// Of a region or a monitor, what a frame will hold: its size and its place, in units of the
    /// grab from its upper left corner.
    QRect area;
    std::uint64_t rate = 0;   ///< frames per second
    bool userChooses = false; ///< In a dialog of the desktop.
    /// What was chosen there, if anything was, and the size that frames of it have.
    std::optional<ChosenSource::Kind> chosen = {};
    QSize size = {};

    bool operator==(const CaptureMode &) const = default;
};
