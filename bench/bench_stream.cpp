// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// What a recording of a Wayland window costs, and how old a frame is when it is stored: runs in a
// session of its own (tests/support/with_wayland.py), with a client (TOVAREL_COUNTER) whose window
// changes everywhere 60 times a second and says when it has painted what.
//
//   bench_stream [--short]
#include "bench/short_form.h"
#include "platform/image/tile_store.h"
#include "platform/portal/portal_screen_source.h"
#include "platform/repeating_timer.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QHash>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint64_t rate = 60;
constexpr double costBar = 0.12;    // of a core
constexpr double idleBar = 0.01;    // of a core
constexpr double latencyBar = 20.0; // milliseconds, the median
constexpr int digits = 8;
constexpr int cells = digits + 1;

double ownSeconds() {
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

void turnEvents(double seconds) {
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(seconds * 1000), Qt::PreciseTimer, &loop,
                       &QEventLoop::quit);
    loop.exec();
}

/// The number that the counter shows in all of the picture; none when it is no counter's.
std::optional<std::uint32_t> numberIn(const QImage &picture) {
    constexpr QRgb colours[] = {0xffe00000, 0xff00c000, 0xff0000e0, 0xffe0e000};
    std::uint32_t number = 0, sum = 0;
    for (int cell = 0; cell < cells; ++cell) {
        const QRgb seen =
            picture.pixel(picture.width() * (2 * cell + 1) / (2 * cells), picture.height() * 3 / 4);
        const auto *found = std::ranges::find(colours, seen);
        if (found == std::end(colours))
            return {};
        const auto digit = static_cast<std::uint32_t>(found - std::begin(colours));
        if (cell == digits)
            return sum % 4 == digit ? std::optional(number) : std::nullopt;
        number |= digit << (2 * cell);
        sum += digit;
    }
    return {};
}

/// The source at work as a recording has it: a tick takes the newest picture, and keeps it if asked
/// to, which costs what it costs on every desktop.
class Recording {
public:
    Recording(ScreenSource &source, bool keeps) : source_(source), keeps_(keeps) {
        timer_ = std::make_unique<RepeatingTimer>(1.0 / rate, [this] { tick(); });
    }

    std::vector<std::optional<std::uint32_t>> numbers; // that the frames show
    std::vector<qint64> at;                            // nanoseconds of the steady clock

    /// Memory of a picture that differs from the one before it, as a part of its raw pixels, once
    /// everything is compressed.
    double heldOfRaw() {
        store_.waitUntilCompressed();
        const QSize size = frames_.front().size();
        const double raw = 4.0 * size.width() * size.height() * static_cast<double>(differing_);
        return static_cast<double>(store_.bytesHeld()) / raw;
    }

private:
    void tick() {
        const auto picture = source_.latest({}, {});
        if (!picture)
            return;
        if (keeps_) {
            const Image before = frames_.empty() ? Image() : frames_.back();
            frames_.push_back(store_.keep(picture->image, before));
            differing_ += !frames_.back().sameAs(before);
        }
        numbers.push_back(numberIn(picture->image.toQImage()));
        at.push_back(Clock::now().time_since_epoch().count());
    }

    ScreenSource &source_;
    bool keeps_;
    std::vector<Image> frames_;
    std::size_t differing_ = 0;
    TileStore store_;
    std::unique_ptr<RepeatingTimer> timer_;
};

bool passes(const char *what, double figure, double bar, const char *unit) {
    std::printf("| %s | %.3f %s | %.3f%s |\n", what, figure, unit, bar,
                figure <= bar ? "" : " missed");
    return figure <= bar;
}

/// When the counter painted what, in nanoseconds of the same clock.
QHash<std::uint32_t, qint64> paintings(QProcess &counter) {
    QHash<std::uint32_t, qint64> painted;
    for (const QByteArray &line : counter.readAllStandardOutput().split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() == 3 && words[0] == "drawn")
            painted[words[1].toUInt()] = words[2].toLongLong();
    }
    return painted;
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    const bool isShort = isShortForm(argc, argv);
    const double seconds = isShort ? 1 : 8;
    QProcess counter;
    const auto show = [&](const char *wantedRate) {
        counter.kill();
        counter.waitForFinished();
        counter.start(qEnvironmentVariable("TOVAREL_COUNTER"),
                      {QStringLiteral("--size"),
                       isShort ? QStringLiteral("320x240") : QStringLiteral("1920x1080"),
                       QStringLiteral("--rate"), QString::fromLatin1(wantedRate),
                       QStringLiteral("--log")});
        counter.waitForReadyRead();
        turnEvents(1);
    };
    bool good = true;

    show("60");
    PortalScreenSource source;
    const auto live = [&] {
        source.start({.rate = rate});
        for (int i = 0; i < 100 && source.state() != SourceState::Live; ++i)
            turnEvents(0.1);
        return source.state() == SourceState::Live;
    };
    if (!live()) {
        std::printf("no stream: %s\n", qPrintable(source.reason()));
        return 1;
    }
    turnEvents(0.5);
    double before = 0;
    for (const bool keeps : {false, true}) {
        before = ownSeconds();
        Recording recording(source, keeps);
        turnEvents(seconds);
        const double cost = (ownSeconds() - before) / seconds;
        const auto painted = paintings(counter);
        std::vector<double> ages;
        std::optional<std::uint32_t> last;
        std::size_t unread = 0;
        for (std::size_t i = 0; i < recording.numbers.size(); ++i) {
            const auto number = recording.numbers[i];
            unread += !number;
            if (number && number != last && painted.contains(*number))
                ages.push_back(static_cast<double>(recording.at[i] - painted[*number]) * 1e-6);
            last = number;
        }
        std::ranges::sort(ages);
        if (ages.empty() || unread > 0) {
            std::printf("%zu frames, %zu of them without a counter\n", recording.numbers.size(),
                        unread);
            return 1;
        }
        std::printf("| distinct frames a second | %.1f | told |\n",
                    static_cast<double>(ages.size()) / seconds);
        if (keeps) {
            std::printf("| the same, kept as a recording | %.3f of a core | told |\n", cost);
            std::printf("| held of raw, a distinct frame | %.4f | told |\n", recording.heldOfRaw());
        } else if (!isShort) {
            good &= passes("processor time, a large window changing", cost, costBar, "of a core");
            good &= passes("painted to stored, median", ages[ages.size() / 2], latencyBar, "ms");
        }
    }

    show("0.01");
    if (!live())
        return 1;
    Recording recording(source, true);
    turnEvents(1); // the first picture is compressed, once
    before = ownSeconds();
    turnEvents(seconds);
    if (!isShort)
        good &= passes("processor time, nothing changing", (ownSeconds() - before) / seconds,
                       idleBar, "of a core");
    counter.kill();
    counter.waitForFinished();
    return good ? 0 : 1;
}
