// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "script/scripted_recording.h"

#include "export/preset_name.h"
#include "export/safe_move.h"
#include "platform/bundle.h"
#include "platform/screen_source.h"
#include "record/source_text.h"
#include "record/stepping_aside.h"
#include "shell/obstacle_text.h"
#include "shell/working_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <utility>

using command_line::Format;
using command_line::Status;

namespace {

constexpr std::chrono::milliseconds refreshing{200}; // of the line of progress
constexpr qint64 patience = 10000;                   // milliseconds, for the first grab

/// What another window of this program covers is known once it was drawn again: grabs go on from
/// the first one, as they do in the window before Record is pressed.
constexpr std::chrono::milliseconds settling{500};
constexpr std::chrono::milliseconds betweenLooks{50};

std::chrono::milliseconds milliseconds(double seconds) {
    return std::chrono::milliseconds(std::lround(seconds * 1000));
}

QString tenths(double seconds) { return QLocale().toString(seconds, 'f', 1); }

/// The monitor's place on the desktop in pixels.
QRect pixelsOf(const QScreen &screen) {
    const coordinates::Screen place = coordinates::screenOnDesktop(screen);
    return QRectF(place.originX, place.originY, screen.geometry().width() * place.ratio,
                  place.height * place.ratio)
        .toRect();
}

} // namespace

ScriptedRecording::ScriptedRecording(command_line::Recording wanted,
                                     std::unique_ptr<ScreenSource> source)
    : wanted_(std::move(wanted)), recorder_(surroundings_, chooser_, std::move(source)) {
    clock_.setSingleShot(true);
    clock_.setTimerType(Qt::PreciseTimer);
    listen();
}

void ScriptedRecording::listen() {
    surroundings_.alerts.setTeller([this](AlertKind kind, const QString &text) {
        if (kind == AlertKind::Error)
            terminal_.say(text);
    });
    exporter_.setResultTaker([this](const SaveRequest &made) { place(made); });
    exporter_.setChoices([this] {
        const QSize size = recorder_.recording.array_Images->front().size();
        return ExportChoices{.width = QString::number(size.width()),
                             .height = QString::number(size.height()),
                             .loops = {},
                             .preset = wanted_.preset};
    });
    connect(&surroundings_.progress, &ProgressSheet::valueChanged, this, [this](double percent) {
        if (making_)
            terminal_.progress(qtTrId("IDD_CLI_ENCODING").arg(std::lround(percent)));
    });
    connect(&recorder_, &Recorder::stateChanged, this, [this] {
        // For want of memory; what there is must be enough.
        if (recorder_.recording.m_RecordStatus() == RECORD_STATUS_PAUSE)
            QMetaObject::invokeMethod(this, &ScriptedRecording::finish, Qt::QueuedConnection);
    });
    connect(&recorder_, &Recorder::sourceChanged, this, &ScriptedRecording::followSource);
    connect(&recorder_, &Recorder::recordingReady, this, &ScriptedRecording::makeFile,
            Qt::QueuedConnection);
    connect(&display_, &QTimer::timeout, this, &ScriptedRecording::follow);
}

Status ScriptedRecording::run() {
    if (const auto obstacle = recorder_.source().obstacle()) {
        terminal_.say(obstacleText(obstacle));
        return Status::cannotRecord;
    }
    const bool asks = recorder_.source().capabilities().asksUser;
    if (asks && (wanted_.window || wanted_.monitor)) {
        terminal_.say(qtTrId("IDD_CLI_DESKTOP_CHOOSES"));
        return Status::cannotRecord;
    }
    ShellFields &shell = surroundings_.shell;
    shell.setS_Output_Folder(working_folders::recordingFolder(folder_.path()));
    shell.setS_Export_Folder(working_folders::exportFolder(folder_.path()));
    shell.setS_Pallete_Folder(working_folders::paletteFolder(folder_.path()));
    bool hasFolders = folder_.isValid();
    for (const QString &each :
         {shell.s_Output_Folder(), shell.s_Export_Folder(), shell.s_Pallete_Folder()})
        hasFolders = hasFolders && working_folders::ensureFolder(each);
    if (!hasFolders) {
        terminal_.say(qtTrId("IDD_CLI_NO_PLACE").arg(QDir::tempPath()));
        return Status::cannotRecord;
    }
    shell.setSffmpegPath(bundle::pathForTool(QStringLiteral("ffmpeg")));
    shell.setSimg2webpPath(bundle::pathForTool(QStringLiteral("img2webp")));
    surroundings_.texts.load();
    preview_.setRecorder(recorder_);
    recorder_.start();
    recorder_.recording.setU_FPS(wanted_.rate);
    connect(&recorder_, &Recorder::ticked, this, &ScriptedRecording::aimOnce);
    waited_.start();
    if (asks)
        recorder_.chooseMonitor();
    recorder_.restartCaptureTimer();
    display_.start(refreshing);
    while (!status_)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return *status_;
}

