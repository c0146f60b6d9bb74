// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/controller/export_fixture.h"

#include "shell/settings.h"

#include <QDir>
#include <QImageReader>
#include <QStandardPaths>
#include <QTest>

namespace {

/// A GIF of three frames whose save panel has been cancelled.
class UnsavedResult : public ExportTest {
protected:
    void exportAndCancel() {
        record(3);
        ui.btnGIFExport->click();
        ASSERT_TRUE(controller.exporter.hasUnsavedResult());
        ASSERT_TRUE(finish());
        before = contentOf(gif);
    }
    /// Whether this begins only after a question, which is answered like that.
    bool asks(QMessageBox::ButtonRole choice, const std::function<void()> &begin) {
        const int asked = answers.questions;
        answers.choice = choice;
        begin();
        EXPECT_TRUE(controller.surroundings.alerts.isAsking());
        begin(); // no second question above the first
        EXPECT_TRUE(QTest::qWaitFor([this] { return !controller.surroundings.alerts.isAsking(); }));
        settle();
        EXPECT_TRUE(finish());
        return answers.questions == asked + 1;
    }

    const QString gif = exportFile("output.gif");
    QByteArray before;
};

TEST_F(UnsavedResult, StaysAfterACancelledPanelAndCanBeSavedLater) {
    exportAndCancel();
    EXPECT_EQ(ui.labelStatus->text(), qtTrId("IDD_STATUS_UNSAVED").arg(QStringLiteral("GIF")));
    EXPECT_TRUE(ui.btnFileSave->isVisible());
    EXPECT_FALSE(ui.btnSaveResult->isVisible()) << "it is on the card";
    ui.btnFileSave->click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return answers.panels.size() == 2; }));
    ASSERT_TRUE(finish());
    EXPECT_EQ(contentOf(gif), before) << "cancelled once more";
    EXPECT_EQ(answers.panels[0], answers.panels[1]) << "named after the time it was made";
    controller.OnMenuTabRecord();
    EXPECT_TRUE(ui.btnSaveResult->isVisible());

    answers.savePath = place("late.gif");
    ui.btnSaveResult->click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return answers.alerts.size() == 1; }));
    ASSERT_TRUE(finish());
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Success"));
    EXPECT_EQ(contentOf(answers.savePath), before);
    EXPECT_FALSE(ui.btnSaveResult->isVisible());
    EXPECT_FALSE(controller.exporter.hasUnsavedResult());
    controller.OnRecordRecord(nullptr);
    EXPECT_EQ(controller.recording.m_RecordStatus(), RECORD_STATUS_RECORD) << "nothing to ask";
}

TEST_F(UnsavedResult, IsAskedAboutBeforeANewRecordingANewExportAndTheEnd) {
    exportAndCancel();
    const std::function<void()> ways[] = {
        [this] { controller.OnRecordRecord(nullptr); },
        [this] { controller.OnGIFExport(nullptr); },
        [this] { controller.Generate_WebP(nullptr); },
        [this] { controller.windowWillClose(); },
        [this] { controller.OnMenuQuit(); },
    };
    for (const auto &way : ways) {
        EXPECT_TRUE(asks(QMessageBox::RejectRole, way));
        EXPECT_EQ(contentOf(gif), before);
        EXPECT_TRUE(QFile::exists(frameFile(0)));
        EXPECT_EQ(controller.recording.m_RecordStatus(), RECORD_STATUS_STOP);
    }
    EXPECT_TRUE(asks(QMessageBox::AcceptRole, ways[0])) << "and the panel is cancelled again";
    EXPECT_EQ(contentOf(gif), before);
    EXPECT_EQ(controller.recording.m_RecordStatus(), RECORD_STATUS_STOP);

    answers.savePath = place("first.gif");
    EXPECT_TRUE(asks(QMessageBox::AcceptRole, ways[0]));
    EXPECT_EQ(contentOf(answers.savePath), before);
    EXPECT_EQ(controller.recording.m_RecordStatus(), RECORD_STATUS_RECORD) << "it goes on";
}

TEST_F(UnsavedResult, IsGoneOnceItIsDiscarded) {
    exportAndCancel();
    EXPECT_TRUE(asks(QMessageBox::DestructiveRole, [this] { controller.OnRecordRecord(nullptr); }));
    EXPECT_FALSE(QFile::exists(gif));
    EXPECT_FALSE(ui.btnSaveResult->isVisible());
    EXPECT_EQ(controller.recording.m_RecordStatus(), RECORD_STATUS_RECORD);
}

TEST_F(UnsavedResult, IsOfferedInTheFolderUsedLastOrElseAmongPictures) {
    const QString used = place("used last");
    ASSERT_TRUE(QDir().mkpath(used));
    exportAndCancel();
    answers.savePath = place("used last/a.gif");
    ui.btnSaveResult->click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !answers.alerts.empty(); }));
    ASSERT_TRUE(finish());
    ASSERT_TRUE(QFile::exists(answers.savePath));

    answers.savePath.clear();
    ui.btnGIFExport->click();
    ASSERT_TRUE(finish());
    EXPECT_EQ(answers.folder, used);
    ASSERT_TRUE(QDir(used).removeRecursively());
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    QDir().mkpath(pictures);
    for (const QString &expected : {pictures, QDir::homePath()}) {
        ui.btnSaveResult->click();
        const qsizetype panels = answers.panels.size();
        ASSERT_TRUE(QTest::qWaitFor([&] { return answers.panels.size() > panels; }));
        ASSERT_TRUE(finish());
        EXPECT_EQ(answers.folder, expected);
        QDir(pictures).removeRecursively();
    }
}

} // namespace
