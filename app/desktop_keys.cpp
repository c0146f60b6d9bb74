// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/desktop_keys.h"

#include "app/tabs.h"
#include "platform/global_shortcuts.h"
#include "region/region_chooser.h"
#include "shell/surroundings.h"
#include "shell/tab_view.h"
#include "ui_MainWindow.h"

#include <QApplication>

#include <optional>
#include <string>
#include <vector>

namespace {

/// "Super+Ctrl" as the user's keyboard has it: the toolkit knows what the second key is called.
QString modifiers() {
    const QString one = QKeySequence(Qt::CTRL | Qt::Key_R).toString(QKeySequence::NativeText);
    return QStringLiteral("Super+%1").arg(one.section(QLatin1Char('+'), 0, 0));
}

QString nameOf(char letter) { return QString(QChar::fromLatin1(letter).toUpper()); }

} // namespace

DesktopKeys::~DesktopKeys() = default;

DesktopKeys::DesktopKeys(const Ui::MainWindow &ui, Surroundings &surroundings,
                         const RegionChooser &chooser) {
    const InterfaceStrings &texts = surroundings.texts;
    // No letter twice: the server grants a client what it has already.
    const struct {
        std::string letters;
        QAction *item;
        const QString &name;
    } keys[] = {
        {"recd", ui.menuitemActionRecordRecord, texts.s_IDD_RECORD()},
        {"pauw", ui.menuitemActionRecordPause, texts.s_IDD_PAUSE()},
        {"stox", ui.menuitemActionRecordStop, texts.s_IDD_STOP()},
    };
    std::vector<std::string> letters;
    std::vector<QAction *> items;
    for (const auto &key : keys) {
        letters.push_back(key.letters);
        items.push_back(key.item);
    }
    shortcuts_ = std::make_unique<GlobalShortcuts>(letters, [&surroundings, &chooser,
                                                             items](std::size_t place) {
        // What the user could press now in the window, and no more: not beneath a dialog, and no
        // new recording while the last one is being cut.
        const bool reachable = surroundings.shell.tabviewMain()->selectedIndex() == tabs::record &&
                               !QApplication::activeModalWidget() && !chooser.region.pFullScreen();
        if (reachable)
            items[place]->trigger();
    });

    QStringList granted;
    QStringList taken;
    for (std::size_t place = 0; place < std::size(keys); ++place) {
        const std::optional<char> letter = shortcuts_->granted(place);
        const QString wanted = nameOf(keys[place].letters.front());
        if (letter)
            granted << QStringLiteral("%1 %2").arg(nameOf(*letter), keys[place].name);
        // Another letter does its work: then only the key is of interest.
        if (!letter)
            taken << QStringLiteral("%1 %2").arg(wanted, keys[place].name);
        else if (*letter != keys[place].letters.front())
            taken << wanted;
    }
    const QString between = QStringLiteral(" · ");
    QStringList sentences;
    if (!granted.isEmpty())
        sentences << qtTrId("IDD_KEYS_GRANTED").arg(modifiers(), granted.join(between));
    if (!taken.isEmpty())
        sentences << qtTrId("IDD_KEYS_TAKEN").arg(modifiers(), taken.join(between));
    surroundings.showStatus(sentences.join(QStringLiteral(" – ")));
}
