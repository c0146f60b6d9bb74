// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/controls.h"

#include "app/app_delegate.h"
#include "app/control_texts.h"
#include "app/key_users.h"
#include "app/tabs.h"
#include "app/task_bar_state.h"
#include "record/source_text.h"
#include "region/region_chooser.h"
#include "shell/mnemonics.h"
#include "shell/number_text.h"
#include "shell/palette_icon.h"
#include "shell/settings.h"
#include "shell/tab_view.h"
#include "ui_MainWindow.h"

#include <QActionGroup>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QTextDocument>

#include <iterator>

namespace {

/// The arrow beside a button opens the choices for it.
void showMenuBelow(QToolButton &arrow, QMenu &menu) {
    QObject::connect(&arrow, &QToolButton::clicked, &menu, [&arrow, &menu] {
        // It returns at once: assistive technology waits for the answer to its press.
        menu.popup(arrow.mapToGlobal(arrow.rect().bottomLeft()));
    });
}

/// As wide as with the longest delay beside the icon: nothing moves when one is chosen.
void reserveForDelay(QToolButton &button) {
    button.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button.setText(qtTrId("IDD_SECONDS").arg(*std::rbegin(offeredDelays)));
    button.setMinimumWidth(button.sizeHint().width());
}

QString captureModeText(const CaptureMode &mode) {
    const QRect &area = mode.area;
    if (!mode.monitor.isEmpty())
        return qtTrId("IDD_MODE_MONITOR").arg(mode.monitor).arg(area.width()).arg(area.height());
    if (mode.region)
        return qtTrId("IDD_MODE_REGION")
            .arg(area.width())
            .arg(area.height())
            .arg(area.x())
            .arg(area.y());
    if (!mode.userChooses)
        return qtTrId("IDD_MODE_FULL_SCREEN");
    return mode.chosen && !mode.size.isEmpty() ? chosenSourceText(*mode.chosen, mode.size)
                                               : QString();
}

} // namespace

Controls::Controls(AppDelegate &controller) : controller_(controller), ui_(*controller.ui) {
    ui_.viewRecordPreview->setRecorder(controller.recorder);
    ui_.viewCutPreview->setEditor(controller.trimEditor);
    ui_.viewCutRange->setEditor(controller.trimEditor, *ui_.viewCutPreview);
    QApplication::setWindowIcon(drawnIcon(QStringLiteral(":/icons/tovarel.svg")));
    listenToShell();
    listenToRecorder();
    listenToOthers();
    listenToCard();
}

void Controls::setUp() {
    makeMenus();
    commands_ = commandTable(controller_);
    ::setUp(commands_, this);
    reserveForDelay(*ui_.btnRecordRecord);
    offerStillLengths();
    new KeyUsers(*controller_.shell.window());
    const InterfaceStrings &texts = controller_.texts;
    nameControls(ui_, texts, controller_.shell.s_App_Name());
    showSource();
    for (const QString &label : {texts.s_IDD_RECORD(), texts.s_IDD_CUT(), texts.s_IDD_SAVE()})
        controller_.shell.tabviewMain()->addTab(label);
    // Chosen last: a letter depends on the texts around it.
    const QString taken = mnemonics::mark(*ui_.menubar, *ui_.tabBar, *ui_.tabStack,
                                          {ui_.btnSaveResult, ui_.btnSaveAgain});
    for (const QWidget *page : {ui_.pageRecord, ui_.pageCut, ui_.pageGIF})
        mnemonics::mark(*page, taken, {ui_.fileButtons, ui_.btnGIFExport, ui_.otherFormats});
}

void Controls::makeMenus() {
    Recorder *recorder = &controller_.recorder;
    auto *delays = new QActionGroup(ui_.submenuitemCountdown);
    for (const int seconds : offeredDelays) {
        QAction *item = ui_.submenuitemCountdown->addAction(
            seconds == 0 ? qtTrId("IDD_AT_ONCE") : qtTrId("IDD_AFTER_SECONDS", seconds));
        // Scripts without Latin letters take their mnemonic from it.
        item->setObjectName(QStringLiteral("menuitemAfter%1").arg(seconds));
        item->setCheckable(true);
        item->setData(seconds);
        delays->addAction(item);
        connect(item, &QAction::triggered, recorder, [this, recorder, seconds] {
            recorder->setDelay(seconds);
            showDelay();
        });
    }
    connect(ui_.submenuitemCountdown, &QMenu::aboutToShow, delays, [delays, recorder] {
        for (QAction *item : delays->actions())
            item->setChecked(item->data().toInt() == recorder->delay());
    });
    showMenuBelow(*ui_.btnRecordMenu, *ui_.submenuitemCountdown);
    showMenuBelow(*ui_.btnFullScreenMenu, *ui_.submenuitemMonitors);
    connect(ui_.submenuitemMonitors, &QMenu::aboutToShow, this, &Controls::fillMonitors);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &Controls::showMonitors);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &Controls::showMonitors);
    showMonitors();
    auto *escape = new QShortcut(Qt::Key_Escape, controller_.shell.window());
    connect(escape, &QShortcut::activated, recorder, &Recorder::cancelCountdown);
    const auto listen = [escape](int seconds) { escape->setEnabled(seconds > 0); };
    connect(recorder, &Recorder::countdownChanged, escape, listen);
    listen(0);
}

