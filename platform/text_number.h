// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <cstdint>

// Reading numbers out of text that people and tools wrote: blanks at the start are skipped, a sign
// is allowed, reading stops at the first character that does not belong to a number, and 0 is the
// answer when nothing was read. In no locale: the decimal sign is always a point. The library's own
// conversions do not serve: some refuse "320px", others accept "inf" and hexadecimal digits.

/// The whole number that `text` begins with; one beyond the range gives the nearest end of it.
std::int64_t integerValue(QStringView text);

/// The number that `text` begins with, in decimal digits with an optional fraction and exponent, in
/// single precision; one beyond the range gives the largest finite number of its sign.
float floatValue(QStringView text);
