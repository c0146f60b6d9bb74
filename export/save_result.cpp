// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/export_mark.h"
#include "export/exporter.h"
#include "export/first_picture.h"
#include "export/left_file.h"
#include "export/preset_name.h"
#include "export/safe_move.h"
#include "export/save_request.h"
#include "platform/desktop_services.h"
#include "platform/text_number.h"
#include "record/recorder.h"
#include "shell/number_text.h"
#include "shell/settings.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"
#include "trim/trim_editor.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMimeDatabase>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace {

constexpr int nameAttempts = 16; // names that others take under our hands

/// The folder that the save panel shows first: the last one used, else the one for pictures.
QString startFolder() {
    const QString lastUsed = settings::readLastSaveFolder();
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    for (const QString &folder : {lastUsed, pictures})
        if (QDir::isAbsolutePath(folder) && QFileInfo(folder).isDir())
            return folder;
    return QDir::homePath();
}

/// Whether a file of that path would be in a folder that the program empties.
bool liesInWorkingFolder(const QString &path, const ShellFields &shell) {
    const QString folder = QFileInfo(path).dir().canonicalPath() + QLatin1Char('/');
    const std::array working{shell.s_Output_Folder(), shell.s_Export_Folder(),
                             shell.s_Pallete_Folder()};
    return std::any_of(working.begin(), working.end(), [&folder](const QString &own) {
        const QString canonical = QDir(own).canonicalPath();
        return !canonical.isEmpty() && folder.startsWith(canonical + QLatin1Char('/'));
    });
}

/// The name that is offered for it there: one that nothing has yet.
QString freeName(const SaveRequest &request, const QString &folder) {
    return presetName(request.made, QFileInfo(request.file).suffix(),
                      [&folder](const QString &name) {
                          const QFileInfo found(QDir(folder).filePath(name));
                          return found.exists() || found.isSymLink();
                      });
}

/// The path with the ending that other programs know such a file by, in the place of an ending that
/// says something else ("demo.txt"). One that says nothing belongs to the name ("version 1.2").
QString withSuffix(const QString &path, const QString &suffix) {
    const QFileInfo file(path);
    if (file.suffix().compare(suffix, Qt::CaseInsensitive) == 0)
        return path;
    const bool isKind = file.suffix().size() > 1 &&
                        !QMimeDatabase().mimeTypesForFileName(file.fileName()).isEmpty();
    const QString stem = isKind ? path.chopped(file.suffix().size() + 1) : path;
    return stem + QLatin1Char('.') + suffix;
}

/// Asks for the place; an empty text when the user cancels.
QString runSavePanel(QWidget *parent, const SaveRequest &request, const QString &folder,
                     const QString &title) {
    const QString suffix = QFileInfo(request.file).suffix();
    QString offered = freeName(request, folder);
    for (;;) {
        QFileDialog panel(parent, title, folder);
        panel.setObjectName(QStringLiteral("savePanel"));
        panel.setAcceptMode(QFileDialog::AcceptSave);
        panel.setFileMode(QFileDialog::AnyFile);
        panel.setNameFilter(QStringLiteral("%1 (*.%2)").arg(kindOf(request), suffix));
        panel.selectFile(offered);
        // A name typed without an ending gets it.
        panel.setDefaultSuffix(suffix);
        if (panel.exec() != QDialog::Accepted || panel.selectedFiles().isEmpty())
            return {};
        const QString chosen = panel.selectedFiles().first();
        offered = withSuffix(chosen, suffix);
        // The panel has asked about a file of the name that was typed, and about no other.
        if (offered == chosen || !QFileInfo::exists(offered))
            return offered;
    }
}

/// What is said about a file of one kind.
struct KindTexts {
    QString panelTitle;
    QString saved; ///< After a place was confirmed.
};

KindTexts textsFor(const QString &suffix, const InterfaceStrings &texts) {
    if (suffix == QLatin1String("gif"))
        return {QStringLiteral("Select a folder to save the GIF image"),
                texts.s_IDD_GIF_SAVED_OK()};
    if (suffix == QLatin1String("webp"))
        return {QStringLiteral("Select a folder to save the WebP image"),
                QStringLiteral("Success")};
    return {qtTrId("IDD_MP4_PANEL"), qtTrId("IDD_MP4_SAVED_OK")};
}

int evenSide(const QString &typed) {
    const auto side = static_cast<int>(integerValue(typed));
    return side + side % 2;
}

} // namespace

