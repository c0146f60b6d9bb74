// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/drawn_ahead.h"

#include "platform/image/regions.h"

#include <utility>

namespace x11 {

namespace {

using namespace std::chrono_literals;

constexpr auto longestDelay = 100ms;

} // namespace

QRegion DrawnAhead::shown(const QRegion &drawn, bool isShown, std::uint64_t repaints) {
    const auto now = Clock::now();
    const bool wasRepainted = std::exchange(repaints_, repaints) != repaints;
    if (isShown || (!isEmpty() && now - since_ > longestDelay))
        return united(std::exchange(region_, {}), drawn);
    if (isEmpty())
        since_ = now;
    // What was drawn again meanwhile is ahead again.
    const QRegion shown = wasRepainted ? region_.subtracted(drawn) : QRegion();
    region_ = united(region_.subtracted(shown), drawn);
    return shown;
}

} // namespace x11
