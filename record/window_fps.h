// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class QComboBox;
class QLabel;
class Recorder;
namespace Ui {
class Window_FPS;
}

/// The dialog in which the capture rate is chosen. It reads and writes the desk's `u_FPS`;
/// what follows from a new rate is the command's business.
class Window_FPS : public QDialog {
    Q_OBJECT

public:
    Window_FPS(QWidget *parent, Recorder &recorder);
    ~Window_FPS() override;

    /// True when the dialog was closed with OK.
    bool bOK() const { return bOK_; }
    void setBOK(bool ok) { bOK_ = ok; }

    QComboBox *comboScreenFPS() const;
    QLabel *labelFPS() const;
    QLabel *labelNote() const;

    /// Takes the selected rate over into `u_FPS` and ends the dialog; with none selected it is the
    /// same as `OnCancel`.
    void OnOK(QObject *sender);
    void OnCancel(QObject *sender);
    /// The window is being closed, by whatever means: as `OnCancel`.
    void windowWillClose();

    void reject() override { windowWillClose(); }

private:
    void windowDidLoad();

    std::unique_ptr<Ui::Window_FPS> ui_;
    Recorder &recorder_;
    bool bOK_ = false;
};
