// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/controls.h"
#include "app/cut_commands.h"
#include "export/file_card.h"
#include "platform/screen_source.h"
#include "shell/palette_icon.h"
#include "shell/settings.h"
#include "ui_MainWindow.h"

namespace {

/// What a switch for what hands do says: what it is for, or why it cannot be used.
QString handsTip(const QString &tip, HandAccess access) {
    switch (access) {
    case HandAccess::Granted:
    case HandAccess::NothingRecorded:
        return tip;
    case HandAccess::NotOffered:
        return qtTrId("IDD_HANDS_NOT_OFFERED");
    }
    return tip;
}

bool isGranted(HandAccess access) { return access == HandAccess::Granted; }

/// The commands that make and change a recording.
std::vector<Command> recordCommands(AppDelegate &controller) {
    const Ui::MainWindow &ui = *controller.ui;
    const InterfaceStrings &texts = controller.texts;
    const Recorder &recorder = controller.recorder;
    const Hands &hands = recorder.hands;
    const auto status = [&recorder] { return recorder.recording.m_RecordStatus(); };
    const auto stopped = [status] { return status() == RECORD_STATUS_STOP; };
    // What is recorded is chosen before that, and before the countdown.
    const auto choosing = [stopped, &recorder] { return stopped() && !recorder.isCountingDown(); };
    return {
        {.item = ui.menuitemActionRecordFullScreen,
         .button = ui.btnRecordFullScreen,
         .text = texts.s_IDD_FULL_SCREEN(),
         .icon = "full-screen",
         .shortcut = "Ctrl+Shift+F",
         .action = [&controller] { controller.OnMenuActionRecordFullScreen(); },
         .enabled = choosing},
        {.item = ui.submenuitemMonitors->menuAction(),
         .button = ui.btnFullScreenMenu,
         .text = {},
         .enabled = choosing},
        {.item = ui.submenuitemCountdown->menuAction(),
         .button = ui.btnRecordMenu,
         .text = {},
         .enabled = choosing},
        {.item = ui.menuitemActionRecordRegion,
         .button = ui.btnRecordRegion,
         .text = texts.s_IDD_REGION(),
         .icon = "region",
         .shortcut = "Ctrl+Shift+R",
         .action = [&controller] { controller.OnMenuActionRecordRegion(); },
         .enabled = choosing,
         .opensDialog = true},
        {.button = ui.btnChooseSource,
         .text = qtTrId("IDD_CHOOSE_SOURCE"),
         .action = [&controller] { controller.recorder.OnChooseSource(); }},
        {.button = ui.btnChooseAnotherSource,
         .text = qtTrId("IDD_CHOOSE_SOURCE"),
         .icon = "source",
         .action = [&controller] { controller.recorder.OnChooseAnotherSource(); },
         .enabled = stopped},
        {.item = ui.menuitemActionRecordFPS,
         .button = ui.btnRecordFPS,
         .text = texts.s_IDD_FPS(),
         .icon = "fps",
         .shortcut = "Ctrl+F",
         .action = [&controller] { controller.OnMenuActionRecordFPS(); },
         .enabled = choosing,
         .opensDialog = true},
        {.item = ui.menuitemRecordPickWindow,
         .text = qtTrId("IDD_PICK_WINDOW"),
         .shortcut = "Ctrl+Shift+W",
         .action = [&controller] { controller.regionChooser.OnPickWindow(); },
         .enabled = [choosing,
                     asks =
                         recorder.source().capabilities().asksUser] { return choosing() && !asks; },
         .opensDialog = true},
        {.item = ui.menuitemRecordPointer,
         .button = ui.btnRecordPointer,
         .text = qtTrId("IDD_POINTER"),
         .tip = handsTip(qtTrId("IDD_POINTER_TIP"), hands.pointerAccess()),
         .icon = "pointer",
         .shortcut = "Ctrl+Shift+P",
         .action = [&controller] { controller.recorder.OnRecordPointer(); },
         .enabled = [stopped, has = hands.pointerAccess()] { return stopped() && isGranted(has); },
         .checked = [&hands] { return hands.isPointerShown(); }},
        {.item = ui.menuitemRecordClicks,
         .button = ui.btnRecordClicks,
         .text = qtTrId("IDD_CLICKS"),
         .tip = handsTip(qtTrId("IDD_CLICKS_TIP"), hands.clicksAccess()),
         .icon = "clicks",
         .shortcut = "Ctrl+Shift+C",
         .action = [&controller] { controller.recorder.OnRecordClicks(); },
         .enabled = [stopped, has = hands.clicksAccess()] { return stopped() && isGranted(has); },
         .checked = [&hands] { return hands.areClicksShown(); }},
        {.item = ui.menuitemRecordKeys,
         .button = ui.btnRecordKeys,
         .text = qtTrId("IDD_KEYS"),
         .tip = handsTip(qtTrId("IDD_KEYS_TIP"), hands.keysAccess()),
         .icon = "keys",
         .shortcut = "Ctrl+Shift+K",
         .action = [&controller] { controller.recorder.OnRecordKeys(); },
         .enabled = [stopped, has = hands.keysAccess()] { return stopped() && isGranted(has); },
         .checked = [&hands] { return hands.areKeysShown(); }},
        {.item = ui.menuitemActionRecordRecord,
         .button = ui.btnRecordRecord,
         .text = texts.s_IDD_RECORD(),
         .icon = "record",
         .accent = recordRed,
         .shortcut = "Ctrl+R",
         .action = [&controller] { controller.OnMenuActionRecordRecord(); },
         .enabled =
             [status, &recorder] {
                 return status() != RECORD_STATUS_RECORD && recorder.mayRecord() &&
                        !recorder.isCountingDown();
             }},
        {.item = ui.menuitemActionRecordPause,
         .button = ui.btnRecordPause,
         .text = texts.s_IDD_PAUSE(),
         .icon = "pause",
         .shortcut = "Ctrl+P",
         .action = [&controller] { controller.OnMenuActionRecordPause(); },
         .enabled = [status] { return status() == RECORD_STATUS_RECORD; }},
        {.item = ui.menuitemActionRecordStop,
         .button = ui.btnRecordStop,
         .text = texts.s_IDD_STOP(),
         .icon = "stop",
         .shortcut = "Ctrl+.",
         .action = [&controller] { controller.OnMenuActionRecordStop(); },
         .enabled = [choosing] { return !choosing(); }},
        {.item = ui.menuitemRecordPrevious,
         .text = qtTrId("IDD_RECORD_PREVIOUS"),
         .action = [&controller] { controller.recorder.OnRecordPrevious(); },
         .enabled = [&recorder] { return recorder.mayBringBackPrevious(); }},
        {.button = ui.btnMoveRegion,
         .text = qtTrId("IDD_MOVE_REGION"),
         .action = [&controller] { controller.regionChooser.takeOfferedRegion(); },
         .enabled = choosing},
        {.button = ui.btnSaveAgain,
         .text = qtTrId("IDD_SAVE_AGAIN"),
         .action =
             [&controller] {
                 // A sheet covers it while a tool reads the recording's files, which keeps nobody
                 // from pressing it by assistive technology.
                 if (!controller.exporter.isRunningTool())
                     controller.recorder.OnSaveAgain();
             }},
    };
}

std::vector<Command> exportCommands(AppDelegate &controller) {
    const Ui::MainWindow &ui = *controller.ui;
    const auto usable = [&controller] { return controller.exportOptions->isUsable(); };
    return {
        {.item = ui.menuitemActionGIFExport,
         .button = ui.btnGIFExport,
         .text = controller.texts.s_IDD_GENERATE_GIF(),
         .shortcut = "Ctrl+E",
         .action = [&controller] { controller.OnMenuActionGIFExport(); },
         .enabled = usable},
        {.item = ui.menuitemGenerateAndCopy,
         .text = qtTrId("IDD_GENERATE_AND_COPY"),
         .shortcut = "Ctrl+Shift+C",
         .action = [&controller] { controller.exporter.generateAndCopy(); },
         .enabled = usable},
        {.item = ui.menuitemWebPGenerate,
         .button = ui.btnWebPGenerate,
         .text = qtTrId("IDD_GENERATE_WEBP"),
         .face = QStringLiteral("WebP"),
         .tip = qtTrId("IDD_GENERATE_WEBP_TIP"),
         .action = [&controller] { controller.Generate_WebP(&controller); },
         .enabled = usable},
        {.item = ui.menuitemMP4Generate,
         .button = ui.btnMP4Generate,
         .text = qtTrId("IDD_GENERATE_MP4"),
         .face = QStringLiteral("MP4"),
         .tip = qtTrId("IDD_GENERATE_MP4_TIP"),
         .action = [&controller] { controller.exporter.Generate_MP4(); },
         .enabled = usable},
        {.button = ui.btnSaveResult,
         .text = qtTrId("IDD_SAVE_RESULT"),
         .action = [&controller] { controller.exporter.saveUnsavedResult(); },
         .opensDialog = true},
    };
}

/// What can be done with the file that was made last.
std::vector<Command> fileCommands(AppDelegate &controller) {
    const Ui::MainWindow &ui = *controller.ui;
    FileCard &card = *controller.fileCard;
    const Exporter &exporter = controller.exporter;
    const auto shown = [&card] { return card.isSound(); };
    const auto saved = [&card, &exporter] {
        return card.isSound() && !exporter.hasUnsavedResult();
    };
    return {
        {.item = ui.menuitemSaveWithoutAsking,
         .text = qtTrId("IDD_SAVE_WITHOUT_ASKING"),
         .action =
             [&ui] {
                 settings::writeSaveWithoutAsking(ui.menuitemSaveWithoutAsking->isChecked());
             }},
        {.item = ui.menuitemFileCopy,
         .button = ui.btnFileCopy,
         .text = qtTrId("IDD_FILE_COPY"),
         .shortcut = "Ctrl+C",
         .action = [&card] { card.copy(); },
         .enabled = shown},
        {.item = ui.menuitemFileOpen,
         .button = ui.btnFileOpen,
         .text = qtTrId("IDD_FILE_OPEN"),
         .shortcut = "Ctrl+O",
         .action = [&card] { card.open(); },
         .enabled = saved},
        {.item = ui.menuitemFileShow,
         .button = ui.btnFileShow,
         .text = qtTrId("IDD_FILE_SHOW"),
         .shortcut = "Ctrl+Shift+O",
         .action = [&card] { card.showInFolder(); },
         .enabled = saved},
        {.item = ui.menuitemFileSave,
         .button = ui.btnFileSave,
         .text = qtTrId("IDD_SAVE_RESULT"),
         .shortcut = "Ctrl+S",
         .action = [&controller] { controller.exporter.saveUnsavedResult(); },
         .enabled = [&exporter] { return exporter.hasUnsavedResult(); },
         .opensDialog = true},
        {.button = ui.btnLastFile,
         .text = qtTrId("IDD_LAST_FILE"),
         .action =
             [&controller, &card] {
                 controller.OnMenuTabGIF();
                 card.showFile();
             }},
    };
}

/// The commands of the program itself.
std::vector<Command> programCommands(AppDelegate &controller) {
    const Ui::MainWindow &ui = *controller.ui;
    const InterfaceStrings &texts = controller.texts;
    const QString name = controller.shell.s_App_Name();
    const QString blank = QStringLiteral(" ");
    return {
        {.item = ui.menuitemAbout,
         .text = texts.s_IDD_ABOUT() + blank + name,
         .action = [&controller] { controller.OnMenuAbout(); }},
        {.item = ui.menuitemQuit,
         .text = texts.s_IDD_QUIT() + blank + name,
         .shortcut = "Ctrl+Q",
         .action = [&controller] { controller.OnMenuQuit(); }},
        {.item = ui.menuitemTabRecord,
         .text = texts.s_IDD_RECORD(),
         .shortcut = "Ctrl+1",
         .action = [&controller] { controller.OnMenuTabRecord(); }},
        {.item = ui.menuitemTabCut,
         .text = texts.s_IDD_CUT(),
         .shortcut = "Ctrl+2",
         .action = [&controller] { controller.OnMenuTabCut(); }},
        {.item = ui.menuitemTabGIF,
         .text = texts.s_IDD_SAVE(),
         .shortcut = "Ctrl+3",
         .action = [&controller] { controller.OnMenuTabGIF(); }},
        {.item = ui.menuitemHelp,
         .text = name + blank + texts.s_IDD_HELP(),
         .shortcut = "F1",
         .action = [&controller] { controller.OnMenuHelp(); }},
        {.item = ui.menuitemAppHomePage,
         .text = texts.s_IDD_APP_HOME_PAGE(),
         .action = [&controller] { controller.OnMenuHelpAppHomePage(); }},
        {.item = ui.menuitemCompanyHomePage,
         .text = texts.s_IDD_COMPANY_PAGE(),
         .action = [&controller] { controller.OnMenuHelpCompanyHomePage(); }},
        {.item = ui.menuitemPrivacyPolicy,
         .text = texts.s_IDD_PRIVACY_POLICY(),
         .action = [&controller] { controller.OnMenuHelpPrivacyPolicy(); }},
        {.item = ui.menuitemSubmitTicket,
         .text = texts.s_IDD_SUBMIT_TICKET(),
         .action = [&controller] { controller.OnMenuHelpSubmitTicket(); }},
    };
}

} // namespace

std::vector<Command> commandTable(AppDelegate &controller) {
    std::vector<Command> all;
    for (const auto &part :
         {recordCommands(controller), cutCommands(controller), exportCommands(controller),
          fileCommands(controller), programCommands(controller)})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}
