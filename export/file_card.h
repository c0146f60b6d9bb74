// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/file_identity.h"
#include "export/file_playback.h"
#include "platform/desktop_animations.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

#include <optional>

class ElidedLabel;
class Exporter;
class FilePicture;
class QLabel;
class QPushButton;
class QStackedWidget;
class QWidget;
struct ExportChoices;

/// The card's controls, by their established names; borrowed.
struct FileCardControls {
    FilePicture *viewFilePicture;
    QStackedWidget *cardStack; ///< Its first page is the estimate, its second one the file.
    ElidedLabel *labelFileName;
    QLabel *labelFileFigures;
    QLabel *labelFileDrag; ///< What can be done with the file, or why nothing can.
    QWidget *fileButtons;
    QPushButton *btnFileCopy;
    QPushButton *btnFileSave; ///< In the place of Copy while the file is not saved.
    QPushButton *btnGIFExport;
};

/// Works the card of the GIF tab: what is about to be made or, once it is made, the file itself,
/// which plays there and can be given away from there. What is copied or dragged is a file that
/// stays: one that is not saved yet is saved first. One that is no longer what was made is not
/// given away. Of its buttons the next step is the default one.
class FileCard : public QObject {
    Q_OBJECT

public:
    /// `exporter` is borrowed and outlives it.
    FileCard(const FileCardControls &controls, Exporter &exporter, QObject *parent);

    /// Whether there is a file to be given away.
    bool hasFile() const;
    /// Whether the card is the file now, and not an estimate.
    bool showsFile() const { return showsFile_; }
    /// Whether that file is still what was made.
    bool isSound() const { return showsFile_ && condition_ == Condition::Sound; }
    /// Whether it moves now.
    bool isPlaying() const { return playback_.isPlaying(); }

    /// Shows the file that was made last; nothing happens without one.
    void showFile();
    /// The options of the next file, or the frames that are kept, may be others now: the card shows
    /// what they would make, unless that is the file.
    void compare(const ExportChoices &choices);

    /// Puts the file on the clipboard, for file managers, messages and editors of pictures.
    void copy();
    /// Opens it with the program that the desktop has for it.
    void open();
    /// Shows it in the file manager.
    void showInFolder();
    /// Lets the user drag it into another program; returns after the drop.
    void drag();

Q_SIGNALS:
    /// It shows something else, or the file can be had in another way.
    void changed();

private:
    enum class Condition { Sound, Gone, Replaced };

    void update();
    void updateFile();
    void showFirstKeptPicture();
    void chooseDefault();
    /// Watches the file that was made last: as it is when its card hears of it, it was made.
    void watch();
    Condition condition() const;
    bool isUnsaved() const;
    /// Plays as long as there is something to be played that somebody sees.
    void updatePlaying();
    void takeOffer();
    void showOffer();
    /// Where the file can stay; says so where there is none any more, and is empty.
    QString path();

    const FileCardControls ui_;
    Exporter &exporter_;
    FilePlayback playback_;
    DesktopAnimations animations_;
    QFileSystemWatcher watcher_;
    QString watched_; ///< The file, by its path and when it was made.
    QDateTime made_;
    std::optional<FileIdentity> identity_;
    QString played_; ///< The file that is open, by its path; empty for none.
    Condition condition_ = Condition::Sound;
    bool showsFile_ = false;
    std::optional<bool> mayMove_; ///< What the desktop wants; none before it has answered.
    QString pictured_;            ///< The frame that the estimate shows, by path and time.
};