void ScriptedRecording::end(Status status) {
    // What is told first counts. A timer's own tick may be on the stack.
    if (!status_)
        status_ = status;
}

void ScriptedRecording::fail(Status status, const QString &text) {
    terminal_.say(text);
    end(status);
}

void ScriptedRecording::followSource() {
    const SourceState state = recorder_.source().state();
    if (state == SourceState::Waiting)
        answered_ = std::chrono::steady_clock::now();
    if (stopped_ || (state != SourceState::Ended && state != SourceState::Refused))
        return;
    const QString words = sourceStateText(recorder_.source());
    if (recorder_.recordingCounts().storedFrames == 0) {
        fail(Status::cannotRecord, words);
        return;
    }
    // The recorder has stopped; what there is must be enough.
    terminal_.say(words);
    stopped_ = true;
    clock_.stop();
    recorder_.stopRecordTimers();
}

void ScriptedRecording::aimOnce() {
    if (aimed_ || status_)
        return;
    const Image &halved = recorder_.capture.imgScreenCapture();
    const Image &whole = recorder_.capture.grabBeforeHalving();
    const QSize desktop = whole.isEmpty() ? halved.size() : whole.size();
    if (desktop.isEmpty()) {
        // Nobody is hurried who reads a dialog.
        if (recorder_.source().state() == SourceState::Asking)
            waited_.start();
        else if (waited_.hasExpired(patience))
            fail(Status::cannotRecord, qtTrId("IDD_CLI_NO_PICTURE"));
        return;
    }
    aimed_ = true;
    if (const std::optional<QString> reason = aim(desktop)) {
        fail(Status::cannotRecord, *reason);
        return;
    }
    beginIn(std::max(milliseconds(wanted_.delay), settling));
}

void ScriptedRecording::beginIn(std::chrono::milliseconds time) {
    connect(&clock_, &QTimer::timeout, this, &ScriptedRecording::begin, Qt::SingleShotConnection);
    clock_.start(time);
}

std::optional<QString> ScriptedRecording::aim(QSize desktop) {
    if (wanted_.region) {
        if (!QRect(QPoint(), desktop).contains(*wanted_.region))
            return qtTrId("IDD_CLI_REGION_OUTSIDE").arg(desktop.width()).arg(desktop.height());
        return aimAt(*wanted_.region, desktop);
    }
    if (wanted_.monitor) {
        const QList<QScreen *> screens = QGuiApplication::screens();
        if (*wanted_.monitor > screens.size())
            return qtTrId("IDD_CLI_NO_SCREEN").arg(*wanted_.monitor).arg(screens.size());
        return aimAt(pixelsOf(*screens[*wanted_.monitor - 1]), desktop);
    }
    if (!wanted_.window) {
        // Pixels are recorded as they are, also where the window records half as many.
        const bool isHalved = !recorder_.capture.grabBeforeHalving().isEmpty();
        return isHalved ? aimAt(QRect(QPoint(), desktop), desktop) : std::nullopt;
    }
    // Front to back; a title that is meant as a whole goes first.
    const TitledWindow *found = nullptr;
    const std::vector<TitledWindow> windows = recorder_.source().titledWindows();
    for (const TitledWindow &each : windows) {
        const bool isWhole = each.title.compare(*wanted_.window, Qt::CaseInsensitive) == 0;
        if (isWhole || (!found && each.title.contains(*wanted_.window, Qt::CaseInsensitive)))
            found = &each;
        if (isWhole)
            break;
    }
    return found ? aimAt(found->frame, desktop) : qtTrId("IDD_CLI_NO_WINDOW").arg(*wanted_.window);
}

std::optional<QString> ScriptedRecording::aimAt(const QRect &part, QSize desktop) {
    const QRect seen = part.intersected(QRect(QPoint(), desktop));
    if (seen.isEmpty())
        return qtTrId("IDD_CLI_REGION_OUTSIDE").arg(desktop.width()).arg(desktop.height());
    const double height = desktop.height();
    chooser_.region.setRect_Screen_Region(
        QRectF(seen.x(), coordinates::flipped(seen.y(), seen.height(), height), seen.width(),
               seen.height()));
    chooser_.region.setScreenOfRegion(coordinates::Screen{.height = height});
    chooser_.region.setI_Type_Screen_Capture(CAPTURE_REGION);
    return std::nullopt;
}

