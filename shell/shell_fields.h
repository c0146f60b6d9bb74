// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaObject>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QMainWindow;
class TabView;

/// What the application as a whole knows: its window, its working folders and tools, its screen.
/// Only state. Windows and views are borrowed.
class ShellFields {
public:
    /// The single main window.
    QMainWindow *window() const { return window_; }
    void setWindow(QMainWindow *window) { window_ = window; }

    /// The three tabs Record, Cut, GIF.
    TabView *tabviewMain() const { return tabviewMain_; }
    void setTabviewMain(TabView *view) { tabviewMain_ = view; }

    /// The recording folder: a recording's frame sequence is written here. Absolute, no slash at
    /// the end, like the two below.
    const QString &s_Output_Folder() const { return s_Output_Folder_; }
    void setS_Output_Folder(const QString &path) { s_Output_Folder_ = path; }

    /// The export folder: scratch folder of the encoders.
    const QString &s_Export_Folder() const { return s_Export_Folder_; }
    void setS_Export_Folder(const QString &path) { s_Export_Folder_ = path; }

    /// The palette folder: second scratch folder of the GIF export.
    const QString &s_Pallete_Folder() const { return s_Pallete_Folder_; }
    void setS_Pallete_Folder(const QString &path) { s_Pallete_Folder_ = path; }

    /// Path of the GIF encoder; empty when it was not found at start-up.
    const QString &sffmpegPath() const { return sffmpegPath_; }
    void setSffmpegPath(const QString &path) { sffmpegPath_ = path; }

    /// Path of the WebP encoder; empty when it was not found at start-up.
    const QString &simg2webpPath() const { return simg2webpPath_; }
    void setSimg2webpPath(const QString &path) { simg2webpPath_ = path; }

    /// Frame of the screen that holds the main window, in points. Its width tells the capture
    /// whether a grab has double density.
    QRectF frame_Screen() const { return frame_Screen_; }
    void setFrame_Screen(const QRectF &frame) { frame_Screen_ = frame; }

    /// The size part of `frame_Screen`, in points.
    QSizeF size_Screen() const { return size_Screen_; }
    void setSize_Screen(QSizeF size) { size_Screen_ = size; }

    /// The application's name as menus show it.
    const QString &s_App_Name() const { return s_App_Name_; }
    void setS_App_Name(const QString &name) { s_App_Name_ = name; }

    /// Identifies the observer of screen changes, so that it can be removed. Nothing here reacts to
    /// a change of locale, whatever the name says.
    const QMetaObject::Connection &localeChangeObserver() const { return localeChangeObserver_; }
    void setLocaleChangeObserver(const QMetaObject::Connection &token) {
        localeChangeObserver_ = token;
    }

private:
    QMainWindow *window_ = nullptr;
    TabView *tabviewMain_ = nullptr;
    QString s_Output_Folder_;
    QString s_Export_Folder_;
    QString s_Pallete_Folder_;
    QString sffmpegPath_;
    QString simg2webpPath_;
    QRectF frame_Screen_;
    QSizeF size_Screen_;
    QString s_App_Name_;
    QMetaObject::Connection localeChangeObserver_;
};
