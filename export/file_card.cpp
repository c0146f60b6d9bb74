// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/file_card.h"

#include "export/exporter.h"
#include "export/file_mime_data.h"
#include "export/file_picture.h"
#include "export/finished_file.h"
#include "export/first_picture.h"
#include "export/save_request.h"
#include "platform/desktop_services.h"
#include "shell/elided_label.h"
#include "shell/line_breaks.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"

#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QDrag>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTextDocument>
#include <QUrl>

namespace {

enum Page { Estimate, File };

constexpr int draggedSide = 128; // points, of the picture beneath the pointer

QString figuresOf(const FinishedFile &file, std::int64_t bytes) {
    return qtTrId("IDD_FILE_FIGURES")
        .arg(number_text::bytes(static_cast<std::uint64_t>(bytes)),
             QString::number(file.pixels.width()), QString::number(file.pixels.height()),
             number_text::decimal(file.seconds));
}

} // namespace

FileCard::FileCard(const FileCardControls &controls, Exporter &exporter, QObject *parent)
    : QObject(parent), ui_(controls), exporter_(exporter), playback_(this), animations_(this) {
    ui_.labelFileName->setElideMode(Qt::ElideMiddle); // the ending says what it is
    QFont bold = ui_.labelFileName->font();
    bold.setBold(true);
    ui_.labelFileName->setFont(bold);
    connect(&exporter_, &Exporter::fileMade, this, [this] {
        showFile();
        // The next step; Return takes it.
        (isUnsaved() ? ui_.btnFileSave : ui_.btnFileCopy)->setFocus();
    });
    connect(&exporter_, &Exporter::fileLeft, this, &FileCard::showFile);
    connect(&exporter_, &Exporter::fileMoved, this, &FileCard::update);
    for (const auto signal :
         {&QFileSystemWatcher::fileChanged, &QFileSystemWatcher::directoryChanged})
        connect(&watcher_, signal, this, [this] {
            if (!showsFile_ || condition() == condition_)
                return;
            update();
            // The status line may still say where it is.
            if (condition_ == Condition::Gone && ui_.viewFilePicture->isSeen())
                exporter_.surroundings().showStatus({});
        });
    connect(ui_.viewFilePicture, &FilePicture::dragBegan, this, &FileCard::drag);
    connect(ui_.viewFilePicture, &FilePicture::seenChanged, this, &FileCard::updatePlaying);
    connect(ui_.viewFilePicture, &FilePicture::offerTaken, this, &FileCard::takeOffer);
    connect(ui_.viewFilePicture, &FilePicture::windowActivated, this, [this] {
        if (!played_.isEmpty())
            animations_.ask();
    });
    connect(&playback_, &FilePlayback::shown, this, [this](const QImage &picture) {
        ui_.viewFilePicture->setPicture(picture);
        playback_.setLargest(ui_.viewFilePicture->pixels());
    });
    connect(&playback_, &FilePlayback::ended, this, &FileCard::showOffer);
    connect(&playback_, &FilePlayback::unreadable, this, [this] {
        // The toolkit may lack what reads the file.
        ui_.viewFilePicture->setPicture(firstPicture(exporter_.firstKeptFile()));
        showOffer();
    });
    connect(&animations_, &DesktopAnimations::answered, this, [this](bool on) {
        if (played_.isEmpty() || mayMove_ == on)
            return;
        mayMove_ = on;
        if (on)
            playback_.play();
        else
            playback_.pause();
        showOffer();
    });
    showOffer();
    update();
}

bool FileCard::hasFile() const { return exporter_.lastFile() != nullptr; }

void FileCard::showFile() {
    showsFile_ = exporter_.exporting.finished.has_value();
    update();
}

void FileCard::compare(const ExportChoices &choices) {
    const std::optional<FinishedFile> &file = exporter_.exporting.finished;
    // One that an earlier start has left is the next thing to decide about.
    const bool isLeft = file && file->isFromEarlierStart && isUnsaved();
    const bool same = isLeft || (file && file->choices == choices &&
                                 file->timing == exporter_.timingRequest(choices));
    showsFile_ = showsFile_ && same;
    update();
}

void FileCard::watch() {
    const std::optional<FinishedFile> &file = exporter_.exporting.finished;
    if (file && file->path == watched_ && file->made == made_)
        return;
    if (!watched_.isEmpty() && !(watcher_.files() + watcher_.directories()).isEmpty())
        watcher_.removePaths(watcher_.files() + watcher_.directories());
    watched_ = file ? file->path : QString();
    made_ = file ? file->made : QDateTime();
    identity_ = file ? identityOf(watched_) : std::nullopt;
    // The folder tells of a file that comes back, and of one that goes with it.
    if (identity_)
        watcher_.addPaths({watched_, QFileInfo(watched_).absolutePath()});
}

FileCard::Condition FileCard::condition() const {
    const std::optional<FileIdentity> now = identityOf(watched_);
    if (!now)
        return Condition::Gone;
    return now == identity_ ? Condition::Sound : Condition::Replaced;
}

bool FileCard::isUnsaved() const {
    const ExportFields &fields = exporter_.exporting;
    return fields.unsaved && fields.finished && fields.unsaved->file == fields.finished->path;
}

