// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT

// What a recording of five seconds at 30 frames a second and 1920x1080 takes: the memory of a frame
// behind the first one, a second after the last, against its raw pixels; and how long the stopped
// recording takes to become files, against its own length, the median of five saves. Of a desktop
// on which nothing happens, of somebody who types in a terminal, of a window that is dragged over a
// photograph, and of a film. The status is 1 when a bar is missed or a file does not hold the very
// pixels of its frame.

#include "bench/short_form.h"
#include "platform/image/tile_store.h"
#include "record/save/frame_saver.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <random>
#include <set>
#include <thread>

namespace {

constexpr QSize screen{1920, 1080};
constexpr int rate = 30;
int frameCount = 150;
int saves = 5;
bool barsCount = true;

using Frames = std::vector<Image>;

/// Frames kept as a recording keeps them.
class Recording {
public:
    void add(const QImage &picture) {
        const Image last = frames_.empty() ? Image() : frames_.back();
        frames_.push_back(store_.keep(Image::fromQImage(picture), last));
    }
    void repeatLast() { frames_.push_back(frames_.back()); }

    const Frames &frames() {
        store_.waitUntilCompressed();
        return frames_;
    }

    /// Bytes of a frame behind the first one, against its raw pixels, a second from now.
    double heldOfRaw() {
        const std::size_t first = bytesOfFirst();
        std::this_thread::sleep_for(std::chrono::seconds(1));
        const auto raw = static_cast<double>(screen.width()) * screen.height() * 4;
        const double held = static_cast<double>(store_.bytesHeld()) - static_cast<double>(first) +
                            static_cast<double>(frames_.size() * sizeof(Image));
        return held / static_cast<double>(frames_.size() - 1) / raw;
    }

private:
    std::size_t bytesOfFirst() const {
        TileStore alone;
        const Image first = alone.keep(Image::fromQImage(frames_.front().toQImage()), {});
        alone.waitUntilCompressed();
        return alone.bytesHeld();
    }

    TileStore store_;
    Frames frames_;
};

int fade(double place, double period) { return static_cast<int>(50.0 * std::sin(place / period)); }

/// Soft colours under the grain of a sensor: each channel of each pixel is off by up to `grain`.
QImage photograph(int moved, int grain, unsigned seed) {
    std::minstd_rand random(seed);
    QImage picture(screen, QImage::Format_RGB32);
    std::vector<int> across(static_cast<std::size_t>(screen.width()));
    for (int x = 0; x < screen.width(); ++x)
        across[static_cast<std::size_t>(x)] =
            128 + fade(x + moved, 97.0) + fade(x - moved, 31.0) / 4;
    for (int y = 0; y < screen.height(); ++y) {
        const int down = fade(y + 2 * moved, 83.0);
        auto *row = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < screen.width(); ++x) {
            const auto off = static_cast<unsigned>(random()) >> 8;
            const auto value = [&](unsigned shift) {
                const unsigned values = 2 * static_cast<unsigned>(grain) + 1;
                return across[static_cast<std::size_t>(x)] + down +
                       static_cast<int>((off >> shift) % values) - grain;
            };
            row[x] = qRgb(value(0), value(7) - 12, value(14) - 25);
        }
    }
    return picture;
}

/// A window full of lines, of which the last is `typed`.
void drawTerminal(QImage &on, QRect window, const QStringList &lines) {
    constexpr int lineHeight = 18;
    QPainter painter(&on);
    painter.fillRect(window, QColor(24, 26, 32));
    painter.fillRect(window.x(), window.y(), window.width(), 28, QColor(210, 212, 216));
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setPixelSize(14);
    painter.setFont(font);
    painter.setPen(QColor(220, 223, 228));
    const qsizetype fit = (window.height() - 40) / lineHeight;
    int y = window.y() + 46;
    for (const QString &line : lines.mid(std::max<qsizetype>(0, lines.size() - fit))) {
        painter.drawText(window.x() + 8, y, line);
        y += lineHeight;
    }
}

QStringList linesOfWork() {
    QStringList lines;
    for (int line = 0; line < 60; ++line)
        lines << QStringLiteral("[%1/60] Building CXX object record/part_%2.cpp.o %3")
                     .arg(line + 1, 2)
                     .arg(line * 7919 % 1000)
                     .arg(QString(line * 13 % 40, QLatin1Char('.')));
    return lines;
}

void idle(Recording &recording) {
    QImage desktop = photograph(0, 0, 1);
    drawTerminal(desktop, {200, 120, 1200, 800}, linesOfWork());
    recording.add(desktop);
    for (int frame = 1; frame < frameCount; ++frame)
        recording.repeatLast();
}

