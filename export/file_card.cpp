// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/file_card.h"

#include "export/exporter.h"
#include "export/file_mime_data.h"
#include "export/file_picture.h"
#include "export/finished_file.h"
#include "export/first_picture.h"
#include "platform/desktop_services.h"
#include "shell/elided_label.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"

#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QDrag>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QStackedWidget>
#include <QTextDocument>
#include <QUrl>

namespace {

enum Page { Estimate, File };

constexpr int draggedSide = 128; // points, of the picture beneath the pointer

QString figuresOf(const FinishedFile &file) {
    return qtTrId("IDD_FILE_FIGURES")
        .arg(number_text::bytes(static_cast<std::uint64_t>(QFileInfo(file.path).size())),
             QString::number(file.pixels.width()), QString::number(file.pixels.height()),
             number_text::decimal(file.seconds));
}

} // namespace

FileCard::FileCard(const FileCardControls &controls, Exporter &exporter, QObject *parent)
    : QObject(parent), ui_(controls), exporter_(exporter) {
    ui_.labelFileName->setElideMode(Qt::ElideMiddle); // the ending says what it is
    QFont bold = ui_.labelFileName->font();
    bold.setBold(true);
    ui_.labelFileName->setFont(bold);
    connect(&exporter_, &Exporter::fileMade, this, [this] {
        showFile();
        // The next step; Return takes it.
        (exporter_.hasUnsavedResult() ? ui_.btnFileSave : ui_.btnFileCopy)->setFocus();
    });
    connect(&exporter_, &Exporter::fileMoved, this, &FileCard::update);
    connect(ui_.viewFilePicture, &FilePicture::dragBegan, this, &FileCard::drag);
    update();
}

bool FileCard::hasFile() const { return exporter_.lastFile() != nullptr; }

void FileCard::showFile() {
    showsFile_ = hasFile();
    update();
}

void FileCard::compare(const ExportChoices &choices) {
    const FinishedFile *file = exporter_.lastFile();
    const bool same =
        file && file->choices == choices && file->timing == exporter_.timingRequest(choices);
    showsFile_ = showsFile_ && same;
    update();
}

void FileCard::update() {
    const FinishedFile *file = exporter_.lastFile();
    showsFile_ = showsFile_ && file;
    ui_.cardStack->setCurrentIndex(showsFile_ ? File : Estimate);
    ui_.fileButtons->setVisible(showsFile_);
    ui_.viewFilePicture->setDraggable(showsFile_);
    if (showsFile_) {
        const bool saved = !exporter_.hasUnsavedResult();
        ui_.btnFileCopy->setVisible(saved);
        ui_.btnFileSave->setVisible(!saved);
        ui_.viewFilePicture->setPicture(file->picture);
        pictured_.clear();
        ui_.labelFileName->setText(QFileInfo(file->path).fileName());
        ui_.labelFileName->setToolTip(Qt::convertFromPlainText(file->path));
        ui_.labelFileFigures->setText(figuresOf(*file));
    } else {
        showFirstKeptPicture();
    }
    Q_EMIT changed();
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
    if (hasFile())
        return exporter_.lastFileInItsPlace();
    exporter_.surroundings().showStatus(qtTrId("IDD_FILE_GONE"));
    update();
    return {};
}

void FileCard::copy() {
    const QString file = path();
    if (file.isEmpty())
        return;
    QGuiApplication::clipboard()->setMimeData(
        new FileMimeData(file, exporter_.lastFile()->picture));
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
    const QImage picture = exporter_.lastFile()->picture;
    // The toolkit deletes it after the drop.
    auto *drag = new QDrag(ui_.viewFilePicture);
    drag->setMimeData(new FileMimeData(file, picture));
    const double ratio = ui_.viewFilePicture->devicePixelRatioF();
    const int side = qRound(draggedSide * ratio);
    QPixmap beneath = QPixmap::fromImage(
        picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    beneath.setDevicePixelRatio(ratio);
    drag->setPixmap(beneath);
    // A file is given away, never taken from its place.
    drag->exec(Qt::CopyAction | Qt::LinkAction, Qt::CopyAction);
}
