// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT

// How long the strip of the Cut tab takes until its pictures are right, out of the store and out of
// files, and how long the interface stands still meanwhile at the longest, counted by a timer of
// 4 ms. Bars count outside the short form; the status is 1 when a picture is wrong or one is
// missed.

#include "bench/short_form.h"
#include "platform/window_server_source.h"
#include "record/recorder.h"
#include "region/region_chooser.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"
#include "tests/support/fake_window_server.h"
#include "trim/strip_look.h"
#include "trim/trim_editor.h"
#include "trim/view_cut_preview.h"
#include "trim/view_cut_range.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace {

constexpr int scenes = 24;
constexpr double longestStall = 16; // milliseconds
constexpr int beat = 4;             // milliseconds
int frameCount = 18'000;
bool barsCount = true;

int sceneOf(int frame) { return static_cast<int>(qint64{frame} * scenes / frameCount); }

QColor colourOf(int scene) { return QColor::fromHsv(scene * 360 / scenes, 200, 200); }

/// What a desktop might show: texts all over, in the middle a field of the scene's colour.
QImage sceneOfSize(QSize size, int scene) {
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            line[x] =
                ((x / 3 * 7919 + y / 5 * 104729 + scene * 31) % 11 < 3) ? 0xff202020u : 0xfff4f4f4u;
    }
    const QRect field(size.width() / 8, size.height() / 8, size.width() * 3 / 4,
                      size.height() * 3 / 4);
    for (int y = field.top(); y <= field.bottom(); ++y)
        std::fill_n(reinterpret_cast<QRgb *>(picture.scanLine(y)) + field.left(), field.width(),
                    colourOf(scene).rgb());
    return picture;
}

/// All desks without a main window, and the strip alone on the screen.
class Tab {
public:
    explicit Tab(QSize size) {
        auto fake = std::make_unique<FakeWindowServer>();
        recorder = std::make_unique<Recorder>(
            surroundings, chooser, std::make_unique<WindowServerSource>(std::move(fake)));
        editor = std::make_unique<TrimEditor>(surroundings, *recorder);
        surroundings.shell.setS_Output_Folder(folder.path());
        recorder->recording.setU_Record_Current_Frame(static_cast<std::uint64_t>(frameCount));
        recorder->recording.setU_Record_Current_FPS(60);
        fill(size);
        editor->keepWholeRecording();
        editor->enter();
    }

    /// Every frame differs from the one before, as if something small moved.
    void fill(QSize size) {
        auto &frames = recorder->recording.array_Images.emplace();
        TileStore &store = recorder->recording.store;
        QImage small(QSize(32, 16), QImage::Format_RGB32);
        for (int frame = 0; frame < frameCount; ++frame) {
            const Image before = frames.empty() ? Image() : frames.back();
            if (frame == 0 || sceneOf(frame) != sceneOf(frame - 1)) {
                store.waitUntilCompressed();
                const QImage picture = sceneOfSize(size, sceneOf(frame));
                const QString file =
                    folder.filePath(QStringLiteral("scene%1.png").arg(sceneOf(frame)));
                picture.save(file, "PNG", 90);
                frames.push_back(store.keep(Image::fromQImage(picture), before));
            } else {
                small.fill(frame * 997 & 0xffffff);
                frames.push_back(
                    store.keep(before.withPatches({{QPoint(8, 8), small.copy()}}), before));
            }
            const QString scene =
                folder.filePath(QStringLiteral("scene%1.png").arg(sceneOf(frame)));
            QFile::link(scene, working_folders::frameFile(folder.path(),
                                                          static_cast<std::uint64_t>(frame)));
        }
        store.waitUntilCompressed();
    }

    QTemporaryDir folder;
    Surroundings surroundings;
    RegionChooser chooser{surroundings};
    std::unique_ptr<Recorder> recorder;
    std::unique_ptr<TrimEditor> editor;
};

/// Processor time in milliseconds, of this thread or of all: what a busy machine does not add to.
double workedSoFar(clockid_t whose) {
    timespec now{};
    clock_gettime(whose, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) * 1e-6;
}

struct Result {
    double seconds = 0;
    double work = 0;  // processor seconds of all threads until then
    double stall = 0; // milliseconds
    double own = 0;   // milliseconds of the interface's own work in one turn
    double paint = 0; // milliseconds
    bool isRight = true;
};

