// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/repeating_timer.h"

#include <QSocketNotifier>
#include <QtGlobal>

#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <utility>

namespace {

constexpr double shortestSeconds = 1e-9;
constexpr double longestSeconds = 100.0 * 365 * 24 * 3600;
constexpr double nanosecondsPerSecond = 1e9;

timespec toTimespec(double seconds) {
    // NaN fails the first comparison and falls to the longest interval: an undefined rate never
    // floods the event loop.
    const double clamped =
        seconds <= longestSeconds ? std::max(seconds, shortestSeconds) : longestSeconds;
    const double whole = std::floor(clamped);
    const double rest = std::round((clamped - whole) * nanosecondsPerSecond);
    timespec result{};
    result.tv_sec = static_cast<time_t>(whole);
    result.tv_nsec = static_cast<long>(std::min(rest, nanosecondsPerSecond - 1));
    return result;
}

} // namespace

RepeatingTimer::RepeatingTimer(double seconds, std::function<void()> tick)
    : seconds_(seconds), tick_(std::move(tick)) {
    descriptor_ = timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
    itimerspec spec{};
    spec.it_interval = toTimespec(seconds);
    spec.it_value = spec.it_interval;
    if (descriptor_ < 0 || timerfd_settime(descriptor_, 0, &spec, nullptr) != 0) {
        qWarning("timer: %s", std::strerror(errno));
        return;
    }
    notifier_ = new QSocketNotifier(descriptor_, QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &RepeatingTimer::onReadable);
}

RepeatingTimer::~RepeatingTimer() {
    // The notifier must be off before the descriptor's number can be given to another file.
    delete notifier_;
    if (descriptor_ >= 0)
        close(descriptor_);
}

void RepeatingTimer::hold() {
    itimerspec before{};
    const itimerspec none{};
    if (left_ > 0.0 || descriptor_ < 0 || timerfd_settime(descriptor_, 0, &none, &before) != 0)
        return;
    const double left = static_cast<double>(before.it_value.tv_sec) +
                        static_cast<double>(before.it_value.tv_nsec) / nanosecondsPerSecond;
    left_ = std::max(left, shortestSeconds);
}

void RepeatingTimer::goOn() {
    if (!(left_ > 0.0))
        return;
    itimerspec spec{};
    spec.it_interval = toTimespec(seconds_);
    spec.it_value = toTimespec(left_);
    left_ = 0.0;
    if (timerfd_settime(descriptor_, 0, &spec, nullptr) != 0)
        qWarning("timer: %s", std::strerror(errno));
}

void RepeatingTimer::onReadable() {
    // The kernel counts the deadlines that passed since the last read; reading takes them all, so
    // missed ones are skipped.
    std::uint64_t deadlines = 0;
    if (read(descriptor_, &deadlines, sizeof deadlines) != sizeof deadlines)
        return;
    // A copy, since the callback may destroy this timer and its own function object with it.
    const std::function<void()> tick = tick_;
    tick();
}
