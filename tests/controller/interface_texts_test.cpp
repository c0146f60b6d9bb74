// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/fit_limit.h"
#include "record/window_fps.h"
#include "region/window_region_how_it_works.h"
#include "shell/number_text.h"
#include "shell/window_progress.h"
#include "tests/controller/controller_fixture.h"

#include <QAction>
#include <QComboBox>
#include <QFontInfo>
#include <QGroupBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QTranslator>

namespace {

/// A strings table in which every text is its key between marks.
class MarkedTable : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override {
        // Only texts by key: they have no context. The others are Qt's own.
        return context && *context ? QString() : QStringLiteral("«%1»").arg(QLatin1String(source));
    }
};

/// What is left of a text without the parts that come from the table or are fixed in every
/// language.
QString foreign(QString text) {
    static const QRegularExpression fixed(QStringLiteral(
        "«[A-Z0-9_]+»|Tovarel|Error|Success|Close|No Video|GIF|WebP|MP4|×|MIT|ffmpeg|img2webp"
        "|(/[\\w.-]+)+"));
    static const QRegularExpression letters(QStringLiteral("\\p{L}+"));
    const QRegularExpressionMatch rest = letters.match(text.remove(QLatin1Char('&')).remove(fixed));
    return rest.captured();
}

/// Makes that table the one that counts, before there is a delegate->
struct WithMarkedTable {
    WithMarkedTable() {
        TestController::installTexts();
        QCoreApplication::installTranslator(&table);
    }
    ~WithMarkedTable() { QCoreApplication::removeTranslator(&table); }
    MarkedTable table;
};

class InterfaceTexts : WithMarkedTable, public ControllerFixture {
protected:
    InterfaceTexts() : ControllerFixture(Obstacle::NoDisplay) {}

    void check(const QObject &owner, const char *what, const QString &text) {
        if (text.isEmpty())
            return;
        ++seen;
        EXPECT_EQ(foreign(text), QString())
            << qPrintable(owner.objectName()) << ' ' << what << ": " << qPrintable(text);
    }

    /// Every text that `root` and what is in it shows, or says to assistive technology.
    void checkAll(const QObject &root) {
        QList<const QObject *> all = {&root};
        for (const QObject *inside : root.findChildren<QObject *>())
            all << inside;
        for (const QObject *each : all) {
            // The buttons that scroll a crowded tab bar are Qt's own.
            if (qobject_cast<const QTabBar *>(each->parent()))
                continue;
            for (const char *property :
                 {"title", "windowTitle", "toolTip", "statusTip", "whatsThis", "placeholderText",
                  "accessibleName", "accessibleDescription", "informativeText"})
                check(*each, property, each->property(property).toString());
            // A line edit's text is the user's.
            if (!each->inherits("QLineEdit") && !each->inherits("QComboBox"))
                check(*each, "text", each->property("text").toString());
            if (const auto *list = qobject_cast<const QComboBox *>(each))
                for (int item = 0; item < list->count(); ++item)
                    check(*each, "item", list->itemText(item));
            if (const auto *bar = qobject_cast<const QTabBar *>(each))
                for (int tab = 0; tab < bar->count(); ++tab)
                    check(*each, "tab", bar->tabText(tab));
        }
    }

    /// Runs `command`, which shows a dialog, checks the dialog and ends it.
    template <typename Command> void checkDialog(Command command) {
        bool shown = false;
        QTimer::singleShot(0, [this, &shown] {
            QWidget *dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            shown = true;
            checkAll(*dialog);
            dialog->close();
        });
        command();
        EXPECT_TRUE(shown);
    }

    int seen = 0;
};

TEST_F(InterfaceTexts, allComeFromTheTable) {
    checkAll(*window());
    EXPECT_GT(seen, 100);
    for (int tab = 0; tab < ui().tabBar->count(); ++tab) {
        ui().tabBar->setCurrentIndex(tab);
        checkAll(*window());
    }
    const auto text = [](const QAction *item) { return item->text().remove(QLatin1Char('&')); };
    EXPECT_EQ(text(ui().menuitemAbout), QStringLiteral("«IDD_ABOUT» Tovarel"));
    EXPECT_EQ(text(ui().menuitemQuit), QStringLiteral("«IDD_QUIT» Tovarel"));
    EXPECT_EQ(text(ui().menuitemHelp), QStringLiteral("Tovarel «IDD_HELP»"));
}

TEST_F(InterfaceTexts, ofDialogsComeFromTheTable) {
    checkDialog([this] { delegate->OnMenuAbout(); });
    checkDialog([this] { delegate->surroundings.alerts.run(AlertKind::Error, {}); });
    checkAll(Window_Region_How_It_Works(window(), delegate->region));
    checkAll(Window_FPS(window(), delegate->recorder));
}

