// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// Pictures of the window and its dialogs, side by side, for people to look at:
//   interface_sheets FOLDER [--font FAMILY POINTS] [LANGUAGE]...
// For each language, in light and in dark, and in high contrast for English: one sheet of the
// window's states in its smallest size, one in its first size, one of the dialogs. QT_SCALE_FACTOR
// makes them larger.
#include "app/about.h"
#include "record/window_fps.h"
#include "region/region_panel.h"
#include "region/window_region_how_it_works.h"
#include "scripts/sheets/scene.h"
#include "shell/edged_style.h"
#include "shell/strings_table.h"
#include "shell/tab_view.h"
#include "shell/window_progress.h"
#include "tests/controller/export_fixture.h"

#include <QDir>
#include <QLibraryInfo>
#include <QPainter>
#include <QStyle>
#include <QTest>
#include <QTranslator>

#include <cstdio>

namespace {

constexpr QSize recorded(1280, 800);
constexpr int recordedFrames = 40;
constexpr int gap = 12;         // points around each picture of a sheet
constexpr int caption = 18;     // points above it
constexpr int widest = 2210;    // points of a row
constexpr int firstWidth = 720; // points
constexpr QSize bigDialog(640, 480);

struct Chosen {
    QDir folder;
    QString family;
    double points = 10;
    QStringList languages;
};

const std::vector<Image> &recording() {
    static const std::vector<Image> made = [] {
        std::vector<Image> images;
        for (int frame = 0; frame < recordedFrames; ++frame)
            images.push_back(Image::fromQImage(scene(recorded, frame)));
        return images;
    }();
    return made;
}

enum class Look { Light, Dark, Contrast };
constexpr const char *lookNames[] = {"light", "dark", "contrast"};

QPalette palette(Look look) {
    if (look == Look::Light)
        return QApplication::style()->standardPalette();
    if (look == Look::Contrast) {
        QPalette shades(Qt::white, Qt::black, Qt::white, Qt::white, Qt::gray, Qt::white, Qt::white,
                        Qt::black, Qt::black);
        shades.setColor(QPalette::Highlight, Qt::yellow);
        shades.setColor(QPalette::HighlightedText, Qt::black);
        for (const auto text : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
            shades.setColor(QPalette::Disabled, text, QColor(130, 130, 130));
        return shades;
    }
    QPalette shades(QColor(49, 54, 59), QColor(42, 46, 50));
    shades.setColor(QPalette::Base, QColor(27, 30, 32));
    shades.setColor(QPalette::Highlight, QColor(61, 174, 233));
    return shades;
}

/// Pictures side by side, each with what it shows above it.
class Sheet {
public:
    void add(const QString &name, const QImage &picture) { pictures_.push_back({name, picture}); }
    void addWidget(const QString &name, QWidget &widget) {
        widget.show();
        TestController::settle();
        add(name, widget.grab().toImage());
    }

    void save(const QString &path) const {
        QList<QPoint> places;
        QPoint next(gap, gap);
        int bottom = 0, right = 0;
        for (const auto &[name, picture] : pictures_) {
            const QSize size = sizeOf(picture);
            if (next.x() > gap && next.x() + size.width() > widest)
                next = {gap, bottom};
            places << next;
            next.rx() += size.width() + gap;
            right = std::max(right, next.x());
            bottom = std::max(bottom, next.y() + caption + size.height() + gap);
        }
        const qreal ratio = pictures_.front().picture.devicePixelRatio();
        QImage sheet(QSize(right, bottom) * ratio, QImage::Format_RGB32);
        sheet.setDevicePixelRatio(ratio);
        sheet.fill(QColor(120, 90, 130));
        QPainter painter(&sheet);
        painter.setPen(Qt::white);
        for (qsizetype i = 0; i < places.size(); ++i) {
            const auto &[name, picture] = pictures_[std::size_t(i)];
            painter.drawText(places[i] + QPoint(0, caption - 5), name);
            painter.drawImage(places[i] + QPoint(0, caption), picture);
        }
        painter.end();
        if (!sheet.save(path))
            qFatal("%s cannot be written", qPrintable(path));
        std::puts(qPrintable(path));
    }

private:
    struct Picture {
        QString name;
        QImage picture;
    };
    static QSize sizeOf(const QImage &picture) { return picture.deviceIndependentSize().toSize(); }
    std::vector<Picture> pictures_;
};

/// The program in one look, worked through its own controls.
class Program : public ExportTest {
public:
    Program() {
        server->picture = Image::fromQImage(scene(recorded, 0));
        choose(GifPreset::Balanced);
    }
    void TestBody() override {}

    enum class Size { First, Smallest };

    Sheet states(Size size) {
        Sheet sheet;
        if (size == Size::Smallest)
            window()->resize(window()->minimumSize());
        window()->show();
        const auto add = [&](const char *name) { sheet.addWidget(QLatin1String(name), *window()); };
        enter(2);
        add("GIF, nothing recorded");
        enter(0);
        controller.TimerRefreshVideoRoutine();
        add("Record");
        controller.recorder.setDelay(3);
        ui.btnRecordRecord->click();
        add("Record, counting down");
        controller.recorder.cancelCountdown();
        controller.recorder.setDelay(0);
        ui.btnRecordRecord->click();
        for (int tick = 0; tick < 7; ++tick)
            controller.TimerRefreshVideoRoutine();
        controller.TimerDebug1SecondRoutine();
        add("Record, recording");
        ui.btnRecordPause->click();
        add("Record, paused");
        ui.btnRecordStop->click();
        if (!QTest::qWaitFor([this] { return !controller.recorder.isSavingRecording(); }))
            qFatal("the recording is not saved");
        haveFrames();
        enter(0);
        enter(1);
        QTest::qWait(600); // the strip's pictures
        add("Cut");
        controller.trim.setUFirstFrame(4);
        controller.trim.setULastFrame(34);
        window()->update();
        enter(2);
        QTest::qWait(1500); // the estimate
        add("GIF");
        answers.savePath = place("Tovarel 2026-11-25 14.03.21.gif");
        QFile::remove(answers.savePath);
        ui.btnGIFExport->click();
        if (!finish())
            qFatal("the export does not end");
        QTest::qWait(300);
        add("GIF, the file");
        QFile::remove(answers.savePath);
        QTest::qWait(300); // what watches it
        add("GIF, the file is gone");
        return sheet;
    }

    Sheet dialogs() {
        Sheet sheet;
        addDialog(sheet, "Frame rate", new Window_FPS(window(), controller.recorder));
        addDialog(sheet, "How to choose a region",
                  new Window_Region_How_It_Works(window(), controller.region));
        addModal(sheet, "About", [this] { controller.OnMenuAbout(); });
        addModal(sheet, "Error", [this] {
            controller.surroundings.alerts.run(AlertKind::Error, qtTrId("IDD_NOTHING_RECORDED"));
        });
        RegionPanel panel(nullptr, firstWidth);
        panel.showRegion({420, 208, 640, 480}, {});
        sheet.addWidget(QStringLiteral("Beside the region"), panel);
        RegionPanel narrow(nullptr, bigDialog.width() / 2);
        narrow.showRegion({420, 208, 640, 480}, {});
        sheet.addWidget(QStringLiteral("Beside the region, narrow"), narrow);
        ProgressSheet &progress = controller.surroundings.progress;
        progress.show(qtTrId("IDD_SAVING_RECORDING"));
        progress.offerCancel();
        progress.setValue(40);
        if (QWidget *shown = progress.windowProgress())
            sheet.addWidget(QStringLiteral("Progress"), *shown);
        progress.close();
        for (QMenu *menu : ui.menubar->findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly))
            sheet.addWidget(QStringLiteral("Menu"), *menu);
        return sheet;
    }

private:
    void enter(int tab) {
        controller.shell.tabviewMain()->selectTabViewItemAtIndex(tab);
        settle();
    }

    void haveFrames() {
        controller.recording.array_Images = recording();
        controller.recording.setU_Record_Current_Frame(recordedFrames);
        controller.recording.setExactRate(15);
        controller.trim.setULastFrame(recordedFrames - 1);
        if (!scene(recorded, 0).save(frameFile(0)))
            qFatal("a frame cannot be written");
    }

    void addDialog(Sheet &sheet, const char *name, QDialog *dialog) {
        sheet.addWidget(QLatin1String(name), *dialog);
        dialog->close();
    }

    template <typename Command> void addModal(Sheet &sheet, const char *name, Command command) {
        QTimer::singleShot(0, [&] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                sheet.addWidget(QLatin1String(name), *dialog);
                dialog->close();
            }
        });
        command();
    }
};