void FileCard::update() {
    watch();
    showsFile_ = showsFile_ && exporter_.exporting.finished;
    if (showsFile_)
        updateFile();
    ui_.cardStack->setCurrentIndex(showsFile_ ? File : Estimate);
    ui_.fileButtons->setVisible(showsFile_);
    updatePlaying();
    if (!showsFile_)
        showFirstKeptPicture();
    ui_.viewFilePicture->setDraggable(isSound());
    ui_.viewFilePicture->setToolTip(isSound() ? qtTrId("IDD_FILE_DRAG") : QString());
    chooseDefault();
    Q_EMIT changed();
}

void FileCard::updateFile() {
    const FinishedFile &file = *exporter_.exporting.finished;
    condition_ = condition();
    pictured_.clear();
    // What goes goes first: beside each other they would make the card wider for a moment.
    (isUnsaved() ? ui_.btnFileCopy : ui_.btnFileSave)->hide();
    (isUnsaved() ? ui_.btnFileSave : ui_.btnFileCopy)->show();
    ui_.labelFileName->setText(isUnsaved() ? qtTrId("IDD_FILE_UNSAVED")
                                           : QFileInfo(file.path).fileName());
    ui_.labelFileName->setToolTip(isUnsaved() ? QString() : Qt::convertFromPlainText(file.path));
    ui_.labelFileFigures->setText(figuresOf(file, identity_ ? identity_->bytes : 0));
    QString note = file.note.isEmpty() ? qtTrId("IDD_FILE_DRAG") : file.note;
    if (condition_ != Condition::Sound)
        note =
            condition_ == Condition::Gone ? qtTrId("IDD_FILE_GONE") : qtTrId("IDD_FILE_REPLACED");
    ui_.labelFileDrag->setText(line_breaks::atPhrases(note));
}

void FileCard::chooseDefault() {
    ui_.btnFileCopy->setDefault(isSound() && !isUnsaved());
    ui_.btnFileSave->setDefault(isSound() && isUnsaved());
    ui_.btnGIFExport->setDefault(!isSound());
}

void FileCard::updatePlaying() {
    const QString wanted =
        isSound() && ui_.viewFilePicture->isSeen() ? exporter_.exporting.finished->path : QString();
    if (wanted == played_)
        return;
    played_ = wanted;
    mayMove_.reset();
    playback_.close();
    if (!played_.isEmpty()) {
        playback_.setLargest(ui_.viewFilePicture->pixels());
        playback_.open(played_, exporter_.surroundings().shell.sffmpegPath());
        animations_.ask();
    }
    showOffer();
}

void FileCard::takeOffer() {
    if (playback_.isPlaying())
        playback_.pause();
    else
        playback_.play();
    showOffer();
}

void FileCard::showOffer() {
    using Offer = FilePicture::Offer;
    const bool canMove = !played_.isEmpty() && mayMove_ && !playback_.isStill();
    Offer offer = Offer::Nothing;
    if (canMove && !playback_.isPlaying())
        offer = Offer::Play;
    else if (canMove && !*mayMove_)
        offer = Offer::Pause;
    ui_.viewFilePicture->setOffer(offer);
}

void FileCard::showFirstKeptPicture() {
    // To read it takes a moment that nobody should wait for who does not see it.
    if (!ui_.viewFilePicture->isVisible())
        return;
    const QString path = exporter_.firstKeptFile();
    const QString pictured =
        path + QString::number(QFileInfo(path).lastModified().toMSecsSinceEpoch());
    if (pictured != pictured_)
        ui_.viewFilePicture->setPicture(path.isEmpty() ? QImage() : firstPicture(path));
    pictured_ = pictured;
}

QString FileCard::path() {
    // What watches it may not have spoken yet.
    update();
    if (isSound())
        return exporter_.lastFileInItsPlace();
    if (showsFile_)
        exporter_.surroundings().showStatus(ui_.labelFileDrag->text());
    return {};
}

void FileCard::copy() {
    const QString file = path();
    if (file.isEmpty())
        return;
    QGuiApplication::clipboard()->setMimeData(new FileMimeData(file));
    exporter_.surroundings().showStatus(qtTrId("IDD_FILE_COPIED").arg(file));
}

void FileCard::open() {
    const QString file = path();
    if (!file.isEmpty() && !QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
        exporter_.surroundings().showStatus(qtTrId("IDD_FILE_NOT_OPENED").arg(file));
}

void FileCard::showInFolder() {
    const QString file = path();
    if (!file.isEmpty())
        desktop_services::showInFileManager(file);
}

void FileCard::drag() {
    const QString file = path();
    if (file.isEmpty())
        return;
    const QImage &picture = ui_.viewFilePicture->picture();
    // The toolkit deletes it after the drop.
    auto *drag = new QDrag(ui_.viewFilePicture);
    drag->setMimeData(new FileMimeData(file));
    const double ratio = ui_.viewFilePicture->devicePixelRatioF();
    const int side = qRound(draggedSide * ratio);
    QPixmap beneath = QPixmap::fromImage(
        picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    beneath.setDevicePixelRatio(ratio);
    drag->setPixmap(beneath);
    // A file is given away, never taken from its place.
    drag->exec(Qt::CopyAction | Qt::LinkAction, Qt::CopyAction);
}