/// What a text needs against what its place has, on widgets as they are laid out.
class Places {
public:
    explicit Places(QString where) : where_(std::move(where)) {}

    /// Everything that `root` shows now.
    void check(QWidget &root) {
        for (const QWidget *each : root.findChildren<QWidget *>()) {
            if (!each->isVisibleTo(&root))
                continue;
            if (const auto *label = qobject_cast<const QLabel *>(each))
                checkLabel(*label);
            else if (const auto *button = qobject_cast<const QAbstractButton *>(each))
                checkWidth(*each, button->text(), button->sizeHint().width());
            else if (const auto *list = qobject_cast<const QComboBox *>(each))
                checkList(*list);
            else if (const auto *group = qobject_cast<const QGroupBox *>(each))
                checkWidth(*each, group->title(), widthOf(*group, group->title()));
            else if (const auto *progress = qobject_cast<const QProgressBar *>(each))
                checkWidth(*each, progress->text(), widthOf(*each, progress->text()));
            else if (const auto *bar = qobject_cast<const QTabBar *>(each))
                checkWidth(*each, bar->tabText(0), bar->sizeHint().width());
            else if (const auto *area = qobject_cast<const QScrollArea *>(each))
                checkWidth(*area->viewport(), area->objectName(),
                           area->widget()->minimumSizeHint().width());
        }
    }

    void checkLabel(const QLabel &label) {
        if (!label.wordWrap()) {
            checkWidth(label, label.text(), label.sizeHint().width());
            return;
        }
        checkWidth(label, label.text(), label.minimumSizeHint().width());
        if (!label.text().isEmpty()) {
            EXPECT_LE(label.heightForWidth(label.width()), label.height()) << said(label.text());
        }
    }

    qsizetype seen = 0;

private:
    static int widthOf(const QWidget &widget, const QString &text) {
        return widget.fontMetrics().horizontalAdvance(text);
    }
    std::string said(const QString &text) const { return (where_ + text).toStdString(); }

    void checkWidth(const QWidget &widget, const QString &text, int needed) {
        if (text.isEmpty())
            return;
        ++seen;
        EXPECT_LE(needed, widget.width()) << said(text);
    }

    void checkList(const QComboBox &list) {
        QStyleOptionComboBox option;
        option.initFrom(&list);
        option.editable = list.isEditable();
        const int room =
            list.style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list)
                .width();
        for (int item = 0; item < list.count(); ++item)
            EXPECT_LE(widthOf(list, list.itemText(item)), room) << said(list.itemText(item));
    }

    QString where_;
};

/// What a desktop gives to programs.
struct DesktopFont {
    const char *family;
    double points;
};

void PrintTo(const DesktopFont &font, std::ostream *out) {
    *out << font.family << ' ' << font.points;
}

/// A language's table, and a font that has its letters, for as long as this lives.
struct InLanguage {
    InLanguage(QString language, const DesktopFont &desktop) {
        TestController::installTexts();
        EXPECT_TRUE(table.load(QStringLiteral(":/strings/tovarel_%1.qm")
                                   .arg(language.replace(QLatin1Char('-'), QLatin1Char('_')))));
        QCoreApplication::installTranslator(&table);
        QLocale::setDefault(QLocale(language));
        QFont font(language == QLatin1String("ja")      ? QStringLiteral("Noto Sans CJK JP")
                   : language == QLatin1String("zh_CN") ? QStringLiteral("Noto Sans CJK SC")
                                                        : QLatin1String(desktop.family));
        font.setPointSizeF(desktop.points);
        EXPECT_EQ(QFontInfo(font).family(), font.family()) << "the font is not installed";
        QApplication::setFont(font);
    }
    ~InLanguage() {
        QCoreApplication::removeTranslator(&table);
        QLocale::setDefault(QLocale(QStringLiteral("en_US")));
        QApplication::setFont(before);
    }
    QFont before = QApplication::font();
    QTranslator table;
};

/// The longest texts that usual work brings, with usual figures.
void fillIn(const Ui::MainWindow &ui) {
    using namespace number_text;
    ui.labelCaptureMode->setText(qtTrId("IDD_MODE_REGION").arg(1920).arg(1080).arg(1234).arg(567));
    ui.labelCutRange->setText(
        qtTrId("IDD_CUT_KEPT", 12345).arg(decimal(123.4), decimal(1234.5), count(1234)));
    ui.labelCutTime->setText(time(754.3));
    const QString summary = qtTrId("IDD_GIF_SUMMARY", 1234).arg(decimal(123.4), rate(12.4));
    ui.labelGIFSummary->setText(qtTrId("IDD_GIF_WEBP_SUMMARY").arg(summary, summary));
    ui.labelGIFThinned->setText(qtTrId("IDD_GIF_THINNED"));
    ui.labelInstructions->hide();
    ui.labelFitNote->show();
    ui.labelWebPLoopsHint->setText(qtTrId("IDD_LOOPS_RANGE").arg(count(65535)));
    ui.labelWebPLoopsHint->show();
    ui.labelGIFEstimate->setText(qtTrId("IDD_ABOUT_SIZE").arg(bytes(123'400'000)));
}

