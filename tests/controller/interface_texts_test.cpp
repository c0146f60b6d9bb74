// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/window_fps.h"
#include "region/window_region_how_it_works.h"
#include "tests/controller/controller_fixture.h"

#include <QAction>
#include <QComboBox>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTabBar>
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
        "«[A-Z0-9_]+»|Tovarel|Error|Success|Close|No Video|GIF|WebP|×|MIT|ffmpeg|img2webp"
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

TEST(InterfaceTextsRule, whatIsNotFromTheTableIsFound) {
    EXPECT_EQ(foreign(QStringLiteral("«IDD_FPS»: 12 Tovarel /usr/bin/ffmpeg")), QString());
    EXPECT_EQ(foreign(QStringLiteral("«IDD_FPS» frames")), QStringLiteral("frames"));
    EXPECT_EQ(foreign(QStringLiteral("写真")), QStringLiteral("写真"));
}

} // namespace
