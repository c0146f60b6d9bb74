// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "shell/mnemonics.h"
#include "shell/tab_view.h"
#include "ui_MainWindow.h"

namespace {

/// A button whose face carries an icon: the text is its tool tip, and its name for whoever cannot
/// see the icon.
void setToolTip(QAbstractButton &button, const QString &text) {
    button.setToolTip(text);
    button.setAccessibleName(text);
}

void nameMenus(const Ui::MainWindow &ui, const InterfaceStrings &texts, const QString &name) {
    const QString blank = QStringLiteral(" ");
    ui.menuApplication->setTitle(name);
    ui.menuitemAbout->setText(texts.s_IDD_ABOUT() + blank + name);
    ui.menuitemQuit->setText(texts.s_IDD_QUIT() + blank + name);
    ui.menuTab->setTitle(qtTrId("IDD_MENU_TAB"));
    ui.menuitemTabRecord->setText(texts.s_IDD_RECORD());
    ui.menuitemTabCut->setText(texts.s_IDD_CUT());
    ui.menuitemTabGIF->setText(texts.s_IDD_SAVE());
    // The text of IDD_HELP stands behind the name and need not serve alone in every language.
    ui.menuHelp->setTitle(qtTrId("IDD_MENU_HELP"));
    ui.menuitemHelp->setText(name + blank + texts.s_IDD_HELP());
    ui.menuitemAppHomePage->setText(texts.s_IDD_APP_HOME_PAGE());
    ui.menuitemCompanyHomePage->setText(texts.s_IDD_COMPANY_PAGE());
    ui.menuitemPrivacyPolicy->setText(texts.s_IDD_PRIVACY_POLICY());
    ui.menuitemSubmitTicket->setText(texts.s_IDD_SUBMIT_TICKET());

    ui.menuAction->setTitle(qtTrId("IDD_MENU_ACTION"));
    ui.submenuitemRecord->setTitle(texts.s_IDD_RECORD());
    ui.submenuitemCut->setTitle(texts.s_IDD_CUT());
    ui.submenuitemGIF->setTitle(texts.s_IDD_SAVE());
}

/// What a menu item does, and the button that does the same.
void nameCommands(const Ui::MainWindow &ui, const InterfaceStrings &texts) {
    const struct {
        QAction *item;
        QAbstractButton *button;
        const QString &text;
    } commands[] = {
        {ui.menuitemActionRecordFullScreen, ui.btnRecordFullScreen, texts.s_IDD_FULL_SCREEN()},
        {ui.menuitemActionRecordRegion, ui.btnRecordRegion, texts.s_IDD_REGION()},
        {ui.menuitemActionRecordFPS, ui.btnRecordFPS, texts.s_IDD_FPS()},
        {ui.menuitemActionRecordRecord, ui.btnRecordRecord, texts.s_IDD_RECORD()},
        {ui.menuitemActionRecordPause, ui.btnRecordPause, texts.s_IDD_PAUSE()},
        {ui.menuitemActionRecordStop, ui.btnRecordStop, texts.s_IDD_STOP()},
        {ui.menuitemActionCutPlay, ui.btnCutPlay, texts.s_IDD_PLAY()},
        {ui.menuitemActionCutPause, ui.btnCutPause, texts.s_IDD_PAUSE()},
        {ui.menuitemActionCutStop, ui.btnCutStop, texts.s_IDD_STOP()},
    };
    for (const auto &[item, button, text] : commands) {
        item->setText(text);
        setToolTip(*button, text);
    }
    ui.menuitemActionGIFExport->setText(texts.s_IDD_GENERATE_GIF());
    ui.btnGIFExport->setText(texts.s_IDD_GENERATE_GIF());
    ui.btnGIFExport->setToolTip(texts.s_IDD_GENERATE_GIF());
    ui.btnWebPGenerate->setText(qtTrId("IDD_GENERATE_WEBP"));
    ui.btnWebPGenerate->setToolTip(qtTrId("IDD_GENERATE_WEBP_TIP"));
    ui.btnSaveAgain->setText(qtTrId("IDD_SAVE_AGAIN"));
    ui.btnSaveResult->setText(qtTrId("IDD_SAVE_RESULT"));
}

void nameFields(const Ui::MainWindow &ui, const InterfaceStrings &texts) {
    ui.viewRecordPreview->setAccessibleName(qtTrId("IDD_RECORD_PREVIEW"));
    ui.labelInstructions->setText(texts.s_IDD_INSTRUCTIONS());
    ui.groupDimension->setTitle(qtTrId("IDD_GROUP_SIZE"));
    ui.radioGIFOriginalDimension->setText(texts.s_IDD_RESOLUTION_EQUAL());
    ui.radioGIFCustomDimension->setText(texts.s_IDD_RESOLUTION_CUSTOM());
    ui.labelWidth->setText(texts.s_IDD_WIDTH());
    ui.labelHeight->setText(texts.s_IDD_HEIGHT());
    ui.textGIFWidth->setAccessibleName(texts.s_IDD_WIDTH());
    ui.textGIFHeigth->setAccessibleName(texts.s_IDD_HEIGHT());
    ui.checkGIFKeepAspectRatio->setText(texts.s_IDD_KEEP_ASPECT_RATIO());
    ui.groupFPS->setTitle(qtTrId("IDD_GROUP_RATE"));
    ui.radioGIFOriginalFPS->setText(texts.s_IDD_FPS_EQUAL());
    ui.radioGIFCustomFPS->setText(texts.s_IDD_FORCE_FPS());
    ui.labelFPS->setText(texts.s_IDD_FPS());
    ui.comboGIFFPS->setAccessibleName(texts.s_IDD_FPS());
    ui.labelNote->setText(texts.s_IDD_NOTE());
    ui.labelQuality->setText(qtTrId("IDD_QUALITY"));
    ui.comboGIFQuality->setAccessibleName(qtTrId("IDD_QUALITY"));
    ui.comboGIFQuality->setToolTip(qtTrId("IDD_QUALITY_TIP"));
    ui.labelSpeed->setText(qtTrId("IDD_SPEED"));
    ui.comboGIFSpeed->setAccessibleName(qtTrId("IDD_SPEED"));
    ui.labelWebPLoops->setText(qtTrId("IDD_WEBP_LOOPS"));
    ui.labelWebPLoopsHint->setText(qtTrId("IDD_WEBP_LOOPS_HINT"));
    ui.txtWebPLoops->setAccessibleName(qtTrId("IDD_WEBP_LOOPS"));
}

} // namespace

void AppDelegate::applyTexts() {
    nameMenus(*ui, texts, shell.s_App_Name());
    nameCommands(*ui, texts);
    nameFields(*ui, texts);
    for (const QString &label : {texts.s_IDD_RECORD(), texts.s_IDD_CUT(), texts.s_IDD_SAVE()})
        shell.tabviewMain()->addTab(label);
    // Chosen last: a letter depends on the texts around it.
    const QString taken = mnemonics::mark(*ui->menubar, *ui->tabBar, *ui->tabStack,
                                          {ui->btnSaveResult, ui->btnSaveAgain});
    for (const QWidget *page : {ui->pageRecord, ui->pageCut, ui->pageGIF})
        mnemonics::mark(*page, taken);
}