/// What the status line says while and after a recording, in the window's first width. A path does
/// not fit: it is cut, and whole in the tip.
void checkStatusLine(const Ui::MainWindow &ui, Places &places) {
    using namespace number_text;
    const QString figures =
        qtTrId("IDD_RECORDING_FIGURES").arg(QStringLiteral("12:34"), count(12345), rate(59.9));
    const QString memory =
        qtTrId("IDD_RECORDING_MEMORY_LASTS").arg(bytes(123'400'000), QStringLiteral("12"));
    const QString keys =
        qtTrId("IDD_KEYS_GRANTED")
            .arg(QStringLiteral("Super+Ctrl"),
                 QStringLiteral("E %1 · P %2 · S %3")
                     .arg(qtTrId("IDD_RECORD"), qtTrId("IDD_PAUSE"), qtTrId("IDD_STOP")));
    const struct {
        RecordStatus state;
        QString text;
        QPushButton *button;
    } cases[] = {
        {RECORD_STATUS_RECORD, figures + QStringLiteral(" · ") + memory, nullptr},
        {RECORD_STATUS_PAUSE, qtTrId("IDD_PAUSED_FOR_MEMORY").arg(bytes(123'400'000)), nullptr},
        {RECORD_STATUS_STOP, qtTrId("IDD_RECORDING_SAVED").arg(count(12345), rate(59.9)), nullptr},
        {RECORD_STATUS_STOP,
         qtTrId("IDD_RECORDING_BEHIND").arg(count(12345), QStringLiteral("60"), rate(12.4)),
         nullptr},
        {RECORD_STATUS_STOP, qtTrId("IDD_STATUS_UNSAVED").arg(QStringLiteral("WebP")),
         ui.btnSaveResult},
        {RECORD_STATUS_STOP, qtTrId("IDD_NOTHING_RECORDED"), nullptr},
        {RECORD_STATUS_STOP, qtTrId("IDD_EXPORT_CANCELLED"), nullptr},
        {RECORD_STATUS_STOP, qtTrId("IDD_CLOSE_WAITS"), nullptr},
        {RECORD_STATUS_STOP, qtTrId("IDD_REGION_DOES_NOT_FIT"), ui.btnMoveRegion},
        {RECORD_STATUS_STOP,
         qtTrId("IDD_COUNTDOWN_RUNS_KEY").arg(QStringLiteral("Super+Control+S")), nullptr},
        {RECORD_STATUS_STOP, qtTrId("IDD_PREVIOUS_GONE"), nullptr},
        {RECORD_STATUS_STOP, qtTrId("IDD_STILL_NONE").arg(decimal(1.5, 2)), nullptr},
        {RECORD_STATUS_STOP,
         keys + QStringLiteral(" – ") + qtTrId("IDD_KEYS_TAKEN").arg(QLatin1Char('R')), nullptr},
        {RECORD_STATUS_STOP,
         qtTrId("IDD_KEYS_BOUND")
             .arg(QStringLiteral("Super+Ctrl+R %1 · F8 %2 · F9 %3")
                      .arg(qtTrId("IDD_RECORD"), qtTrId("IDD_PAUSE"), qtTrId("IDD_STOP"))),
         nullptr},
    };
    for (const auto &[state, text, button] : cases) {
        ui.recordingIndicator->setState(state);
        ui.labelStatus->setText(text);
        if (button)
            button->show();
        TestController::settle();
        places.checkLabel(*ui.labelStatus);
        if (button)
            button->hide();
    }
}

/// The same in the smallest window: what has no room is left out, never cut within.
void checkFiguresInNarrowWindow(TestController &controller) {
    controller.server->picture = plainImage({64, 48}, qRgb(10, 20, 30));
    controller.ui().btnRecordRecord->click();
    for (QToolButton *next : {controller.ui().btnRecordPause, controller.ui().btnRecordStop}) {
        TestController::settle();
        const ElidedLabel &status = *controller.ui().labelStatus;
        EXPECT_GT(status.text().size(), 20);
        EXPECT_FALSE(status.shownText().isEmpty());
        EXPECT_TRUE(status.text().startsWith(status.shownText()))
            << status.shownText().toStdString();
        EXPECT_LT(controller.window()->windowTitle().front(), u'\u2000')
            << "not every window manager draws such a title";
        next->click();
    }
}

