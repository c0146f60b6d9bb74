// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/line_breaks.h"

#include <QTextBoundaryFinder>

#include <gtest/gtest.h>

namespace {

/// The text with a bar wherever the toolkit may begin a line.
std::string broken(const char *text) {
    QString rest = line_breaks::atPhrases(QString::fromUtf8(text));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, rest);
    QString marked;
    qsizetype from = 0;
    while (finder.toNextBoundary() > 0) {
        if (from > 0)
            marked += QLatin1Char('|');
        marked += rest.mid(from, finder.position() - from);
        from = finder.position();
    }
    return marked.remove(QChar(0x2060)).replace(QChar::Nbsp, QLatin1Char(' ')).toStdString();
}

TEST(LineBreaks, standWhereAReaderPauses) {
    for (const char *each : {
             "サイズ、|フレームレート、|速度を|選んで、|GIF を|作成します。",
             "まず|「録画」タブで|録画してください。",
             "「ウィンドウを選択」を|押すか、|W キーを|押しながら、",
             "3 フレーム以上を|選択してください。",
         })
        EXPECT_EQ(broken(QString::fromUtf8(each).remove(QLatin1Char('|')).toUtf8()), each);
    EXPECT_NE(broken("请先在“录制”标签页中录制。").find("“录制”"), std::string::npos);
    EXPECT_NE(broken("录制内容的帧率可能低于所选的帧率。").find("帧率。"), std::string::npos);
    const QString latin = QStringLiteral("5 frames, “Stop” – 2 s");
    EXPECT_EQ(line_breaks::atPhrases(latin), latin);
}

} // namespace
