// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/desktop_keys.h"

#include "app/tabs.h"
#include "platform/global_shortcuts.h"
#include "platform/key_names.h"
#include "platform/portal/portal_shortcuts.h"
#include "platform/screen_source.h"
#include "record/recorder.h"
#include "region/region_chooser.h"
#include "shell/settings.h"
#include "shell/surroundings.h"
#include "shell/tab_view.h"
#include "ui_MainWindow.h"

#include <QApplication>

#include <algorithm>
#include <optional>

namespace {

constexpr auto grantedChoice = "DesktopKeys"; // in the settings
const QString between = QStringLiteral(" · ");

/// "Super+Ctrl" as the user's keyboard has it.
QString modifiers() { return QStringLiteral("Super+%1").arg(controlKeyName()); }

constexpr std::size_t recordPlace = 0; // among the keys
constexpr std::size_t stopPlace = 2;

/// What all of them have in front of their last key: "Super+Ctrl"; empty if they differ in it.
QString commonModifiers(const QStringList &triggers) {
    const auto front = [](const QString &trigger) {
        return trigger.left(trigger.lastIndexOf(QLatin1Char('+')));
    };
    const QString common = triggers.isEmpty() ? QString() : front(triggers.first());
    const bool isCommon = std::ranges::all_of(triggers, [&](const QString &trigger) {
        return trigger.contains(QLatin1Char('+')) && front(trigger) == common;
    });
    return isCommon ? common : QString();
}

QString nameOf(char letter) { return QString(QChar::fromLatin1(letter).toUpper()); }

} // namespace

DesktopKeys::~DesktopKeys() = default;

DesktopKeys::DesktopKeys(const Ui::MainWindow &ui, Surroundings &surroundings, Recorder &recorder)
    : surroundings_(surroundings), recorder_(recorder) {
    const InterfaceStrings &texts = surroundings.texts;
    // No letter twice: the server grants a client what it has already.
    keys_ = {
        {QStringLiteral("record"), "recd", ui.menuitemActionRecordRecord, texts.s_IDD_RECORD()},
        {QStringLiteral("pause"), "pauw", ui.menuitemActionRecordPause, texts.s_IDD_PAUSE()},
        {QStringLiteral("stop"), "stox", ui.menuitemActionRecordStop, texts.s_IDD_STOP()},
    };
    // Where the desktop decides what is recorded, it also keeps the keys to itself.
    if (recorder.source().capabilities().asksUser)
        waitForSource();
    else
        grab();
}

/// What the user could press now in the window, and no more: not beneath a dialog, and no new
/// recording while the last one is being cut.
void DesktopKeys::press(std::size_t place) const {
    if (QApplication::activeModalWidget() || recorder_.chooser().region.pFullScreen())
        return;
    if (surroundings_.shell.tabviewMain()->selectedIndex() == tabs::record)
        keys_[place].item->trigger();
    else if (place == recordPlace)
        surroundings_.showStatus(qtTrId("IDD_KEY_ON_RECORD_TAB"));
}

// A window server's -------------------------------------------------------------------------------

void DesktopKeys::grab() {
    std::vector<std::string> letters;
    letters.reserve(keys_.size());
    for (const Key &key : keys_)
        letters.push_back(key.letters);
    grabs_ =
        std::make_unique<GlobalShortcuts>(letters, [this](std::size_t place) { press(place); });

    QStringList granted;
    QStringList taken;
    for (std::size_t place = 0; place < keys_.size(); ++place) {
        const std::optional<char> letter = grabs_->granted(place);
        const char preferred = keys_[place].letters.front();
        const QString wanted = nameOf(preferred);
        if (letter)
            granted << QStringLiteral("%1 %2").arg(nameOf(*letter), keys_[place].name);
        // Another letter does its work: then only the key is of interest.
        if (!letter)
            taken << QStringLiteral("%1 %2").arg(wanted, keys_[place].name);
        else if (*letter != preferred)
            taken << wanted;
    }
    QStringList sentences;
    if (!granted.isEmpty())
        sentences << qtTrId("IDD_KEYS_GRANTED").arg(modifiers(), granted.join(between));
    if (granted.isEmpty())
        for (QString &key : taken)
            key.prepend(modifiers() + QLatin1Char('+'));
    if (!taken.isEmpty())
        sentences << qtTrId("IDD_KEYS_TAKEN").arg(taken.join(between));
    surroundings_.showHint(sentences.join(QStringLiteral(" – ")));
    if (const std::optional<char> stop = grabs_->granted(stopPlace))
        recorder_.setStopKey(QStringLiteral("%1+%2").arg(modifiers(), nameOf(*stop)));
}

// A portal's --------------------------------------------------------------------------------------

void DesktopKeys::waitForSource() {
    std::vector<PortalShortcuts::Key> wanted;
    wanted.reserve(keys_.size());
    for (const Key &key : keys_)
        wanted.push_back({.id = key.id, .description = key.name, .letter = key.letters.front()});
    bound_ = std::make_unique<PortalShortcuts>(std::move(wanted));
    connect(bound_.get(), &PortalShortcuts::pressed, this, &DesktopKeys::press);
    connect(bound_.get(), &PortalShortcuts::grantedChanged, this, &DesktopKeys::showBound);
    connect(&recorder_, &Recorder::sourceChanged, this, &DesktopKeys::bindOnceOpen);
    connect(&recorder_, &Recorder::stateChanged, this, &DesktopKeys::bindOnceOpen);
}

/// The desktop may ask about them, but nothing asks before the user wants something; nor may a
/// dialog stand in the picture of a recording that is about to begin. What it has granted before it
/// grants in silence.
void DesktopKeys::bindOnceOpen() {
    const bool asksHardly = !settings::readChoice(grantedChoice).isEmpty();
    if (!recorder_.isSourceOpen() || !(asksHardly || recorder_.isAtRest()))
        return;
    disconnect(&recorder_, nullptr, this, nullptr);
    bound_->bind();
}

void DesktopKeys::showBound() const {
    QStringList triggers;
    for (const auto &trigger : bound_->granted())
        if (trigger)
            triggers << *trigger;
    settings::writeChoice(grantedChoice, triggers.isEmpty() ? QString() : QStringLiteral("portal"));
    if (triggers.isEmpty())
        return;
    recorder_.setStopKey(bound_->granted()[stopPlace].value_or(QString()));
    const QString common = commonModifiers(triggers);
    QStringList granted;
    for (std::size_t place = 0; place < keys_.size(); ++place)
        if (const auto &trigger = bound_->granted()[place]) {
            const QString key = common.isEmpty() ? *trigger : trigger->mid(common.size() + 1);
            granted << QStringLiteral("%1 %2").arg(key, keys_[place].name).trimmed();
        }
    const QString list = granted.join(between);
    surroundings_.showStatus(common.isEmpty() ? qtTrId("IDD_KEYS_BOUND").arg(list)
                                              : qtTrId("IDD_KEYS_GRANTED").arg(common, list));
}