/// In the forms that the language writes, as a desktop of that language has them.
QFont fontFor(const Chosen &chosen, const QString &language) {
    static const QString usual = QApplication::font().family();
    QFont font(usual);
    if (!chosen.family.isEmpty())
        font.setFamily(chosen.family);
    else if (language == QLatin1String("ja"))
        font.setFamily(QStringLiteral("Noto Sans CJK JP"));
    else if (language == QLatin1String("zh-CN"))
        font.setFamily(QStringLiteral("Noto Sans CJK SC"));
    font.setPointSizeF(chosen.points);
    return font;
}

void makeSheets(const Chosen &chosen, const QString &language, Look look) {
    QTranslator table;
    if (!table.load(QStringLiteral(":/strings/tovarel_%1.qm")
                        .arg(QString(language).replace(QLatin1Char('-'), QLatin1Char('_')))))
        qFatal("there is no language %s", qPrintable(language));
    QCoreApplication::installTranslator(&table);
    QTranslator toolkit; // keys and the like
    if (toolkit.load(QStringLiteral("qtbase_") + QString(language).replace(u'-', u'_'),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkit);
    QApplication::setFont(fontFor(chosen, language));
    QLocale::setDefault(QLocale(language));
    QApplication::setPalette(palette(look));
    const auto path = [&](const char *what) {
        return chosen.folder.filePath(
            QStringLiteral("%1-%2-%3.png")
                .arg(language, QLatin1String(lookNames[int(look)]), QLatin1String(what)));
    };
    Program().states(Program::Size::Smallest).save(path("smallest"));
    Program().states(Program::Size::First).save(path("first"));
    Program().dialogs().save(path("dialogs"));
    QCoreApplication::removeTranslator(&toolkit);
    QCoreApplication::removeTranslator(&table);
}

Chosen read(QStringList arguments) {
    arguments.removeFirst();
    if (arguments.isEmpty())
        qFatal("interface_sheets FOLDER [--font FAMILY POINTS] [LANGUAGE]...");
    Chosen chosen;
    chosen.folder = QDir(arguments.takeFirst());
    if (arguments.size() >= 3 && arguments.first() == QLatin1String("--font")) {
        chosen.family = arguments[1];
        chosen.points = arguments[2].toDouble();
        arguments = arguments.mid(3);
    }
    chosen.languages = arguments.isEmpty() ? strings_table::available() : arguments;
    return chosen;
}

} // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    Application::setApplicationName(QStringLiteral("TovarelSheets"));
    Application::setOrganizationName(QStringLiteral("TovarelSheets"));
    Application::setApplicationVersion(QStringLiteral(TOVAREL_VERSION));
    EdgedStyle::replaceFusion();
    TestController::installTexts();
    const Chosen chosen = read(QCoreApplication::arguments());
    chosen.folder.mkpath(QStringLiteral("."));
    for (const QString &language : chosen.languages)
        for (const Look look : {Look::Light, Look::Dark, Look::Contrast})
            if (look != Look::Contrast || language == QLatin1String("en"))
                makeSheets(chosen, language, look);
    return 0;
}
