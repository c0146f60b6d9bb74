// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// What every source of pictures must do, on the session that this runs in: an X display, or a
// Wayland session whose portal answers for the user. TOVAREL_COUNTER is a client that changes the
// screen.
#include "platform/portal/portal_screen_source.h"
#include "platform/screen_source.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr int limit = 20000; // milliseconds

class ScreenSourceContract : public testing::Test {
protected:
    void start(std::uint64_t rate = 20) {
        source->start({.rate = rate});
        ASSERT_TRUE(QTest::qWaitFor([&] { return source->state() == SourceState::Live; }, limit))
            << int(source->state()) << qPrintable(source->reason());
    }

    std::vector<std::uint32_t> numbers() {
        std::vector<std::uint32_t> list;
        for (const WindowDescription &window : source->windows())
            list.push_back(window.number);
        return list;
    }

    Image latest() {
        const auto picture = source->latest(numbers(), {});
        return picture ? picture->image : Image();
    }

    /// Another picture than this one; the empty image when none comes.
    Image after(const Image &before) {
        Image next;
        const bool came = QTest::qWaitFor(
            [&] {
                next = latest();
                return !next.isEmpty() && !next.sameAs(before);
            },
            limit);
        return came ? next : Image();
    }

    std::unique_ptr<ScreenSource> source = makeScreenSource();
    QProcess counter;
};

TEST_F(ScreenSourceContract, givesThePicturesThatTheScreenShowsAndTellsExactlyWhatChanged) {
    EXPECT_EQ(source->obstacle(), std::nullopt);
    EXPECT_EQ(source->state(), SourceState::Idle);
    EXPECT_FALSE(source->latest({}, {}));
    start();
    EXPECT_EQ(source->chosen().has_value(), source->capabilities().asksUser);
    EXPECT_TRUE(source->windows().empty() || !source->capabilities().asksUser);

    // Nothing moves: the same picture again and again.
    Image before = after({});
    ASSERT_EQ(before.size(), QSize(640, 400));
    QTest::qWait(300);
    before = latest();
    QTest::qWait(100);
    EXPECT_TRUE(latest().sameAs(before));

    counter.start(qEnvironmentVariable("TOVAREL_COUNTER"),
                  {QStringLiteral("--size"), QStringLiteral("400x240"), QStringLiteral("--rate"),
                   QStringLiteral("10")});
    int changed = 0;
    for (int i = 0; i < 12; ++i) {
        const Image next = after(before);
        ASSERT_EQ(next.size(), before.size());
        const auto told = next.changesSince(before);
        const QImage one = before.toQImage(), other = next.toQImage();
        for (int y = 0; told && y < one.height(); ++y)
            for (int x = 0; x < one.width(); ++x)
                if (one.pixel(x, y) != other.pixel(x, y)) {
                    ++changed;
                    ASSERT_TRUE(told->contains(QPoint(x, y))) << x << ", " << y;
                }
        before = next;
    }
    EXPECT_GT(changed, 0);
    counter.kill();
    counter.waitForFinished();

    source->setRate(5);
    ASSERT_TRUE(QTest::qWaitFor([&] { return source->state() == SourceState::Live; }, limit));
    QSignalSpy spoke(source.get(), &ScreenSource::stateChanged);
    source->stop();
    EXPECT_EQ(spoke.count(), 1);
    EXPECT_EQ(source->state(), SourceState::Idle);
    EXPECT_FALSE(source->latest({}, {}));
    start();
    EXPECT_FALSE(after({}).isEmpty());
}

TEST_F(ScreenSourceContract, canBeEndedAtAnyMoment) {
    for (int wait : {0, 1, 5, 20, 50, 100}) {
        source->start({.rate = 60});
        QTest::qWait(wait);
        source->stop();
        EXPECT_EQ(source->state(), SourceState::Idle);
    }
    source->start({.rate = 60});
    source.reset();
    QTest::qWait(50);
}

TEST(PortalScreenSource, hasAnObstacleWhereThereIsNoPortal) {
    PortalScreenSource source{QDBusConnection(QStringLiteral("no bus"))};
    source.start({.rate = 5});
    ASSERT_TRUE(QTest::qWaitFor([&] { return source.obstacle() == Obstacle::NoPortal; }, limit));
    EXPECT_EQ(source.state(), SourceState::Ended);
    source.start({.rate = 5});
    EXPECT_EQ(source.state(), SourceState::Ended);
    EXPECT_FALSE(source.latest({}, {}));
}

} // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
