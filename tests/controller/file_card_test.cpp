// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/file_card.h"
#include "shell/settings.h"
#include "tests/controller/export_fixture.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QMimeData>
#include <QUrl>

namespace {

/// The card of the GIF tab after a file has been made.
class FileCardTest : public ExportTest {
protected:
    FileCardTest() {
        QDir().mkpath(saved);
        settings::writeLastSaveFolder(saved);
        settings::writeSaveWithoutAsking(false);
        record(3);
    }
    ~FileCardTest() override { settings::writeSaveWithoutAsking(false); }

    void generate() {
        ui.btnGIFExport->click();
        ASSERT_TRUE(finish());
    }
    QStringList names() const { return QDir(saved).entryList(QDir::Files); }
    void emptyExportFolder() { working_folders::removeContent(controller.shell.s_Export_Folder()); }

    const QString saved = place("saved #1 %41");
};

TEST_F(FileCardTest, isTheFileThatOtherProgramsTakeFromTheClipboard) {
    answers.savePath = saved + QStringLiteral("/a film.gif");
    generate();
    EXPECT_EQ(ui.cardStack->currentWidget(), ui.cardFile);
    EXPECT_EQ(ui.labelFileName->text(), QStringLiteral("a film.gif"));
    EXPECT_TRUE(ui.labelFileFigures->text().contains(QStringLiteral("64 × 48 · 0.3")));
    ui.btnFileCopy->click();
    emptyExportFolder();
    const QMimeData *copied = QGuiApplication::clipboard()->mimeData();
    ASSERT_EQ(copied->urls(), QList<QUrl>{QUrl::fromLocalFile(answers.savePath)});
    EXPECT_EQ(copied->data(QStringLiteral("x-special/gnome-copied-files")),
              "copy\n" + copied->urls().first().toEncoded());
    EXPECT_EQ(copied->data(QStringLiteral("image/gif")), contentOf(answers.savePath));
    EXPECT_EQ(qvariant_cast<QImage>(copied->imageData()).size(), QSize(64, 48));

    for (const auto &[button, name] :
         {std::pair(ui.btnWebPGenerate, "a.webp"), {ui.btnMP4Generate, "a.mp4"}}) {
        answers.savePath = place(name);
        button->click();
        ASSERT_TRUE(finish());
        EXPECT_EQ(ui.labelFileName->text(), QString::fromLatin1(name));
        EXPECT_TRUE(ui.labelFileFigures->text().contains(QStringLiteral("64 × 48 · 0.3")));
    }

    QFile::remove(answers.savePath);
    ui.btnFileCopy->click();
    EXPECT_EQ(ui.cardStack->currentWidget(), ui.cardEstimate);
    EXPECT_EQ(ui.labelStatus->text(), qtTrId("IDD_FILE_GONE"));
}

TEST_F(FileCardTest, givesAwayAFileThatStaysWhereNoneWasSaved) {
    generate(); // the panel is cancelled
    EXPECT_TRUE(ui.btnFileSave->isVisible() && !ui.btnFileCopy->isVisible());
    ui.menuitemFileCopy->trigger();
    emptyExportFolder();
    const QList<QUrl> copied = QGuiApplication::clipboard()->mimeData()->urls();
    ASSERT_EQ(copied.size(), 1);
    EXPECT_EQ(QFileInfo(copied[0].toLocalFile()).dir(), QDir(saved));
    EXPECT_EQ(QImageReader(copied[0].toLocalFile()).imageCount(), 3);
    EXPECT_TRUE(ui.btnFileCopy->isVisible() && !ui.btnFileSave->isVisible());
    EXPECT_FALSE(controller.exporter.hasUnsavedResult());
}

TEST_F(FileCardTest, isSavedWithoutAQuestionUnderANameThatNothingHas) {
    ui.menuitemSaveWithoutAsking->trigger();
    for (int made = 1; made <= 3; ++made) {
        generate();
        EXPECT_EQ(names().size(), made);
        EXPECT_EQ(ui.cardStack->currentWidget(), ui.cardFile);
    }
    EXPECT_TRUE(answers.panels.isEmpty() && answers.alerts.empty());

    // A folder that takes no file costs none.
    QFile::setPermissions(saved, QFile::ReadOwner | QFile::ExeOwner);
    const bool mayWriteAnywhere = QFileInfo(saved).isWritable();
    generate();
    QFile::setPermissions(saved, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (!mayWriteAnywhere) {
        ASSERT_EQ(answers.alerts.size(), 1u);
        EXPECT_TRUE(ui.btnFileSave->isVisible());
        EXPECT_TRUE(controller.exporter.hasUnsavedResult());
    }
}

TEST_F(FileCardTest, givesWayToTheEstimateWhenAnOptionChangesAndCanBeHadAgain) {
    ui.menuitemSaveWithoutAsking->trigger();
    generate();
    EXPECT_FALSE(ui.btnLastFile->isVisible());
    ui.btnGIFSize50->click();
    EXPECT_EQ(ui.cardStack->currentWidget(), ui.cardEstimate);
    EXPECT_FALSE(ui.menuitemFileCopy->isEnabled());
    EXPECT_TRUE(ui.btnLastFile->isVisible());
    controller.OnMenuTabRecord();
    ui.btnLastFile->click();
    EXPECT_EQ(ui.tabStack->currentWidget(), ui.pageGIF);
    EXPECT_EQ(ui.cardStack->currentWidget(), ui.cardFile);
    EXPECT_EQ(ui.labelFileName->text(), names().value(0));
    EXPECT_FALSE(ui.btnLastFile->isVisible());
}

} // namespace
