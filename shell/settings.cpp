// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/settings.h"

#include "platform/text_number.h"

#include <QSettings>

namespace settings {

namespace {

const QString howToKey = QStringLiteral("MACBrenmoor_Lumsey_b_Show_Select_Region_How_To");

const QString lastSaveFolderKey = QStringLiteral("LastSaveFolder");
const QString qualityKey = QStringLiteral("GIFQuality");
const QString showPointerKey = QStringLiteral("ShowPointer");
const QString withoutAskingKey = QStringLiteral("SaveWithoutAsking");
const QString showClicksKey = QStringLiteral("ShowClicks");
const QString restoreTokenKey = QStringLiteral("ScreenCastToken");
const QString steppingAsideKey = QStringLiteral("SteppingAsideExplained");

void sync(QSettings &store) {
    store.sync();
    if (store.status() != QSettings::NoError)
        qWarning("the settings file %s cannot be written", qUtf8Printable(store.fileName()));
}

void write(const QString &key, const QString &text) {
    QSettings store;
    if (store.value(key).toString() == text)
        return;
    store.setValue(key, text);
    sync(store);
}

bool readSwitch(const QString &key, bool otherwise) {
    const QString stored = QSettings().value(key).toString();
    return stored.isEmpty() ? otherwise : integerValue(stored) != 0;
}

void writeSwitch(const QString &key, bool on) { write(key, QString::number(on ? 1 : 0)); }

} // namespace

std::int64_t readShowSelectRegionHowTo() {
    const QString stored = QSettings().value(howToKey).toString();
    if (!stored.isEmpty())
        return integerValue(stored);
    writeShowSelectRegionHowTo(1);
    return 1;
}

void writeShowSelectRegionHowTo(std::int64_t flag) {
    QSettings store;
    store.setValue(howToKey, QString::number(flag));
    sync(store);
}

QString readLastSaveFolder() { return QSettings().value(lastSaveFolderKey).toString(); }

void writeLastSaveFolder(const QString &folder) { write(lastSaveFolderKey, folder); }

QString readGIFQuality() { return QSettings().value(qualityKey).toString(); }

void writeGIFQuality(const QString &word) { write(qualityKey, word); }

bool readShowPointer() { return readSwitch(showPointerKey, true); }

void writeShowPointer(bool shown) { writeSwitch(showPointerKey, shown); }

bool readSaveWithoutAsking() { return readSwitch(withoutAskingKey, false); }

void writeSaveWithoutAsking(bool without) { writeSwitch(withoutAskingKey, without); }

QString readChoice(const char *name) {
    return QSettings().value(QString::fromLatin1(name)).toString();
}

void writeChoice(const char *name, const QString &text) { write(QString::fromLatin1(name), text); }

bool readShowClicks() { return readSwitch(showClicksKey, false); }

void writeShowClicks(bool shown) { writeSwitch(showClicksKey, shown); }

QString readRestoreToken() { return QSettings().value(restoreTokenKey).toString(); }

void writeRestoreToken(const QString &token) { write(restoreTokenKey, token); }

bool readSteppingAsideExplained() { return readSwitch(steppingAsideKey, false); }

void writeSteppingAsideExplained() { writeSwitch(steppingAsideKey, true); }

void flush() {
    QSettings store;
    sync(store);
}

} // namespace settings
