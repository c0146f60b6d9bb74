// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class ElidedLabel;
class Exporter;
class FilePicture;
class QLabel;
class QStackedWidget;
class QWidget;
struct ExportChoices;

/// The card's controls, by their established names; borrowed.
struct FileCardControls {
    FilePicture *viewFilePicture;
    QStackedWidget *cardStack; ///< Its first page is the estimate, its second one the file.
    ElidedLabel *labelFileName;
    QLabel *labelFileFigures;
    QWidget *fileButtons;
    QWidget *btnFileCopy;
    QWidget *btnFileSave; ///< In the place of Copy while the file is not saved.
};

/// Works the card of the GIF tab: what is about to be made or, once it is made, the file itself,
/// which can be given away from there. What is copied or dragged is a file that stays: one that is
/// not saved yet is saved first.
class FileCard : public QObject {
    Q_OBJECT

public:
    /// `exporter` is borrowed and outlives it.
    FileCard(const FileCardControls &controls, Exporter &exporter, QObject *parent);

    /// Whether there is a file to be given away.
    bool hasFile() const;
    /// Whether the card is the file now, and not an estimate.
    bool showsFile() const { return showsFile_; }

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
    void update();
    void showFirstKeptPicture();
    /// Where the file can stay; says so where there is none any more, and is empty.
    QString path();

    const FileCardControls ui_;
    Exporter &exporter_;
    bool showsFile_ = false;
    QString pictured_; ///< The frame that the estimate shows, by path and time.
};