void ScriptedRecording::begin() {
    // The dialog fades away as a window of ours does.
    const auto newest = recorder_.source().newestPicture();
    if (newest && !isGoneFromPictures(*newest, answered_, std::chrono::steady_clock::now())) {
        beginIn(betweenLooks);
        return;
    }
    recorder_.OnRecordRecord();
    recorder_.restartCaptureTimer();
    // The tick is on the stack.
    connect(&recorder_, &Recorder::ticked, this, &ScriptedRecording::count, Qt::QueuedConnection);
    // The first frame shows what there is at the beginning.
    recorder_.TimerRefreshVideoRoutine();
    connect(&clock_, &QTimer::timeout, this, &ScriptedRecording::finish);
    clock_.start(milliseconds(wanted_.seconds));
}

void ScriptedRecording::follow() {
    if (recorder_.recording.m_RecordStatus() == RECORD_STATUS_RECORD) {
        const RecordingCounts counts = recorder_.recordingCounts();
        terminal_.progress(qtTrId("IDD_CLI_RECORDING")
                               .arg(tenths(counts.passedSeconds), tenths(wanted_.seconds),
                                    QLocale().toString(qulonglong{counts.storedFrames})));
    } else if (!aimed_) {
        terminal_.progress(sourceStateText(recorder_.source()));
    } else if (!making_ && clock_.isActive()) {
        const double left = static_cast<double>(clock_.remainingTime()) / 1000;
        terminal_.progress(qtTrId("IDD_CLI_STARTS").arg(tenths(left)));
    }
}

/// The tick that falls onto the end may come just before it or not at all: it is none of the
/// recording's.
void ScriptedRecording::count() {
    const auto due = std::lround(wanted_.seconds * static_cast<double>(wanted_.rate));
    if (std::cmp_greater_equal(recorder_.recordingCounts().storedFrames, due))
        recorder_.stopRecordTimers();
}

void ScriptedRecording::finish() {
    if (recorder_.recording.m_RecordStatus() == RECORD_STATUS_STOP)
        return;
    stopped_ = true;
    clock_.stop();
    recorder_.stopRecordTimers();
    recorder_.OnRecordStop();
    // The desktop shows no longer that the screen is shared.
    recorder_.closeSource();
}

void ScriptedRecording::makeFile() {
    if (fellBehind(recorder_.recordingCounts(), wanted_.rate))
        terminal_.say(qtTrId("IDD_RECORDING_BEHIND")
                          .arg(recorder_.recording.u_Record_Current_Frame())
                          .arg(wanted_.rate)
                          .arg(recorder_.recording.u_Record_Current_FPS()));
    editor_.updateTrimmedRange();
    if (exporter_.hasTooFewFrames()) {
        fail(Status::noFile, qtTrId("IDD_CLI_TOO_SHORT"));
        return;
    }
    making_ = true;
    if (wanted_.format == Format::WebP)
        exporter_.Generate_WebP();
    else if (wanted_.format == Format::MP4)
        exporter_.Generate_MP4();
    else
        exporter_.OnGIFExport();
    // With a file it has ended already; without one, the reason was told.
    end(exporter_.exporting.exportCancelled() ? Status::cancelled : Status::noFile);
}

QString ScriptedRecording::target(const SaveRequest &made) const {
    if (!wanted_.output.isEmpty())
        return QFileInfo(wanted_.output).absoluteFilePath();
    const QDir here = QDir::current();
    return here.filePath(
        presetName(made.made, QFileInfo(made.file).suffix(), [&here](const QString &name) {
            const QFileInfo found(here.filePath(name));
            return found.exists() || found.isSymLink();
        }));
}

void ScriptedRecording::place(const SaveRequest &made) {
    if (!made.note.isEmpty())
        terminal_.say(made.note);
    const QString path = target(made);
    const QFileInfo there(path);
    // Somebody may have made it since the beginning.
    const bool isTaken = !wanted_.force && (there.exists() || there.isSymLink());
    const std::optional<QString> failure =
        isTaken ? qtTrId("IDD_CLI_EXISTS").arg(path) : safeMove(made.file, path);
    if (failure) {
        // The recording cannot be made again: its file is left for the user to fetch.
        folder_.setAutoRemove(false);
        fail(Status::noFile, qtTrId("IDD_MOVE_FAILED").arg(path, *failure, made.file));
        return;
    }
    terminal_.progress({});
    std::puts(QFile::encodeName(path).constData());
    end(Status::done);
}

void ScriptedRecording::interrupt() {
    if (making_) {
        exporter_.cancelExport();
    } else if (recorder_.recording.m_RecordStatus() != RECORD_STATUS_STOP) {
        finish();
    } else if (!stopped_) {
        end(Status::cancelled);
    }
}
