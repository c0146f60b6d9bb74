// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/exporter.h"
#include "platform/window_server_source.h"
#include "record/recorder.h"
#include "region/region_chooser.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"
#include "tests/support/fake_window_server.h"
#include "trim/trim_editor.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// All desks at work without a main window.
class Desks : public testing::Test {
protected:
    Desks() {
        auto fake = std::make_unique<FakeWindowServer>();
        server = fake.get();
        server->picture = plainImage({64, 48}, qRgb(10, 20, 30));
        recorder = std::make_unique<Recorder>(
            surroundings, chooser, std::make_unique<WindowServerSource>(std::move(fake)));
        editor = std::make_unique<TrimEditor>(surroundings, *recorder);
        exporter = std::make_unique<Exporter>(surroundings, *recorder, *editor);
        surroundings.shell.setS_Output_Folder(folder.path());
        recorder->start();
        // What the preview does in the window.
        QObject::connect(recorder.get(), &Recorder::ticked, recorder.get(), [this] {
            recorder->capture.setImageScreenCaptureFinal(recorder->capture.imgScreenCapture());
            recorder->storeFrame();
        });
    }

    /// Records these frames, each of another colour, and waits until they are saved.
    void record(int frames) {
        QSignalSpy ready(recorder.get(), &Recorder::recordingReady);
        recorder->OnRecordRecord();
        for (int i = 0; i < frames; ++i) {
            server->picture = plainImage({64, 48}, qRgb(i, i, i));
            recorder->TimerRefreshVideoRoutine();
        }
        recorder->OnRecordStop();
        EXPECT_TRUE(ready.count() > 0 || ready.wait());
    }

    QString frameFile(std::uint64_t number) const {
        return working_folders::frameFile(folder.path(), number);
    }

    QTemporaryDir folder;
    Surroundings surroundings;
    RegionChooser chooser{surroundings};
    FakeWindowServer *server = nullptr;
    std::unique_ptr<Recorder> recorder;
    std::unique_ptr<TrimEditor> editor;
    std::unique_ptr<Exporter> exporter;
};

TEST_F(Desks, recordTrimAndDescribeAnExport) {
    bool mayBegin = false;
    recorder->setGate([&mayBegin](const std::function<void()> &) { return !mayBegin; });
    recorder->OnRecordRecord();
    EXPECT_EQ(recorder->recording.m_RecordStatus(), RECORD_STATUS_STOP) << "asked first";
    mayBegin = true;
    record(4);
    EXPECT_TRUE(QFile::exists(frameFile(3)));
    EXPECT_FALSE(editor->mayPlay()) << "the tab has not been entered";
    editor->enter();
    EXPECT_TRUE(editor->mayPlay());
    EXPECT_FALSE(editor->mayPause() || editor->mayStop());
    EXPECT_EQ(exporter->timingRequest({}).kept, FrameRuns::of(0, 4));
    EXPECT_EQ(exporter->originalSize(), QSize(64, 48));
    ExportChoices choices;
    choices.width = choices.height = QStringLiteral("64");
    EXPECT_FALSE(exporter->refusal(choices));
    choices.height = QStringLiteral("x");
    EXPECT_TRUE(exporter->refusal(choices));

    editor->OnCutPlay();
    EXPECT_TRUE(editor->mayPause() && editor->mayStop());
    editor->OnCutStop();
    editor->trim.setF_Cut_Percent_Maior(50.0f);
    editor->updateTrimmedRange();
    recorder->OnRecordRecord();
    EXPECT_EQ(editor->trim.f_Cut_Percent_Maior(), 100.0f) << "a new recording is kept whole";
}

TEST_F(Desks, sayAgainOnlyWhatHasChanged) {
    QSignalSpy modes(recorder.get(), &Recorder::captureModeChanged);
    recorder->TimerRefreshVideoRoutine();
    for (int tick = 0; tick < 3; ++tick)
        recorder->updateCaptureMode();
    EXPECT_EQ(modes.count(), 0);
    chooser.region.setRect_Screen_Region({1, 2, 20, 10});
    chooser.region.setScreenOfRegion(coordinates::Screen{.height = 48});
    chooser.region.setI_Type_Screen_Capture(CAPTURE_REGION);
    for (int tick = 0; tick < 3; ++tick)
        recorder->updateCaptureMode();
    EXPECT_EQ(modes.count(), 1);
    EXPECT_EQ(recorder->captureMode().area, QRect(1, 36, 20, 10));
    // The place follows what it depends on, also when only that has changed.
    chooser.region.setRect_Screen_Region({1, 3, 20, 10});
    EXPECT_EQ(chooser.place().inGrab, QRect(1, 35, 20, 10));

    QSignalSpy texts(editor.get(), &TrimEditor::rangeTextChanged);
    record(3);
    editor->enter();
    for (int drawing = 0; drawing < 3; ++drawing)
        editor->showTrimmedRange(true);
    EXPECT_EQ(texts.count(), 1);
    editor->showTrimmedRange(false);
    EXPECT_EQ(texts.count(), 2);
    EXPECT_TRUE(texts.last().first().toString().isEmpty());
}

} // namespace
