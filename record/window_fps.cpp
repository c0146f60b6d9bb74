// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/window_fps.h"

#include "record/rate_list.h"
#include "record/recorder.h"
#include "shell/elided_label.h"
#include "shell/line_breaks.h"
#include "shell/mnemonics.h"
#include "shell/surroundings.h"
#include "shell/title_text.h"
#include "ui_Window_FPS.h"

#include <QMainWindow>

Window_FPS::Window_FPS(QWidget *parent, Recorder &recorder)
    : QDialog(parent), ui_(std::make_unique<Ui::Window_FPS>()), recorder_(recorder) {
    ui_->setupUi(this);
    windowDidLoad();
}

Window_FPS::~Window_FPS() = default;

QComboBox *Window_FPS::comboScreenFPS() const { return ui_->comboScreenFPS; }
QLabel *Window_FPS::labelFPS() const { return ui_->labelFPS; }
QLabel *Window_FPS::labelNote() const { return ui_->labelNote; }

void Window_FPS::windowDidLoad() {
    fillRates(*ui_->comboScreenFPS, recorder_.recording.u_FPS());
    const InterfaceStrings &texts = recorder_.surroundings().texts;
    ui_->labelFPS->setText(texts.s_IDD_FPS());
    ui_->labelNote->setText(line_breaks::atPhrases(texts.s_IDD_NOTE()));
    setWindowTitle(titleText(texts.s_IDD_FPS()));
    ui_->comboScreenFPS->setAccessibleName(texts.s_IDD_FPS());
    ui_->btnOK->setText(qtTrId("IDD_OK"));
    ui_->btnCancel->setText(qtTrId("IDD_CANCEL"));
    mnemonics::mark(*this);
    const auto sayWhatAGifGets = [this](int index) {
        const bool thinned = static_cast<std::uint64_t>(index) + lowestRate > highestGifRate;
        ui_->labelThinned->setText(thinned ? qtTrId("IDD_GIF_THINNED") : QString());
    };
    connect(ui_->comboScreenFPS, &QComboBox::currentIndexChanged, this, sayWhatAGifGets);
    sayWhatAGifGets(ui_->comboScreenFPS->currentIndex());
    connect(ui_->btnOK, &QPushButton::clicked, this, [this] { OnOK(ui_->btnOK); });
    connect(ui_->btnCancel, &QPushButton::clicked, this, [this] { OnCancel(ui_->btnCancel); });
}

void Window_FPS::OnOK(QObject *sender) {
    const int index = ui_->comboScreenFPS->currentIndex();
    if (index < 0) {
        OnCancel(sender);
        return;
    }
    bOK_ = true;
    recorder_.setRate(static_cast<std::uint64_t>(index) + lowestRate);
    done(Accepted);
}

void Window_FPS::OnCancel(QObject *) {
    bOK_ = false;
    done(Rejected);
}

void Window_FPS::windowWillClose() { OnCancel(this); }

void Recorder::OnRecordFPS() {
    Window_FPS dialog(surroundings_.shell.window(), *this);
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.exec();
    if (!dialog.bOK())
        return;
    restartCaptureTimer();
    // Not only with the next tick, which a low rate keeps waiting.
    updateCaptureMode();
}
