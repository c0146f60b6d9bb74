// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/strings_table.h"

#include "shell/interface_strings.h"

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

const QStringList languages = {
    QStringLiteral("de"), QStringLiteral("en"),    QStringLiteral("es"),   QStringLiteral("fr"),
    QStringLiteral("ja"), QStringLiteral("pt-BR"), QStringLiteral("zh-CN")};

/// The forms of each text by its key: one, or those that the language has for numbers.
using Texts = QMap<QString, QStringList>;

/// The table of a language as it stands in the source. Empty when it is no table.
Texts read(QString language) {
    language.replace(QLatin1Char('-'), QLatin1Char('_'));
    QFile file(QStringLiteral(TOVAREL_SOURCE_DIR "/resources/strings/tovarel_%1.ts").arg(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    Texts texts;
    QString key;
    bool counts = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("message")) {
            key = xml.attributes().value(QLatin1String("id")).toString();
            counts = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
            EXPECT_FALSE(texts.contains(key)) << qPrintable(language + QLatin1Char(' ') + key);
        } else if (xml.name() == QLatin1String("translation")) {
            // An unfinished entry would show its source text instead.
            EXPECT_TRUE(xml.attributes().isEmpty())
                << qPrintable(language + QLatin1Char(' ') + key);
            while (counts && xml.readNextStartElement())
                texts[key] << xml.readElementText();
            if (!counts)
                texts[key] << xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return texts;
}

/// How many forms a language has for numbers.
qsizetype formsOf(const QString &language) {
    return language == QLatin1String("ja") || language == QLatin1String("zh-CN") ? 1 : 2;
}

QStringList matches(const QString &text, const char *pattern) {
    QStringList found;
    QRegularExpressionMatchIterator each =
        QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (each.hasNext())
        found << each.next().captured();
    found.sort();
    return found;
}

TEST(StringsTable, theLanguagesCompiledInAreTheSeven) {
    QStringList tables = strings_table::available();
    tables.sort();
    EXPECT_EQ(tables, languages);
}

TEST(StringsTable, theFirstPreferenceThatCanBeReadWins) {
    const struct {
        const char *preferred;
        const char *table;
    } cases[] = {{"de-AT,de", "de"},
                 {"en-AU,de-DE", "en"},
                 {"it-IT,fr-CH,en", "fr"},
                 {"es-419", "es"},
                 {"pt-BR", "pt-BR"},
                 {"pt-PT", "pt-BR"}, // nearer to its readers than English
                 {"ja-JP", "ja"},
                 {"zh-CN", "zh-CN"},
                 {"zh", "zh-CN"},
                 {"zh-Hans-SG", "zh-CN"},
                 // Another script: never given as if it were the same language.
                 {"zh-TW", "en"},
                 {"zh-Hant-HK", "en"},
                 {"zh-TW,ja", "ja"},
                 {"zh-TW,zh-CN", "zh-CN"},
                 {"fi-FI", "en"},
                 {"C", "en"},
                 {"", "en"}};
    for (const auto &each : cases) {
        const QStringList preferred =
            QString::fromLatin1(each.preferred).split(QLatin1Char(','), Qt::SkipEmptyParts);
        EXPECT_EQ(strings_table::bestMatch(preferred, languages), QLatin1String(each.table))
            << each.preferred;
    }
}

/// The keys that stand in quotes in the program's sources: those asked for while it runs.
QStringList keysInSources() {
    QStringList keys;
    for (const char *folder :
         {"app", "script", "export", "trim", "record", "region", "shell", "platform"}) {
        QDirIterator files(QStringLiteral(TOVAREL_SOURCE_DIR "/%1").arg(QLatin1String(folder)),
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
            keys << matches(QString::fromUtf8(file.readAll()), "(?<=\")IDD_[A-Z0-9_]+(?=\")");
        }
    }
    keys.removeDuplicates();
    return keys;
}

TEST(StringsTable, theTableHoldsWhatTheProgramAsksForAndNothingElse) {
    QStringList wanted = keysInSources();
    EXPECT_GT(wanted.size(), 5);
#define TOVAREL_WANTED_KEY(key) wanted << QStringLiteral(#key);
    TOVAREL_INTERFACE_STRINGS(TOVAREL_WANTED_KEY)
#undef TOVAREL_WANTED_KEY
    const Texts english = read(QStringLiteral("en"));
    for (const QString &key : wanted)
        EXPECT_TRUE(english.contains(key)) << qPrintable(key);
    for (const QString &key : english.keys())
        EXPECT_TRUE(wanted.contains(key)) << "nobody asks for " << qPrintable(key);
}

TEST(StringsTable, everyTableSaysEverythingThatEnglishSays) {
    const Texts english = read(QStringLiteral("en"));
    for (const QString &language : languages) {
        const Texts texts = read(language);
        EXPECT_EQ(texts.keys().join(QLatin1Char('\n')).toStdString(),
                  english.keys().join(QLatin1Char('\n')).toStdString())
            << qPrintable(language);
        for (const QString &key : texts.keys()) {
            SCOPED_TRACE(qPrintable(language + QLatin1Char(' ') + key));
            const QStringList wanted = matches(english[key].last(), "%L?[1-9np]");
            // How many forms a language has is what the texts with a number must agree in.
            const bool counts = wanted.contains(QLatin1String("%Ln"));
            EXPECT_EQ(texts[key].size(), counts ? formsOf(language) : 1);
            for (const QString &text : texts[key]) {
                EXPECT_FALSE(text.trimmed().isEmpty());
                EXPECT_EQ(text, text.trimmed());
                EXPECT_EQ(matches(text, "%L?[1-9np]"), wanted);
                // Mnemonics are chosen by the program, where it knows a text's neighbours.
                EXPECT_FALSE(text.contains(QLatin1Char('&')));
            }
        }
    }
}

/// The tags of a help page in their order, without those inside sentences, whose order is a
/// language's own.
QStringList structureOf(const QString &page) {
    QFile file(QStringLiteral(TOVAREL_SOURCE_DIR "/resources/help/") + page);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(page);
    QStringList tags;
    static const QRegularExpression tag(QStringLiteral("<(?!/?(em|strong|code|kbd)\\b)[^> ]+"));
    QRegularExpressionMatchIterator each = tag.globalMatch(QString::fromUtf8(file.readAll()));
    while (each.hasNext())
        tags << each.next().captured();
    return tags;
}

TEST(HelpPages, sayTheSameInEveryLanguage) {
    for (const char *page : {"index", "maker", "privacy", "ticket"}) {
        const QString name = QString::fromLatin1(page) + QStringLiteral(".html");
        const QStringList english = structureOf(name);
        EXPECT_GT(english.size(), 30);
        for (const QString &language : languages)
            if (language != QLatin1String("en")) {
                EXPECT_EQ(structureOf(language + QLatin1Char('/') + name), english)
                    << qPrintable(language) << ' ' << page;
            }
    }
}

TEST(StringsTable, everyTextIsTranslated) {
    // Names, units and words that are the same in several languages.
    static const QRegularExpression same(
        QStringLiteral("%L?[1-9n]|GIF|WebP|MP4|MB|kB|fps|\\bs\\b|OK|Pause|Action|Countdown|Monitor|"
                       "Version"));
    static const QRegularExpression word(QStringLiteral("\\p{L}"));
    const Texts english = read(QStringLiteral("en"));
    for (const QString &language : languages) {
        const Texts texts = read(language);
        for (const QString &key : texts.keys()) {
            if (language == QLatin1String("en") || texts[key] != english[key])
                continue;
            EXPECT_FALSE(texts[key].join(QString()).remove(same).contains(word))
                << qPrintable(language + QLatin1Char(' ') + key);
        }
    }
}

TEST(StringsTable, marksAndUnitsStandAsTheLanguageHasThem) {
    // Kana and kanji; %1 and its like are Latin.
#define CJK "\u3041-\u3096\u30a1-\u30fa\u4e00-\u9fff"
    const struct {
        const char *languages;
        const char *wrong;
    } rules[] = {
        // Typewriters' marks, blanks that are not meant, a unit that can part from its number.
        {"de en es fr ja pt-BR zh-CN", "['\"]|\\.\\.\\.|  |%L?[1-9n] (s|fps|i/s|秒|帧/秒)(?!\\w)"},
        {"en", "colour|licence|behaviour|cancelled"},
        {"de", "(?<!\u00a0)…|(?<!\u00a0)%$"},
        {"es", "« | »|(?<!\u00a0)%$"},
        {"fr", "(?<!\u202f)[;!?]|(?<!\u00a0)[:»]|«(?!\u00a0)|(?<!\u202f)%$"},
        {"ja", "[()!?;]|[,.](?=[" CJK "])|[" CJK "][a-zA-Z0-9%]|[a-zA-Z0-9%][" CJK "]"},
        // A colon of full width is for sentences, not between the name of a tool and its path.
        {"zh-CN",
         "(?<!^%1):|[()!?;]|[,.](?=[" CJK "])|[" CJK "][a-zA-Z0-9%]|[a-zA-Z0-9%][" CJK "]"},
    };
#undef CJK
    for (const auto &[where, wrong] : rules)
        for (const QString &language : QString::fromLatin1(where).split(QLatin1Char(' '))) {
            const Texts texts = read(language);
            const QRegularExpression pattern(QString::fromUtf8(wrong));
            ASSERT_TRUE(pattern.isValid()) << wrong;
            for (const QString &key : texts.keys())
                for (const QString &text : texts[key])
                    EXPECT_FALSE(text.contains(pattern))
                        << qPrintable(language + QLatin1Char(' ') + key + QLatin1Char(' ') + text);
        }
}

} // namespace
