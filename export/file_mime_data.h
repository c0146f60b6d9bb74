// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMimeData>
#include <QString>

/// A file as other programs take it from the clipboard or from a drag: its address (RFC 2483,
/// `text/uri-list`, and as plain text, percent-encoded as well), the same as file managers copy
/// files (`x-special/gnome-copied-files`, which MATE's gave a name of its own: the word "copy" and
/// an address, a line each), and for programs that take pictures the file's content under its own
/// type and its first picture.
class FileMimeData : public QMimeData {
    Q_OBJECT

public:
    /// `path` is absolute; the file is read when somebody asks for its content.
    explicit FileMimeData(const QString &path);

    QStringList formats() const override;

protected:
    QVariant retrieveData(const QString &format, QMetaType type) const override;

private:
    QString path_;
    QString ownFormat_; ///< Of a picture; empty for a video, which nobody pastes.
};
