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
#include <QResizeEvent>
#include <QStandardPaths>
#include <QTest>
#include <QUrl>

#include <algorithm>
#include <cstdlib>
#include <set>

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
    /// Whether the card shows that frame, as nearly as a video has it.
    bool isShowing(int frame) const {
        const QImage &picture = ui.viewFilePicture->picture();
        const QColor wanted = colourOf(frame);
        const QColor seen = picture.pixelColor(picture.rect().center());
        return picture.size() == QSize(64, 48) && std::abs(seen.red() - wanted.red()) < 8 &&
               std::abs(seen.green() - wanted.green()) < 8 &&
               std::abs(seen.blue() - wanted.blue()) < 8;
    }
    QStringList names() const { return QDir(saved).entryList(QDir::Files); }
    void emptyExportFolder() { working_folders::removeContent(controller.shell.s_Export_Folder()); }

    const QString saved = place("saved #1 %41");
};

/// All widths that a widget had.
class Widths : public QObject {
public:
    explicit Widths(QWidget &of) : seen{of.width()} { of.installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Resize)
            seen.insert(static_cast<QResizeEvent *>(event)->size().width());
        return false;
    }
    std::set<int> seen;
};

TEST_F(FileCardTest, isMadeSavedAndCopiedInOneGo) {
    ui.menuitemGenerateAndCopy->trigger();
    ASSERT_TRUE(finish());
    ASSERT_EQ(names().size(), 1);
    EXPECT_EQ(QGuiApplication::clipboard()->mimeData()->urls(),
              QList<QUrl>{QUrl::fromLocalFile(QDir(saved).filePath(names().first()))});
}

TEST_F(FileCardTest, keepsItsWidthWhateverItShows) {
    window()->show();
    ui.tabBar->setCurrentIndex(2);
    settle();
    const Widths widths(*ui.gifCard);
    for (const char *name : {"/one.gif", "", "/two.gif"}) {
        answers.savePath = *name ? saved + QLatin1String(name) : QString();
        generate();
        settle();
        EXPECT_EQ(ui.btnFileSave->isVisible(), !*name);
        EXPECT_EQ(ui.btnFileCopy->isVisible(), *name != 0);
    }
    EXPECT_EQ(widths.seen.size(), 1u);
}

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
    for (const char *format : {"x-special/gnome-copied-files", "x-special/mate-copied-files"})
        EXPECT_EQ(copied->data(QLatin1String(format)),
                  "copy\n" + copied->urls().first().toEncoded());
    EXPECT_EQ(copied->text().toUtf8(), copied->urls().first().toEncoded());
    EXPECT_EQ(copied->data(QStringLiteral("image/gif")), contentOf(answers.savePath));
    EXPECT_EQ(qvariant_cast<QImage>(copied->imageData()).size(), QSize(64, 48));

    for (const auto &[button, name] :
         {std::pair(ui.btnWebPGenerate, "a.webp"), {ui.btnMP4Generate, "a.mp4"}}) {
        answers.savePath = place(name);
        button->click();
        ASSERT_TRUE(finish());
        EXPECT_EQ(ui.labelFileName->text(), QString::fromLatin1(name));
        EXPECT_TRUE(ui.labelFileFigures->text().contains(QStringLiteral("64 × 48 · 0.3")));
        // What is seen is decoded from it.
        EXPECT_TRUE(QTest::qWaitFor([this] { return isShowing(0); })) << name;
        EXPECT_TRUE(button == ui.btnMP4Generate ||
                    QTest::qWaitFor([this] { return isShowing(2); }));
    }
}