void Controls::showMonitors() {
    // Where the desktop asks, it offers them itself.
    const bool several = QGuiApplication::screens().size() > 1 &&
                         !controller_.recorder.source().capabilities().asksUser;
    ui_.btnFullScreenMenu->setVisible(several);
    ui_.submenuitemMonitors->menuAction()->setVisible(several);
}

void Controls::fillMonitors() {
    QMenu &menu = *ui_.submenuitemMonitors;
    menu.clear();
    RegionChooser *chooser = &controller_.regionChooser;
    const auto add = [&menu, chooser](const QString &text, const QString &name) {
        QAction *item = menu.addAction(text);
        item->setCheckable(true);
        item->setChecked(!chooser->isRegionRecorded() && chooser->monitor() == name);
        connect(item, &QAction::triggered, chooser,
                [chooser, name] { chooser->recordMonitor(name); });
    };
    add(qtTrId("IDD_ALL_MONITORS"), {});
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QSize pixels = (QSizeF(screen->size()) * screen->devicePixelRatio()).toSize();
        add(qtTrId("IDD_MODE_MONITOR").arg(screen->name()).arg(pixels.width()).arg(pixels.height()),
            screen->name());
    }
}

void Controls::offerStillLengths() {
    auto *menu = new QMenu(ui_.btnCutStill);
    auto *lengths = new QActionGroup(menu);
    TrimEditor &editor = controller_.trimEditor;
    for (const double seconds : TrimEditor::stillLengths) {
        QAction *item =
            menu->addAction(qtTrId("IDD_STILL_LENGTH").arg(number_text::decimal(seconds, 1)));
        item->setCheckable(true);
        item->setChecked(seconds == editor.stillLength());
        lengths->addAction(item);
        connect(item, &QAction::triggered, this, [&editor, seconds] {
            editor.setStillLength(seconds);
            editor.shortenStills();
        });
    }
    ui_.btnCutStill->setMenu(menu);
}

void Controls::refresh() {
    ::refresh(commands_);
    showDelay();
}

void Controls::showDelay() {
    const int seconds = controller_.recorder.delay();
    const bool waits = seconds > 0;
    ui_.btnRecordRecord->setText(waits ? qtTrId("IDD_SECONDS").arg(seconds) : QString());
    ui_.btnRecordRecord->setToolButtonStyle(waits ? Qt::ToolButtonTextBesideIcon
                                                  : Qt::ToolButtonIconOnly);
    const QString name =
        waits ? qtTrId("IDD_RECORD_AFTER", seconds) : controller_.texts.s_IDD_RECORD();
    const QKeySequence key = ui_.menuitemActionRecordRecord->shortcut();
    ui_.btnRecordRecord->setToolTip(
        qtTrId("IDD_TIP_SHORTCUT").arg(name, key.toString(QKeySequence::NativeText)));
}

void Controls::listenToShell() {
    Surroundings &surroundings = controller_.surroundings;
    connect(&surroundings, &Surroundings::statusChanged, this, [this](const QString &text) {
        status_ = text;
        showStatus();
    });
    connect(&surroundings, &Surroundings::hintChanged, this, [this](const QString &text) {
        hint_ = text;
        showStatus();
    });
    connect(ui_.tabStack, &QStackedWidget::currentChanged, this, &Controls::showStatus);
    surroundings.progress.hangFrom(*ui_.tabBar);
    connect(&surroundings.progress, &ProgressSheet::parentCloseRequested, &controller_,
            &AppDelegate::windowWillClose);
    connect(&surroundings.progress, &ProgressSheet::cancelled, &controller_.exporter,
            &Exporter::cancelExport);
}

