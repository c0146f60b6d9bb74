// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/window_region_how_it_works.h"

#include "region/region_fields.h"
#include "shell/line_breaks.h"
#include "shell/mnemonics.h"
#include "shell/settings.h"
#include "shell/title_text.h"
#include "ui_Window_Region_How_It_Works.h"

Window_Region_How_It_Works::Window_Region_How_It_Works(QWidget *parent, RegionFields &region,
                                                       bool picksWindows)
    : QDialog(parent), ui_(std::make_unique<Ui::Window_Region_How_It_Works>()), region_(region) {
    ui_->setupUi(this);
    windowDidLoad(picksWindows);
}

Window_Region_How_It_Works::~Window_Region_How_It_Works() = default;

QCheckBox *Window_Region_How_It_Works::checkDontShowAgain() const {
    return ui_->checkDontShowAgain;
}

void Window_Region_How_It_Works::windowDidLoad(bool picksWindows) {
    setWindowTitle(titleText(qtTrId("IDD_REGION_HOW_TO_TITLE")));
    ui_->labelText->setText(line_breaks::atPhrases(qtTrId("IDD_REGION_HOW_TO_TEXT")));
    ui_->labelWindow->setText(line_breaks::atPhrases(qtTrId("IDD_REGION_HOW_TO_WINDOW")));
    ui_->labelWindow->setVisible(picksWindows);
    ui_->labelKeys->setText(line_breaks::atPhrases(qtTrId("IDD_REGION_HOW_TO_KEYS")));
    ui_->viewPicture->setAccessibleName(qtTrId("IDD_REGION_HOW_TO_PICTURE"));
    ui_->checkDontShowAgain->setText(qtTrId("IDD_REGION_HOW_TO_AGAIN"));
    ui_->btnOK->setText(qtTrId("IDD_OK"));
    mnemonics::mark(*this);
    // Where Return presses what has the focus, it must accept and not tick.
    ui_->btnOK->setFocus();
    connect(ui_->btnOK, &QPushButton::clicked, this, &Window_Region_How_It_Works::OnOK);
}

void Window_Region_How_It_Works::OnOK() {
    if (checkDontShowAgain()->isChecked()) {
        region_.setB_Show_Select_Region_How_To(0);
        settings::writeShowSelectRegionHowTo(region_.b_Show_Select_Region_How_To());
    }
    accept();
}

void Window_Region_How_It_Works::windowWillClose() { done(Rejected); }
