// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

/// Numbers as the user reads them: in the locale's digits, marks and units. Coordinates, sides in
/// pixels, signals and exit codes are not written in this way: they are read one by one or typed
/// again. A count inside a sentence whose words depend on it is a `%Ln` of the strings table.
namespace number_text {

/// "1,234".
QString count(std::uint64_t number);

/// "12.4", or "12" where nothing is left behind the decimal sign. For frames per second.
QString rate(double perSecond);

/// "7.30" with two `decimals`, halves rounded up. For seconds.
QString decimal(double number, int decimals = 1);

/// "0:02.1": minutes, seconds and tenths, for a place in a recording. `seconds` is not negative.
QString time(double seconds);

/// "512 bytes", "1.2 MB": files and memory alike in units of 1,000 (SI). The unit does not part
/// from the number at the end of a line.
QString bytes(std::uint64_t amount);

} // namespace number_text