void Exporter::saveResult(const SaveRequest &request, Frames frames, frame_timing::Ticks ticks,
                          const ExportChoices &choices) {
    if (takeResult_) {
        takeResult_(request);
        return;
    }
    exporting.unsaved = request;
    QSize pixels = pictureSize(request.file);
    // A video has even sides, see `mp4Arguments`.
    if (pixels.isEmpty())
        pixels = {evenSide(choices.width), evenSide(choices.height)};
    exporting.finished = {.path = request.file,
                          .pixels = pixels,
                          .seconds = frame_timing::seconds(frames, ticks),
                          .made = request.made,
                          .note = request.note,
                          .choices = choices,
                          .timing = timingRequest(choices)};
    left_file::writeNote(*exporting.finished);
    const QMainWindow *window = surroundings_.shell.window();
    if (window && QGuiApplication::applicationState() != Qt::ApplicationActive)
        desktop_services::notify(qtTrId("IDD_FILE_READY"), freeName(request, startFolder()));
    bool isSaved = false;
    if (request.withoutAsking)
        isSaved = saveUnderPresetName();
    else
        chooseResultsPlace();
    Q_EMIT fileMade();
    if (isSaved && request.copied)
        Q_EMIT copyWanted();
}

bool Exporter::mustNotAsk() {
    return settings::readSaveWithoutAsking() ||
           QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
}

std::optional<QString> Exporter::placeResult(const QString &path, Existing existing) {
    const QString from = exporting.unsaved->file;
    if (liesInWorkingFolder(path, surroundings_.shell))
        return qtTrId("IDD_MOVE_WORKING_FOLDER");
    if (std::optional<QString> failure = safeMove(from, path, existing))
        return failure;
    if (exporting.finished && exporting.finished->path == from)
        exporting.finished->path = path;
    forgetResult();
    recorder_.markExported();
    settings::writeLastSaveFolder(QFileInfo(path).absolutePath());
    return std::nullopt;
}

void Exporter::reportFailedPlace(const QString &path, const QString &reason) {
    surroundings_.alerts.run(AlertKind::Error,
                             qtTrId("IDD_MOVE_FAILED").arg(path, reason, exporting.unsaved->file));
    showUnsavedResult();
}

QString Exporter::sayWhereItIs(const QString &note) {
    const QFileInfo saved(exporting.finished->path);
    const QString size = number_text::bytes(static_cast<std::uint64_t>(saved.size()));
    if (note.isEmpty()) {
        const QString status = qtTrId("IDD_STATUS_SAVED").arg(saved.filePath(), size);
        surroundings_.showStatus(status);
        return status;
    }
    // A line has hardly room for a path and the note.
    const QString status = qtTrId("IDD_STATUS_SAVED_NOTE");
    surroundings_.showStatus(status.arg(saved.fileName(), size, note));
    return status.arg(saved.filePath(), size, note);
}

void Exporter::chooseResultsPlace() {
    const SaveRequest request = *exporting.unsaved;
    const KindTexts texts = textsFor(QFileInfo(request.file).suffix(), surroundings_.texts);
    const QString path =
        runSavePanel(surroundings_.shell.window(), request, startFolder(), texts.panelTitle);
    if (path.isEmpty()) {
        showUnsavedResult();
        return;
    }
    if (const std::optional<QString> failure = placeResult(path, Existing::Replace)) {
        reportFailedPlace(path, *failure);
        return;
    }
    surroundings_.alerts.run(AlertKind::Success, texts.saved, sayWhereItIs(request.note));
}

bool Exporter::saveUnderPresetName() {
    const SaveRequest request = *exporting.unsaved;
    const QString folder = startFolder();
    for (int attempt = 1;; ++attempt) {
        const QString path = QDir(folder).filePath(freeName(request, folder));
        const std::optional<QString> failure = placeResult(path, Existing::Keep);
        if (!failure) {
            sayWhereItIs(request.note);
            return true;
        }
        // Another program may have taken the name meanwhile: there are others.
        if (attempt == nameAttempts || !QFileInfo::exists(path)) {
            reportFailedPlace(path, *failure);
            return false;
        }
    }
}

QString Exporter::firstKeptFile() const {
    const FrameRuns kept = editor_.keptFrames();
    return kept.isEmpty()
               ? QString()
               : working_folders::frameFile(surroundings_.shell.s_Output_Folder(), kept.first());
}

const FinishedFile *Exporter::lastFile() const {
    return exporting.finished && QFileInfo::exists(exporting.finished->path) ? &*exporting.finished
                                                                             : nullptr;
}

QString Exporter::lastFileInItsPlace() {
    if (!lastFile())
        return {};
    if (hasUnsavedResult() && exporting.unsaved->file == exporting.finished->path) {
        if (surroundings_.alerts.isAsking() || !mayExport())
            return {};
        const ExportMark mark(exporting);
        if (!saveUnderPresetName())
            return {};
    }
    return exporting.finished->path;
}
