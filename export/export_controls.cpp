// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "ui_MainWindow.h"

void AppDelegate::connectExportControls() {
    using Action = void (AppDelegate::*)(QObject *);
    const auto radio = [this](QRadioButton *button, Action action) {
        connect(button, &QRadioButton::clicked, this, [this, button, action] {
            // The pairs are ours to keep exclusive, so Qt turns a button off that is clicked while
            // it is on; a radio button stays on.
            button->setChecked(true);
            (this->*action)(button);
        });
    };
    radio(ui->radioGIFOriginalDimension, &AppDelegate::OnGIFOriginalResolution);
    radio(ui->radioGIFCustomDimension, &AppDelegate::OnGIFCustomResolution);
    radio(ui->radioGIFOriginalFPS, &AppDelegate::OnGIFOriginalFPS);
    radio(ui->radioGIFCustomFPS, &AppDelegate::OnGIFCustomFPS);

    const auto field = [this](QLineEdit *edit, Action action) {
        connect(edit, &QLineEdit::returnPressed, this,
                [this, edit, action] { (this->*action)(edit); });
        // Also told after Return, and when an untouched field loses the focus.
        connect(edit, &QLineEdit::editingFinished, this, [this, edit, action] {
            if (edit->isModified())
                (this->*action)(edit);
        });
        connect(edit, &QLineEdit::textChanged, this, &AppDelegate::updateGIFDimensionHint);
    };
    field(ui->textGIFWidth, &AppDelegate::OnGIFChangeWidth);
    field(ui->textGIFHeigth, &AppDelegate::OnGIFChangeHeigth);

    connect(ui->checkGIFKeepAspectRatio, &QCheckBox::clicked, this,
            [this] { OnGIFChangeKeepAspectRatio(ui->checkGIFKeepAspectRatio); });
    connect(ui->comboGIFFPS, &QComboBox::currentIndexChanged, this, &AppDelegate::updateGIFSummary);
    connect(ui->btnGIFExport, &QPushButton::clicked, this,
            [this] { OnGIFExport(ui->btnGIFExport); });
    connect(ui->menuitemActionGIFExport, &QAction::triggered, this,
            &AppDelegate::OnMenuActionGIFExport);
    connect(ui->btnWebPGenerate, &QPushButton::clicked, this,
            [this] { Generate_WebP(ui->btnWebPGenerate); });
}
