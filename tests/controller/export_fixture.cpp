// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/controller/export_fixture.h"

#include "shell/tab_view.h"
#include "shell/window_progress.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include <utility>

namespace {

constexpr int frameWidth = 64;
constexpr int frameHeight = 48;
constexpr int recordedRate = 10; // frames per second

} // namespace

Answerer::Answerer() {
    connect(&timer_, &QTimer::timeout, this, &Answerer::answer);
    timer_.start(5);
}

void Answerer::answer() {
    QWidget *modal = QApplication::activeModalWidget();
    if (auto *alert = qobject_cast<QMessageBox *>(modal)) {
        // A save panel asks by a box of its own whether a file may be replaced.
        if (alert->objectName() == QLatin1String("question")) {
            ++questions;
            for (QAbstractButton *button : alert->buttons())
                if (alert->buttonRole(button) == choice)
                    return button->click();
        }
        if (alert->objectName() == QLatin1String("alert"))
            alerts.push_back({alert->text(), alert->informativeText()});
        QAbstractButton *yes = alert->button(QMessageBox::Yes);
        (yes ? yes : alert->buttons().first())->click();
    } else if (auto *panel = qobject_cast<QFileDialog *>(modal); panel && panel != answered_) {
        answered_ = panel;
        const QString name = QFileInfo(panel->selectedFiles().value(0)).fileName();
        panels += panel->windowTitle() + u'|' + name;
        folder = panel->directory().path();
        if (!savePath.isEmpty())
            // `selectFile` changes nothing while this field has the focus.
            panel->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(savePath);
        // Later: the panel may ask about an existing file, and this timer must tick for that.
        QMetaObject::invokeMethod(panel, savePath.isEmpty() ? "reject" : "accept",
                                  Qt::QueuedConnection);
        if (savePathAfter)
            savePath = *std::exchange(savePathAfter, std::nullopt);
    }
}

Canceller::Canceller(const AppDelegate &controller,
                     std::function<bool(const Window_Progress &sheet)> isTheMoment, bool byKey) {
    connect(&timer_, &QTimer::timeout, this,
            [this, &controller, isTheMoment = std::move(isTheMoment), byKey] {
                Window_Progress *sheet = controller.windowProgress();
                if (since.isValid() || !sheet || !isTheMoment(*sheet))
                    return;
                since.start();
                if (byKey)
                    QTest::keyClick(sheet, Qt::Key_Escape);
                else
                    sheet->findChild<QPushButton *>(QStringLiteral("btnCancel"))->click();
            });
    timer_.start(5);
}

ExportTest::ExportTest()
    // What the encoders take for a number (a second one would make them take none) or a pattern,
    // what a shell and a settings file read, a line's end, and letters beyond ASCII.
    : ControllerFixture(
          std::nullopt,
          QStringLiteral("100% %1 a %3d of %%d [*?]/'quotes' \"both\" $HOME `x` \\ ;#&|/"
                         "a\nnew line/-<b>ünï 日本</b>")) {
    choose(GifPreset::Classic);
}

void ExportTest::choose(GifPreset preset) {
    const int index = ui.comboGIFQuality->findData(QString::fromLatin1(presetWord(preset)));
    ASSERT_GE(index, 0);
    ui.comboGIFQuality->setCurrentIndex(index);
}

void ExportTest::chooseSize(const QString &width, const QString &height) {
    ui.radioGIFCustomDimension->click();
    ui.checkGIFKeepAspectRatio->setChecked(false);
    ui.textGIFWidth->setText(width);
    ui.textGIFHeigth->setText(height);
}

frame_timing::Request ExportTest::chooseTimes(int frames, double recorded, int rate, double speed) {
    controller.recording.setExactRate(recorded);
    (rate > 0 ? ui.radioGIFCustomFPS : ui.radioGIFOriginalFPS)->click();
    ui.comboGIFFPS->setCurrentIndex(std::max(rate, 1) - 1);
    ui.comboGIFSpeed->setCurrentIndex(ui.comboGIFSpeed->findData(speed));
    return {.kept = FrameRuns::of(0, static_cast<std::uint64_t>(frames)),
            .recordedRate = recorded,
            .chosenRate = rate > 0 ? std::optional<double>(rate) : std::nullopt,
            .speed = speed};
}

qint64 ExportTest::makeUnder(QPushButton *button, const QString &limit, const char *name) {
    ui.comboFitUnder->setEditText(limit);
    answers.savePath = place(name);
    answers.alerts.clear();
    QFile::remove(answers.savePath);
    button->click();
    EXPECT_TRUE(finish());
    QTest::qWait(50); // what an answer leads to begins when its question has gone
    EXPECT_TRUE(finish());
    return QFileInfo(answers.savePath).size();
}

QColor ExportTest::colourOf(int frame) { return QColor::fromHsv((frame * 67) % 360, 200, 220); }

void ExportTest::record(int count) {
    QImage picture(frameWidth, frameHeight, QImage::Format_RGB32);
    for (int frame = 0; frame < count; ++frame) {
        picture.fill(colourOf(frame));
        ASSERT_TRUE(picture.save(frameFile(frame)));
    }
    controller.capture.setImgScreenCapture(Image::fromQImage(picture));
    controller.recording.setU_Record_Current_FPS(recordedRate);
    controller.recording.setU_Record_Current_Frame(static_cast<std::uint64_t>(count));
    controller.shell.tabviewMain()->selectTabViewItemAtIndex(2);
    // Set last: with no frame in memory the Cut tab would work out an empty range.
    controller.trim.setUFirstFrame(0);
    controller.trim.setULastFrame(static_cast<std::uint64_t>(count - 1));
}

std::vector<QImage> ExportTest::noise(int count, QSize size) {
    std::vector<QImage> pictures;
    std::uint32_t seed = 1;
    for (int frame = 0; frame < count; ++frame) {
        QImage picture(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                picture.setPixel(x, y, (seed = seed * 1664525 + 1013904223) >> 8);
        pictures.push_back(picture);
    }
    return pictures;
}

bool ExportTest::finish() {
    return QTest::qWaitFor(
        [this] {
            return !controller.surroundings.alerts.isAsking() &&
                   !controller.exporting.exportRuns() && !controller.windowProgress();
        },
        30'000);
}

QString ExportTest::standIn(const QByteArray &script) {
    const QString path = folder.filePath(QStringLiteral("tool %1").arg(++standIns_));
    put(path, "#!/bin/bash\nlast=\"${@: -1}\"\n" + script + '\n');
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

QByteArray ExportTest::run(const char *command, const QStringList &more) {
    QStringList words = QString::fromLatin1(command).split(u' ');
    const QString program = words.takeFirst();
    QProcess process;
    process.start(program, words + more);
    process.waitForFinished(-1);
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}
