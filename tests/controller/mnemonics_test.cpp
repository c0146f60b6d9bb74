// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/mnemonics.h"

#include "record/window_fps.h"
#include "region/window_region_how_it_works.h"
#include "tests/controller/controller_fixture.h"

#include <QTranslator>

#include <algorithm>

namespace {

using mnemonics::marked;

TEST(Mnemonics, aWordsInitialIsPreferredAndEveryoneIsServed) {
    const struct {
        std::vector<std::pair<const char *, const char *>> bearers;
        const char *taken;
        std::vector<const char *> expected;
    } cases[] = {
        {{{"Record", ""}, {"Region", ""}, {"Full Screen", ""}},
         "",
         {"&Record", "R&egion", "&Full Screen"}},
        {{{"Keep aspect ratio", ""}, {"Keep", ""}}, "K", {"Keep &aspect ratio", "K&eep"}},
        // The first gives way, because the second has no other letter.
        {{{"Ab", ""}, {"A", ""}}, "", {"A&b", "&A"}},
        {{{"A", ""}, {"A", ""}}, "", {"&A", "A"}},
        {{{"Été", ""}, {"Äü", ""}}, "", {"É&té", "Äü"}},
        {{{"録画", "ActionRecordFPS"}, {"GIF を作成", "GIFExport"}},
         "E",
         {"録画(&F)", "GIF を作成(&G)"}},
        {{{"R & B", ""}}, "R", {"R && &B"}},
    };
    for (const auto &each : cases) {
        std::vector<mnemonics::Bearer> bearers;
        for (const auto &[text, latinName] : each.bearers)
            bearers.push_back({QString::fromUtf8(text), QLatin1String(latinName)});
        const std::vector<QString> texts = marked(bearers, QLatin1String(each.taken));
        ASSERT_EQ(texts.size(), each.expected.size());
        for (std::size_t at = 0; at < texts.size(); ++at)
            EXPECT_EQ(texts[at], QString::fromUtf8(each.expected[at]));
    }
}

/// Notes the letters of one group, each of which has to have one that nobody else there has.
class Letters {
public:
    explicit Letters(QString where) : where_(std::move(where)) {}

    void add(const QString &text) {
        if (std::ranges::none_of(text, [](QChar each) { return each.isLetter(); }))
            return; // "75%": nothing to underline
        const QString letter = QKeySequence::mnemonic(text).toString();
        EXPECT_FALSE(letter.isEmpty()) << qPrintable(where_ + text);
        EXPECT_FALSE(seen_.contains(letter))
            << qPrintable(where_ + text + QStringLiteral(" and ") + seen_[letter]);
        seen_[letter] = text;
    }
    void addItems(const QList<QAction *> &items) {
        for (const QAction *item : items)
            if (!item->isSeparator())
                add(item->text());
    }
    void addControls(const QWidget &page, std::initializer_list<const QWidget *> without = {}) {
        for (const auto *button : page.findChildren<QAbstractButton *>())
            if (!button->text().isEmpty() &&
                std::ranges::none_of(without, [button](const QWidget *part) {
                    return part == button || part->isAncestorOf(button);
                }))
                add(button->text());
        for (const auto *label : page.findChildren<QLabel *>())
            if (label->buddy())
                add(label->text());
    }
    qsizetype count() const { return seen_.size(); }

private:
    QString where_;
    QMap<QString, QString> seen_;
};

TEST(Mnemonics, differWithinEveryGroupInEveryLanguage) {
    TestController::installTexts();
    for (QString language : strings_table::available()) {
        QTranslator table;
        ASSERT_TRUE(table.load(QStringLiteral(":/strings/tovarel_%1.qm")
                                   .arg(language.replace(QLatin1Char('-'), QLatin1Char('_')))));
        QCoreApplication::installTranslator(&table);
        TestController controller;
        const Ui::MainWindow &ui = controller.ui();
        const QString where = language + QStringLiteral(": ");
        for (const QMenu *menu : ui.menubar->findChildren<QMenu *>())
            Letters(where).addItems(menu->actions());
        Letters always(where);
        always.addItems(ui.menubar->actions());
        for (int tab = 0; tab < ui.tabBar->count(); ++tab)
            always.add(ui.tabBar->tabText(tab));
        always.add(ui.btnSaveAgain->text());
        always.add(ui.btnSaveResult->text());
        for (const QWidget *page : {ui.pageRecord, ui.pageCut, ui.pageGIF}) {
            Letters letters = always;
            letters.addControls(*page, {ui.fileButtons, ui.btnGIFExport, ui.otherFormats});
            if (page == ui.pageGIF) {
                EXPECT_GE(letters.count(), 18);
            }
        }
        Letters(where).addControls(Window_FPS(controller.window(), controller.delegate->recorder));
        Letters(where).addControls(
            Window_Region_How_It_Works(controller.window(), controller.delegate->region));
        QCoreApplication::removeTranslator(&table);
    }
}

} // namespace