/// What the sheet says while something is made.
void checkSheet(AppDelegate &controller, Places &places) {
    ProgressSheet &sheet = controller.surroundings.progress;
    for (const char *step :
         {"IDD_PROGRESS_PALETTE", "IDD_PROGRESS_SCALING", "IDD_PROGRESS_PICTURES"}) {
        sheet.show(qtTrId("IDD_SAVING_RECORDING"));
        sheet.offerCancel();
        sheet.setText(qtTrId(step));
        sheet.setCaption(qtTrId("IDD_PROGRESS_AGAIN").arg(6).arg(fitLimitText(2'500'000)));
        sheet.setValue(100);
        TestController::settle();
        places.check(*sheet.windowProgress());
        sheet.close();
    }
}

class InterfaceTextsFit : public testing::TestWithParam<DesktopFont> {};

TEST_P(InterfaceTextsFit, theirPlacesInEveryLanguage) {
    for (const QString &language : strings_table::available()) {
        const InLanguage in(language, GetParam());
        TestController controller;
        QMainWindow &window = *controller.window();
        const Ui::MainWindow &ui = controller.ui();
        Places places(language + QStringLiteral(": "));
        checkStatusLine(ui, places);
        ui.tabBar->setCurrentIndex(2);
        TestController::settle();
        EXPECT_EQ(ui.gifOptions->verticalScrollBar()->maximum(), 0)
            << language.toStdString() << ": all options are seen in a window of the first size";
        const QSize smallest = window.minimumSize();
        const bool isUsual = GetParam().points <= 10;
        EXPECT_EQ(isUsual, smallest == AppDelegate::windowWillResizeToSize({0, 0}).toSize())
            << "larger letters make it larger, and nothing else does";
        window.resize(smallest);
        checkFiguresInNarrowWindow(controller);
        for (int tab = 0; tab < ui.tabBar->count(); ++tab) {
            ui.tabBar->setCurrentIndex(tab);
            TestController::settle();
            places.check(window);
            fillIn(ui);
            TestController::settle();
            places.check(window);
            EXPECT_EQ(window.size(), smallest) << language.toStdString();
        }
        // The card of the last tab once it is a file.
        ui.cardStack->setCurrentWidget(ui.cardFile);
        ui.labelFileFigures->setText(qtTrId("IDD_FILE_FIGURES")
                                         .arg(number_text::bytes(123'400'000),
                                              QStringLiteral("1920"), QStringLiteral("1080"),
                                              number_text::decimal(123.4)));
        ui.fileButtons->show();
        for (QWidget *other : {ui.btnFileCopy, ui.btnFileSave}) {
            ui.btnFileCopy->setVisible(other == ui.btnFileCopy);
            ui.btnFileSave->setVisible(other == ui.btnFileSave);
            ui.labelFileDrag->setText(other == ui.btnFileSave
                                          ? qtTrId("IDD_STATUS_FITTED")
                                                .arg(number_text::bytes(25'000'000),
                                                     QStringLiteral("1920"), QStringLiteral("1080"),
                                                     number_text::rate(12.4))
                                          : qtTrId("IDD_FILE_GONE"));
            TestController::settle();
            places.check(window);
        }
        EXPECT_EQ(window.size(), smallest) << language.toStdString();
        checkSheet(*controller.delegate, places);
        EXPECT_GT(places.seen, 50);
        for (QDialog *dialog :
             {static_cast<QDialog *>(new Window_FPS(&window, controller.delegate->recorder)),
              static_cast<QDialog *>(
                  new Window_Region_How_It_Works(&window, controller.delegate->region))}) {
            dialog->show();
            TestController::settle();
            places.check(*dialog);
            EXPECT_LT(dialog->windowTitle().front(), u'\u2000') << language.toStdString();
            EXPECT_EQ(dialog->size(), dialog->size().boundedTo({640, 480}))
                << language.toStdString();
            dialog->close();
        }
    }
}

// The widest of the usual desktops' fonts, and the tallest, which is GNOME's.
INSTANTIATE_TEST_SUITE_P(Fonts, InterfaceTextsFit,
                         testing::Values(DesktopFont{"DejaVu Sans", 10},
                                         DesktopFont{"Cantarell", 11}));

TEST(InterfaceTextsRule, whatIsNotFromTheTableIsFound) {
    EXPECT_EQ(foreign(QStringLiteral("«IDD_FPS»: 12 Tovarel /usr/bin/ffmpeg")), QString());
    EXPECT_EQ(foreign(QStringLiteral("«IDD_FPS» frames")), QStringLiteral("frames"));
    EXPECT_EQ(foreign(QStringLiteral("写真")), QStringLiteral("写真"));
}

} // namespace
