// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>

// How the encoder's error output becomes a percentage. The output arrives in chunks of any size;
// each is read by itself, so that a stamp split between two chunks is lost and the next one counts.

/// Text of these bytes; none when they are not valid UTF-8, a sequence cut off at the end included.
std::optional<QString> strictUtf8(QByteArrayView bytes);

/// Whole seconds of a stamp "HH:MM:SS" of at least 8 characters. The separators are not looked at,
/// fractions not read; a field that does not begin with a number counts as 0. A negative field is
/// computed with in 64 unsigned bits.
std::uint64_t secondsFromStamp(QStringView stamp);

/// Seconds of the last complete "time=" stamp in a chunk, with the hundredths where they follow it;
/// none when there is none, or when the chunk is not UTF-8. Only the first occurrence must be in
/// lower case and complete.
std::optional<double> secondsInChunk(QByteArrayView chunk);

/// Seconds at which the last frame begins that the WebP encoder says in a chunk to have added
/// ("Added frame # 12 at time 400 (file: ...)", a line of its own); none likewise.
std::optional<double> secondsOfAddedFrame(QByteArrayView chunk);

/// Position in percent, in single precision: beyond 100 when the clip runs longer than `duration`
/// seconds, not finite when that is 0.
double progressPercentage(double seconds, double duration);
