// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/repeating_timer.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>

namespace {

/// Turns the event loop until `done` holds, at most ten seconds.
template <typename Condition> bool turnUntil(Condition done) {
    QElapsedTimer limit;
    limit.start();
    QEventLoop loop;
    while (!done() && limit.elapsed() < 10'000)
        loop.processEvents(QEventLoop::WaitForMoreEvents, 10);
    return done();
}

} // namespace

TEST(RepeatingTimer, aLateTickNeitherDelaysTheNextOnesNorFiresInABurst) {
    constexpr qint64 interval = 20'000'000; // nanoseconds
    QElapsedTimer clock;
    int ticks = 0;
    clock.start();
    RepeatingTimer timer(0.02, [&] {
        ++ticks;
        if (ticks == 2)
            QThread::msleep(110); // Misses five deadlines, one of which fires late.
    });
    ASSERT_TRUE(turnUntil([&] { return ticks >= 8; }));
    // A burst would have made up for the pause and reached the eighth tick after eight intervals;
    // a timer that restarts at each tick would have moved off the grid of whole intervals.
    EXPECT_GE(clock.nsecsElapsed(), 12 * interval);
}

TEST(RepeatingTimer, mayBeDestroyedAndReplacedInItsOwnCallback) {
    int first = 0;
    int second = 0;
    std::unique_ptr<RepeatingTimer> timer;
    timer = std::make_unique<RepeatingTimer>(0.001, [&] {
        ++first;
        timer = std::make_unique<RepeatingTimer>(0.001, [&] { ++second; });
    });
    ASSERT_TRUE(turnUntil([&] { return second >= 3; }));
    EXPECT_EQ(first, 1);
}

TEST(RepeatingTimer, goesOnWithWhatWasLeftWhenItWasHeld) {
    constexpr double interval = 0.2; // seconds
    int ticks = 0;
    RepeatingTimer timer(interval, [&] { ++ticks; });
    timer.goOn(); // Runs already.
    QThread::msleep(120);
    timer.hold();
    timer.hold();
    QThread::msleep(250);
    QElapsedTimer clock;
    clock.start();
    timer.goOn();
    ASSERT_TRUE(turnUntil([&] { return ticks > 0; }));
    EXPECT_EQ(ticks, 1) << "nothing happened while it was held";
    // A started one would take the whole interval; this one has 80 ms left at most.
    EXPECT_LT(clock.nsecsElapsed(), 160'000'000);
    ASSERT_TRUE(turnUntil([&] { return ticks > 1; }));
    EXPECT_GT(clock.nsecsElapsed(), 200'000'000);
}

TEST(RepeatingTimer, anUndefinedOrInfiniteIntervalDoesNotFire) {
    int ticks = 0;
    RepeatingTimer never(1.0 / 0.0, [&] { ++ticks; });
    RepeatingTimer undefined(0.0 / 0.0, [&] { ++ticks; });
    int heartbeat = 0;
    RepeatingTimer other(0.002, [&] { ++heartbeat; });
    ASSERT_TRUE(turnUntil([&] { return heartbeat >= 5; }));
    EXPECT_EQ(ticks, 0);
}
