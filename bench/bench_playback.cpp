// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT

// What one tick of the Cut tab's playback costs: fetching the frame out of the store, scaling it to
// the view, painting it; beside a plain scaled paint of an uncompressed picture of the same size.
// Ratios of processor time; the status is 1 when what is painted is wrong.

#include "bench/short_form.h"
#include "platform/image/image_scaler.h"

#include <QGuiApplication>
#include <QPainter>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace {

constexpr QSize frameSize{1920, 1080};
int frameCount = 30;
int rounds = 4;

double processorSeconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Frames of many colours, each other than the one before.
std::vector<Image> makeFrames() {
    std::vector<Image> frames;
    for (int number = 0; number < frameCount; ++number) {
        QImage picture(frameSize, QImage::Format_RGB32);
        for (int y = 0; y < picture.height(); ++y) {
            auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
            for (int x = 0; x < picture.width(); ++x)
                line[x] = qRgb((x + number * 8) & 255, (y + number * 3) & 255, (x * y) & 255);
        }
        frames.push_back(Image::fromQImage(picture));
    }
    return frames;
}

struct Cost {
    double fetch = 0;
    double scale = 0;
    double paint = 0;
    double plain = 0;
};

Cost measure(const std::vector<Image> &frames, QSize view) {
    QImage screen(view, QImage::Format_RGB32);
    ImageScaler scaler;
    Cost cost;
    double last = processorSeconds();
    const auto lap = [&last](double &into) {
        const double now = processorSeconds();
        into += now - last;
        last = now;
    };
    for (int round = 0; round < rounds; ++round) {
        for (const Image &frame : frames) {
            const QImage picture = frame.toQImage();
            lap(cost.fetch);
            const QImage &scaled = scaler.scaled(frame, view, 1.0, ImageScaler::Care::Quick);
            lap(cost.scale);
            QPainter(&screen).drawImage(QPointF(0, 0), scaled);
            lap(cost.paint);
            QPainter plain(&screen);
            plain.setRenderHint(QPainter::SmoothPixmapTransform);
            plain.drawImage(QRectF(QPointF(0, 0), view), picture);
            plain.end();
            lap(cost.plain);
        }
    }
    return cost;
}

/// Whether the quick picture is the careful one but for rounding, on colours that change slowly.
bool quickIsCloseToFine(QSize view) {
    QImage slopes(frameSize, QImage::Format_RGB32);
    for (int y = 0; y < slopes.height(); ++y)
        for (int x = 0; x < slopes.width(); ++x)
            slopes.setPixel(x, y, qRgb(x / 8, y / 5, (x + y) / 12));
    const Image image = Image::fromQImage(slopes);
    ImageScaler quickScaler;
    ImageScaler fineScaler;
    const QImage &quick = quickScaler.scaled(image, view, 1.0, ImageScaler::Care::Quick);
    const QImage &fine = fineScaler.scaled(image, view, 1.0, ImageScaler::Care::Fine);
    const auto close = [](int one, int other) { return std::abs(one - other) <= 3; };
    for (int y = 0; y < view.height(); ++y) {
        for (int x = 0; x < view.width(); ++x) {
            const QRgb a = quick.pixel(x, y);
            const QRgb b = fine.pixel(x, y);
            if (!close(qRed(a), qRed(b)) || !close(qGreen(a), qGreen(b)) ||
                !close(qBlue(a), qBlue(b)))
                return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (isShortForm(argc, argv)) {
        frameCount = 2;
        rounds = 1;
    }
    const std::vector<Image> frames = makeFrames();
    int status = 0;
    std::printf("%-12s %8s %8s %8s %8s   share of a tick at 60/s\n", "view", "fetch", "scale",
                "paint", "whole");
    for (const QSize view : {QSize(696, 392), QSize(1240, 697), QSize(1800, 1012)}) {
        if (!quickIsCloseToFine(view)) {
            std::printf("%dx%d: wrong picture\n", view.width(), view.height());
            status = 1;
        }
        const Cost cost = measure(frames, view);
        const double whole = cost.fetch + cost.scale + cost.paint;
        std::printf("%4dx%-7d %8.2f %8.2f %8.2f %8.2f   %.2f\n", view.width(), view.height(),
                    cost.fetch / cost.plain, cost.scale / cost.plain, cost.paint / cost.plain,
                    whole / cost.plain, whole / (rounds * frameCount) * 60.0);
    }
    return status;
}