/// Fifteen characters a second, and a new line behind every thirtieth: then all lines move.
void typing(Recording &recording) {
    const QImage desktop = photograph(0, 0, 1);
    QStringList lines = linesOfWork() << QStringLiteral("$ ");
    for (int frame = 0; frame < frameCount; ++frame) {
        if (frame % 2 == 1) {
            recording.repeatLast();
            continue;
        }
        if (frame % 60 == 58)
            lines << QStringLiteral("$ ");
        lines.back() += QChar('a' + frame * 7 % 26);
        QImage picture = desktop;
        drawTerminal(picture, {200, 120, 1200, 800}, lines);
        recording.add(picture);
    }
}

void dragging(Recording &recording) {
    const QImage desktop = photograph(0, 2, 1);
    for (int frame = 0; frame < frameCount; ++frame) {
        QImage picture = desktop;
        const QPoint at(100 + frame * 7, 250 + static_cast<int>(200 * std::sin(frame / 20.0)));
        drawTerminal(picture, {at, QSize(800, 500)}, linesOfWork());
        recording.add(picture);
    }
}

/// The film leaves out a border: nine pixels out of ten change.
void film(Recording &recording) {
    const QRect shown(48, 27, 1824, 1026);
    QImage picture(screen, QImage::Format_RGB32);
    picture.fill(Qt::black);
    for (int frame = 0; frame < frameCount; ++frame) {
        const QImage next = photograph(frame * 5, 2, static_cast<unsigned>(frame) + 1);
        QPainter(&picture).drawImage(shown.topLeft(), next, shown);
        recording.add(picture.copy());
    }
}

QString file(const QTemporaryDir &folder, std::size_t frame) {
    return folder.filePath(QStringLiteral("frame%1.png").arg(frame, 8, 10, QLatin1Char('0')));
}

double save(const Frames &frames, const QString &folder) {
    QEventLoop loop;
    const auto began = std::chrono::steady_clock::now();
    FrameSaver saver(frames, folder, [&](std::uint64_t done) {
        if (done == frames.size())
            loop.quit();
    });
    loop.exec();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
}

/// The bytes that the files take, links counted once; -1 when one holds another picture.
long long checkedSize(const Frames &frames, const QTemporaryDir &folder) {
    std::set<ino_t> seen;
    long long bytes = 0;
    QImage read;
    for (std::size_t frame = 0; frame < frames.size(); ++frame) {
        const QString path = file(folder, frame);
        struct stat status = {};
        if (stat(qPrintable(path), &status) != 0)
            return -1;
        if (seen.insert(status.st_ino).second) {
            bytes += status.st_size;
            read = QImage(path).convertToFormat(QImage::Format_RGB32);
        }
        if (read != frames[frame].toQImage())
            return -1;
    }
    return bytes;
}

struct Bars {
    double held;
    double save;
};

bool measure(const char *name, void (*record)(Recording &), const Bars &bars) {
    Recording recording;
    record(recording);
    const double held = recording.heldOfRaw();
    const Frames &frames = recording.frames();
    std::vector<double> times;
    long long bytes = 0;
    for (int round = 0; round < saves; ++round) {
        const QTemporaryDir folder;
        times.push_back(save(frames, folder.path()));
        if (round == 0)
            bytes = checkedSize(frames, folder);
    }
    std::sort(times.begin(), times.end());
    const double median = times[times.size() / 2];
    const double share = median * rate / frameCount;
    std::printf("| %-25s | %7.4f | %6.4f%s | %7.3f | %4.2f%s | %8.1f%s |\n", name, held, bars.held,
                held > bars.held ? " MISSED" : "", share, bars.save,
                share > bars.save ? " MISSED" : "", static_cast<double>(bytes) * 1e-6,
                bytes < 0 ? " WRONG PICTURES" : "");
    std::fflush(stdout);
    const bool met = share <= bars.save && held <= bars.held;
    return bytes >= 0 && (met || !barsCount);
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (isShortForm(argc, argv)) {
        frameCount = 10;
        saves = 1;
        barsCount = false;
    }
    std::puts("| recording of 5 s          | held/raw | bar   | save/length | bar | files MB |\n"
              "|---------------------------|----------|-------|-------------|-----|----------|");
    // One after another: a recording takes more than a gigabyte.
    bool met = measure("nothing happens", idle, {0.0005, 0.1});
    met = measure("typing", typing, {0.005, 0.1}) && met;
    met = measure("window over a photograph", dragging, {0.1, 0.5}) && met;
    met = measure("film", film, {1.02, 1.2}) && met;
    return met ? 0 : 1;
}