void Controls::listenToRecorder() {
    const Recorder &recorder = controller_.recorder;
    connect(&recorder, &Recorder::stateChanged, this, &Controls::showState);
    connect(&recorder, &Recorder::captureModeChanged, this, &Controls::showCaptureMode);
    connect(&recorder, &Recorder::sourceChanged, this, &Controls::showSource);
    connect(&recorder, &Recorder::recordingReady, this, &Controls::showRecording);
    connect(&recorder, &Recorder::countdownChanged, this, [this, &recorder](int seconds) {
        ui_.viewRecordPreview->showNumber(seconds);
        showStateInTaskBar(controller_.shell, recorder.recording.m_RecordStatus(), seconds);
    });
}

void Controls::listenToOthers() {
    connect(&controller_.trimEditor, &TrimEditor::stateChanged, this, &Controls::showPlayback);
    connect(&controller_.regionChooser, &RegionChooser::offerChanged, this, [this] {
        const bool isOffered = controller_.regionChooser.offersRegion();
        ui_.btnMoveRegion->setVisible(isOffered);
        // That it does not fit is said no longer, whatever is recorded instead.
        if (!isOffered)
            controller_.surroundings.showStatus({});
    });
    connect(&controller_.trimEditor, &TrimEditor::rangeTextChanged, ui_.labelCutRange,
            &QLabel::setText);
    connect(&controller_.trimEditor, &TrimEditor::timeTextChanged, ui_.labelCutTime,
            &QLabel::setText);
    connect(controller_.exportOptions.get(), &ExportOptions::entered, this, &Controls::refresh);
}

void Controls::showPlayback() {
    const QWidget *focused = QApplication::focusWidget();
    const bool isPressed = focused && (focused == ui_.btnCutPlay || focused == ui_.btnCutPause ||
                                       focused == ui_.btnCutStop);
    refresh();
    // A button that is disabled passes the focus on to the next one, which does something else.
    if (isPressed && !focused->isEnabled())
        (ui_.btnCutPause->isEnabled() ? ui_.btnCutPause : ui_.btnCutPlay)->setFocus();
}

void Controls::listenToCard() {
    FileCard *card = controller_.fileCard.get();
    connect(controller_.exportOptions.get(), &ExportOptions::edited, card, &FileCard::compare);
    connect(card, &FileCard::changed, this, [this] {
        refresh();
        showWaysToLastFile();
    });
    connect(&controller_.exporter, &Exporter::copyWanted, card, &FileCard::copy);
    connect(ui_.tabStack, &QStackedWidget::currentChanged, this, &Controls::showWaysToLastFile);
    ui_.menuitemSaveWithoutAsking->setChecked(settings::readSaveWithoutAsking());
    auto *menu = new QMenu(ui_.btnGenerateMenu);
    menu->addAction(ui_.menuitemGenerateAndCopy);
    menu->addSeparator();
    menu->addAction(ui_.menuitemSaveWithoutAsking);
    showMenuBelow(*ui_.btnGenerateMenu, *menu);
}

void Controls::showWaysToLastFile() {
    const bool onCard =
        controller_.fileCard->showsFile() && ui_.tabStack->currentWidget() == ui_.pageGIF;
    const bool unsaved = controller_.exporter.hasUnsavedResult();
    ui_.btnSaveResult->setVisible(unsaved && !onCard);
    // One that is just being made comes onto the card.
    const bool isMade = controller_.exporter.exporting.exportRuns();
    ui_.btnLastFile->setVisible(controller_.fileCard->hasFile() && !unsaved && !onCard && !isMade);
}

void Controls::showState() {
    const RecordStatus status = controller_.recording.m_RecordStatus();
    ui_.recordingIndicator->setState(status);
    showStateInTaskBar(controller_.shell, status, controller_.recorder.secondsToGo());
    // Figures: the first ones matter most, and half a one says something wrong.
    ui_.labelStatus->setLeavesPartsOut(status != RECORD_STATUS_STOP);
    ui_.btnSaveAgain->setVisible(controller_.recorder.hasMissingFrames());
    showStatus();
    refresh();
}

