// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/strings_table.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace strings_table {

namespace {

const QString tablesFolder = QStringLiteral(":/strings");
const QString fallback = QStringLiteral("en");

QString language(const QString &tag) { return tag.section(QLatin1Char('-'), 0, 0); }

/// Chinese is two written languages: a preference decides by its script, and a territory implies
/// the script that is written there.
bool sameWriting(const QString &preferred, const QString &table) {
    return QLocale(preferred).script() == QLocale(table).script();
}

} // namespace

QStringList available() {
    QStringList tags;
    const QStringList files =
        QDir(tablesFolder).entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        tags << QFileInfo(file)
                    .completeBaseName()
                    .section(QLatin1Char('_'), 1)
                    .replace(QLatin1Char('_'), QLatin1Char('-'));
    return tags;
}

QString bestMatch(const QStringList &preferred, const QStringList &tables) {
    for (const QString &wish : preferred) {
        if (tables.contains(wish))
            return wish;
        for (const QString &table : tables)
            if (language(table) == language(wish) && sameWriting(wish, table))
                return table;
    }
    return fallback;
}

QString chosen() { return bestMatch(QLocale().uiLanguages(), available()); }

void install() {
    // Never removed: the texts serve until the process ends.
    auto *translator = new QTranslator(QCoreApplication::instance());
    QString file = chosen();
    file.replace(QLatin1Char('-'), QLatin1Char('_'));
    if (translator->load(QStringLiteral("tovarel_%1.qm").arg(file), tablesFolder))
        QCoreApplication::installTranslator(translator);

    // Qt's own texts (the file dialog's), in the same language or not at all. They are looked up by
    // context, so they can never stand in for a key that our table lacks.
    auto *qtTranslator = new QTranslator(QCoreApplication::instance());
    if (qtTranslator->load(QStringLiteral("qtbase_%1").arg(file),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qtTranslator);
}

} // namespace strings_table