/// Whether the middle of each picture has the colour of the scene at that time. Those at the ends
/// lie beneath handles and playhead.
bool isRight(View_Cut_Range &strip, QSize size) {
    const QImage shown = strip.grab().toImage();
    const int y = strip_look::filmTop + strip_look::filmHeight / 2;
    // Without a store the strip does not know the size.
    const double one = size.isEmpty()
                           ? strip_look::filmHeight * 1.6
                           : double(strip_look::filmHeight) * size.width() / size.height();
    const int count = static_cast<int>(std::ceil(strip.width() / one));
    for (int place = 1; place < count - 1; ++place) {
        const double middle = (place + 0.5) / count;
        const QColor seen = shown.pixelColor(static_cast<int>(middle * strip.width()), y);
        if (seen.rgb() != colourOf(sceneOf(static_cast<int>(middle * frameCount))).rgb())
            return false;
    }
    return count > 5;
}

Result measure(Tab &tab, QSize size, int width) {
    QWidget window;
    View_Cut_Preview preview;
    View_Cut_Range strip(&window);
    strip.setEditor(*tab.editor, preview);
    window.resize(width, strip_look::stripHeight);
    strip.resize(width, strip_look::stripHeight);
    Result result;
    QElapsedTimer sinceBeat;
    double workedBefore = workedSoFar(CLOCK_THREAD_CPUTIME_ID);
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        result.stall = std::max(result.stall, double(sinceBeat.nsecsElapsed()) * 1e-6);
        result.own = std::max(result.own, workedSoFar(CLOCK_THREAD_CPUTIME_ID) - workedBefore);
        workedBefore = workedSoFar(CLOCK_THREAD_CPUTIME_ID);
        sinceBeat.start();
    });
    QElapsedTimer whole;
    const double workedAtFirst = workedSoFar(CLOCK_PROCESS_CPUTIME_ID);
    timer.start(beat);
    sinceBeat.start();
    whole.start();
    window.show();
    QApplication::processEvents();
    while (!strip.arePicturesComplete())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QApplication::processEvents();
    result.seconds = double(whole.nsecsElapsed()) * 1e-9;
    result.work = (workedSoFar(CLOCK_PROCESS_CPUTIME_ID) - workedAtFirst) * 1e-3;
    timer.stop();
    result.isRight = isRight(strip, size);
    constexpr int paints = 20;
    whole.restart();
    for (int paint = 0; paint < paints; ++paint)
        strip.repaint();
    result.paint = double(whole.nsecsElapsed()) * 1e-6 / paints;
    return result;
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (isShortForm(argc, argv)) {
        frameCount = 96;
        barsCount = false;
    }
    std::puts("| recording | from  | strip | right after | bar   | work    | longest stall | bar   "
              "| own work | a paint |\n"
              "|-----------|-------|-------|-------------|-------|---------|---------------|-------"
              "|----------|---------|");
    bool met = true;
    for (const QSize size : {QSize(1280, 800), QSize(3840, 2160)}) {
        Tab tab(size);
        for (const bool fromStore : {true, false}) {
            if (!fromStore)
                tab.recorder->recording.array_Images.reset();
            const bool isLarge = size.width() > 1280;
            const double bar = !isLarge && fromStore ? 0.3 : 1.0;
            // Large files are told only: reading alone takes longer.
            const bool counts = barsCount && (fromStore || !isLarge);
            for (const int width : {696, 1896}) {
                const Result result = measure(tab, fromStore ? size : QSize(), width);
                std::printf("| %4dx%-4d | %-5s | %5d | %9.3f s | %3.1f s%s | %5.3f s | %10.1f ms "
                            "| %2.0f ms%s | %5.1f ms | %4.2f ms |%s\n",
                            size.width(), size.height(), fromStore ? "store" : "files", width,
                            result.seconds, bar, result.seconds > bar ? " MISSED" : "", result.work,
                            result.stall, longestStall,
                            result.stall > longestStall ? " MISSED" : "", result.own, result.paint,
                            result.isRight ? "" : " WRONG PICTURES");
                std::fflush(stdout);
                met &= result.isRight &&
                       (!counts || (result.seconds <= bar && result.stall <= longestStall));
            }
        }
    }
    return met ? 0 : 1;
}