TEST_F(FileCardTest, isNoLongerGivenAwayWhenItIsDeletedOrReplaced) {
    ui.menuitemSaveWithoutAsking->trigger();
    generate();
    const QString path = saved + u'/' + names().value(0);
    const QPushButton *const buttons[] = {ui.btnFileCopy, ui.btnFileOpen, ui.btnFileShow};
    const auto says = [&](const QString &text, bool usable) {
        return QTest::qWaitFor([&] { return ui.labelFileDrag->text() == text; }) &&
               std::ranges::all_of(buttons,
                                   [usable](auto *each) { return each->isEnabled() == usable; }) &&
               ui.btnFileCopy->isDefault() == usable && ui.btnGIFExport->isDefault() != usable;
    };
    EXPECT_TRUE(says(qtTrId("IDD_FILE_DRAG"), true));
    ASSERT_TRUE(QFile::rename(path, path + QStringLiteral(".bak")));
    EXPECT_TRUE(says(qtTrId("IDD_FILE_GONE"), false));
    EXPECT_EQ(ui.labelStatus->text(), QString()) << "it no longer says where the file is";
    ASSERT_TRUE(QFile::rename(path + QStringLiteral(".bak"), path));
    EXPECT_TRUE(says(qtTrId("IDD_FILE_DRAG"), true)) << "it came back";
    QFile::remove(path);
    put(path, contentOf(frameFile(0)));
    ui.btnFileCopy->click(); // sooner than the watch
    EXPECT_EQ(ui.labelStatus->text(), qtTrId("IDD_FILE_REPLACED"));
    EXPECT_TRUE(says(qtTrId("IDD_FILE_REPLACED"), false));
    EXPECT_FALSE(controller.fileCard->isPlaying());
    generate();
    EXPECT_TRUE(says(qtTrId("IDD_FILE_DRAG"), true));
}

TEST_F(FileCardTest, playsWhileItIsSeenAndTheDesktopLetsThingsMove) {
    ui.menuitemSaveWithoutAsking->trigger();
    generate();
    const auto plays = [this](bool expected) {
        return QTest::qWaitFor(
            [&] { return controller.fileCard->isPlaying() == expected && isShowing(0); });
    };
    EXPECT_TRUE(plays(true));
    controller.OnMenuTabRecord();
    EXPECT_FALSE(controller.fileCard->isPlaying());
    controller.OnMenuTabGIF();
    EXPECT_TRUE(plays(true));
    window()->showMinimized();
    EXPECT_FALSE(controller.fileCard->isPlaying());
    window()->showNormal();
    EXPECT_TRUE(plays(true));

    const auto *button = ui.viewFilePicture->findChild<QAbstractButton *>();
    EXPECT_FALSE(button->isVisible());
    controller.OnMenuTabRecord();
    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    const QString settings =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    QDir().mkpath(settings);
    put(settings + QStringLiteral("/kdeglobals"), "[KDE]\nAnimationDurationFactor=0\n");
    controller.OnMenuTabGIF();
    EXPECT_TRUE(QTest::qWaitFor([&] { return button->isVisible(); }));
    EXPECT_TRUE(plays(false));
    EXPECT_EQ(button->accessibleName(), qtTrId("IDD_PLAY"));
    ui.viewFilePicture->findChild<QAbstractButton *>()->click();
    EXPECT_TRUE(plays(true));
    EXPECT_EQ(button->accessibleName(), qtTrId("IDD_PAUSE"));
    qunsetenv("XDG_CURRENT_DESKTOP");
    QFile::remove(settings + QStringLiteral("/kdeglobals"));
}

TEST_F(FileCardTest, getsTheEndingOfItsFormat) {
    answers.savePath = saved + QStringLiteral("/demo.txt");
    generate();
    answers.savePath = saved + QStringLiteral("/version 1.2");
    generate();
    EXPECT_EQ(names(),
              QStringList({QStringLiteral("demo.gif"), QStringLiteral("version 1.2.gif")}));
    EXPECT_EQ(answers.panels.size(), 2);
    // The panel has not asked whether this one may be replaced.
    answers.savePath = saved + QStringLiteral("/demo.txt");
    const QByteArray before = contentOf(saved + QStringLiteral("/demo.gif"));
    answers.savePathAfter = QString();
    generate();
    EXPECT_EQ(answers.panels.size(), 4);
    EXPECT_TRUE(answers.panels.last().endsWith(QStringLiteral("|demo.gif")));
    EXPECT_EQ(contentOf(saved + QStringLiteral("/demo.gif")), before);
}

TEST_F(FileCardTest, givesAwayAFileThatStaysWhereNoneWasSaved) {
    generate(); // the panel is cancelled
    EXPECT_TRUE(ui.btnFileSave->isVisible() && !ui.btnFileCopy->isVisible());
    EXPECT_TRUE(ui.btnFileSave->isDefault());
    EXPECT_EQ(ui.labelFileName->text(), qtTrId("IDD_FILE_UNSAVED"));
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
