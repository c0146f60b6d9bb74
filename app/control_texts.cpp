// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/control_texts.h"

#include "shell/interface_strings.h"
#include "shell/line_breaks.h"
#include "ui_MainWindow.h"

namespace {

void nameMenus(const Ui::MainWindow &ui, const InterfaceStrings &texts, const QString &name) {
    ui.menuApplication->setTitle(name);
    ui.menuTab->setTitle(qtTrId("IDD_MENU_TAB"));
    // The text of IDD_HELP follows a name and need not be usable alone in every language.
    ui.menuHelp->setTitle(qtTrId("IDD_MENU_HELP"));
    ui.menuAction->setTitle(qtTrId("IDD_MENU_ACTION"));
    ui.submenuitemCountdown->setTitle(qtTrId("IDD_COUNTDOWN"));
    ui.submenuitemMonitors->setTitle(qtTrId("IDD_MONITORS"));
    ui.submenuitemRecord->setTitle(texts.s_IDD_RECORD());
    ui.submenuitemCut->setTitle(texts.s_IDD_CUT());
    ui.submenuitemGIF->setTitle(texts.s_IDD_SAVE());
}

void nameFields(const Ui::MainWindow &ui, const InterfaceStrings &texts) {
    ui.viewRecordPreview->setAccessibleName(qtTrId("IDD_RECORD_PREVIEW"));
    ui.viewCutPreview->setAccessibleName(qtTrId("IDD_CUT_PREVIEW"));
    ui.viewCutRange->setAccessibleName(qtTrId("IDD_CUT_RANGE"));
    ui.labelInstructions->setText(line_breaks::atPhrases(texts.s_IDD_INSTRUCTIONS()));
    ui.groupDimension->setTitle(qtTrId("IDD_GROUP_SIZE"));
    ui.radioGIFOriginalDimension->setText(texts.s_IDD_RESOLUTION_EQUAL());
    ui.radioGIFCustomDimension->setText(texts.s_IDD_RESOLUTION_CUSTOM());
    for (const auto &[field, name] : {std::pair(ui.textGIFWidth, texts.s_IDD_WIDTH()),
                                      {ui.textGIFHeigth, texts.s_IDD_HEIGHT()}}) {
        field->setAccessibleName(name);
        field->setToolTip(name);
    }
    ui.checkGIFKeepAspectRatio->setText(texts.s_IDD_KEEP_ASPECT_RATIO());
    ui.groupFPS->setTitle(qtTrId("IDD_GROUP_RATE"));
    ui.radioGIFOriginalFPS->setText(texts.s_IDD_FPS_EQUAL());
    ui.radioGIFCustomFPS->setText(texts.s_IDD_FORCE_FPS());
    ui.labelFPS->setText(texts.s_IDD_FPS());
    ui.comboGIFFPS->setAccessibleName(texts.s_IDD_FPS());
    ui.labelNote->setText(line_breaks::atPhrases(texts.s_IDD_NOTE()));
    ui.viewCutRange->setToolTip(qtTrId("IDD_STRIP_TIP"));
    ui.labelQuality->setText(qtTrId("IDD_QUALITY"));
    ui.comboGIFQuality->setAccessibleName(qtTrId("IDD_QUALITY"));
    ui.comboGIFQuality->setToolTip(qtTrId("IDD_QUALITY_TIP"));
    ui.labelSpeed->setText(qtTrId("IDD_SPEED"));
    ui.labelFitUnder->setText(qtTrId("IDD_FIT_UNDER"));
    ui.comboFitUnder->setAccessibleName(qtTrId("IDD_FIT_UNDER"));
    ui.comboFitUnder->lineEdit()->setAccessibleName(qtTrId("IDD_FIT_UNDER"));
    ui.comboFitUnder->setToolTip(qtTrId("IDD_FIT_UNDER_TIP"));
    ui.labelFitNote->setText(line_breaks::atPhrases(qtTrId("IDD_FIT_NOTE")));
    for (const auto &[button, percent] : {std::pair(ui.btnGIFSize75, 75), {ui.btnGIFSize50, 50}}) {
        button->setText(qtTrId("IDD_PERCENT").arg(percent));
        button->setToolTip(qtTrId("IDD_PERCENT_TIP").arg(percent));
    }
    ui.viewFilePicture->setAccessibleName(qtTrId("IDD_FILE_PICTURE"));
    for (const auto &[arrow, name] : {std::pair(ui.btnGenerateMenu, qtTrId("IDD_SAVING_OPTIONS")),
                                      {ui.btnRecordMenu, qtTrId("IDD_COUNTDOWN")},
                                      {ui.btnFullScreenMenu, qtTrId("IDD_MONITORS")}}) {
        arrow->setAccessibleName(name);
        arrow->setToolTip(name);
    }
    ui.comboGIFSpeed->setAccessibleName(qtTrId("IDD_SPEED"));
    ui.labelWebPLoops->setText(qtTrId("IDD_WEBP_LOOPS"));
    ui.comboGIFRepeat->setAccessibleName(qtTrId("IDD_WEBP_LOOPS"));
    ui.labelHold->setText(qtTrId("IDD_HOLD"));
    ui.comboGIFHold->setAccessibleName(qtTrId("IDD_HOLD"));
    ui.txtWebPLoops->setAccessibleName(qtTrId("IDD_WEBP_LOOPS"));
}

} // namespace

void nameControls(const Ui::MainWindow &ui, const InterfaceStrings &texts, const QString &name) {
    nameMenus(ui, texts, name);
    nameFields(ui, texts);
}