void Controls::showStatus() {
    QStringList parts;
    const bool isReady = ui_.tabStack->currentWidget() == ui_.pageRecord &&
                         controller_.recording.m_RecordStatus() == RECORD_STATUS_STOP &&
                         !controller_.recorder.isCountingDown();
    if (!status_.isEmpty())
        parts << status_;
    // Behind what is news; the switch itself stays pressed.
    if (controller_.recorder.hands.areKeysShown())
        parts << qtTrId("IDD_KEYS_SHOWN");
    if (parts.isEmpty() && isReady && !hint_.isEmpty())
        parts << hint_;
    const QString text = parts.join(QStringLiteral(" · "));
    ui_.labelStatus->setText(text);
    // A path may look like markup, which a tip would follow; the label itself is set to plain text.
    ui_.labelStatus->setToolTip(text.isEmpty() ? text : Qt::convertFromPlainText(text));
}

void Controls::showSource() {
    const ScreenSource &source = controller_.recorder.source();
    const SourceState state = source.state();
    const bool isOpen = controller_.recorder.isSourceOpen();
    ui_.viewRecordPreview->showReason(sourceStateText(source));
    ui_.btnChooseSource->setVisible(!isOpen && state != SourceState::Asking && !source.obstacle());
    ui_.btnChooseAnotherSource->setVisible(isOpen && source.capabilities().asksUser);
}

void Controls::showCaptureMode(const CaptureMode &mode) {
    ui_.labelCaptureMode->setText(captureModeText(mode));
    ui_.labelCaptureRate->setText(qtTrId("IDD_CAPTURE_RATE").arg(mode.rate));
}

void Controls::showRecording() {
    TabView &tabs = *controller_.shell.tabviewMain();
    if (tabs.selectedIndex() == tabs::cut)
        controller_.tabViewDidSelectTabViewItem(TabView::identifierOf(tabs::cut));
    else
        tabs.selectTabViewItemAtIndex(tabs::cut);
    // The next step; the button that had the keys cannot be used any more.
    ui_.btnCutPlay->setFocus();
}

FileCardControls fileCardControls(const Ui::MainWindow &ui) {
    return {.viewFilePicture = ui.viewFilePicture,
            .cardStack = ui.cardStack,
            .labelFileName = ui.labelFileName,
            .labelFileFigures = ui.labelFileFigures,
            .labelFileDrag = ui.labelFileDrag,
            .fileButtons = ui.fileButtons,
            .btnFileCopy = ui.btnFileCopy,
            .btnFileSave = ui.btnFileSave,
            .btnGIFExport = ui.btnGIFExport};
}

ExportControls exportControls(const Ui::MainWindow &ui) {
    return {.pageGIF = ui.pageGIF,
            .gifOptions = ui.gifOptions,
            .customSizeRow = ui.customSizeRow,
            .customRateRow = ui.customRateRow,
            .radioGIFOriginalDimension = ui.radioGIFOriginalDimension,
            .radioGIFCustomDimension = ui.radioGIFCustomDimension,
            .textGIFWidth = ui.textGIFWidth,
            .textGIFHeigth = ui.textGIFHeigth,
            .labelTimes = ui.labelTimes,
            .checkGIFKeepAspectRatio = ui.checkGIFKeepAspectRatio,
            .labelDimensionHint = ui.labelDimensionHint,
            .radioGIFOriginalFPS = ui.radioGIFOriginalFPS,
            .radioGIFCustomFPS = ui.radioGIFCustomFPS,
            .comboGIFFPS = ui.comboGIFFPS,
            .labelSpeed = ui.labelSpeed,
            .comboGIFSpeed = ui.comboGIFSpeed,
            .labelQuality = ui.labelQuality,
            .comboGIFQuality = ui.comboGIFQuality,
            .labelFitUnder = ui.labelFitUnder,
            .comboFitUnder = ui.comboFitUnder,
            .labelFitUnderHint = ui.labelFitUnderHint,
            .btnGIFSize75 = ui.btnGIFSize75,
            .btnGIFSize50 = ui.btnGIFSize50,
            .labelGIFEstimate = ui.labelGIFEstimate,
            .labelGIFSummary = ui.labelGIFSummary,
            .labelGIFThinned = ui.labelGIFThinned,
            .labelFitNote = ui.labelFitNote,
            .labelInstructions = ui.labelInstructions,
            .btnWebPGenerate = ui.btnWebPGenerate,
            .labelFPS = ui.labelFPS,
            .labelNote = ui.labelNote,
            .labelWebPLoops = ui.labelWebPLoops,
            .comboGIFRepeat = ui.comboGIFRepeat,
            .txtWebPLoops = ui.txtWebPLoops,
            .labelWebPLoopsHint = ui.labelWebPLoopsHint,
            .labelHold = ui.labelHold,
            .comboGIFHold = ui.comboGIFHold,
            .menuitemActionGIFExport = ui.menuitemActionGIFExport};
}
