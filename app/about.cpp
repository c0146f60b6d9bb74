// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/about.h"

#include "shell/message_box.h"
#include "shell/surroundings.h"
#include "shell/title_text.h"

#include <QApplication>
#include <QMainWindow>

namespace {

constexpr int iconSide = 64; // points

const QString licence = QStringLiteral("MIT");

/// Which tool is used, or that none was found: the first thing to know when an export fails.
QString toolLine(const QString &name, const QString &path) {
    return qtTrId("IDD_ABOUT_TOOL")
        .arg(name, path.isEmpty() ? qtTrId("IDD_ABOUT_TOOL_MISSING") : path);
}

} // namespace

void showAbout(const Surroundings &surroundings) {
    const ShellFields &shell = surroundings.shell;
    const QStringList lines = {
        qtTrId("IDD_ABOUT_VERSION").arg(QCoreApplication::applicationVersion()),
        qtTrId("IDD_ABOUT_TEXT"),
        qtTrId("IDD_ABOUT_LICENCE").arg(licence),
        {},
        qtTrId("IDD_ABOUT_TOOLS"),
        toolLine(QStringLiteral("ffmpeg"), shell.sffmpegPath()),
        toolLine(QStringLiteral("img2webp"), shell.simg2webpPath()),
    };
    QMessageBox about(shell.window());
    about.setObjectName(QStringLiteral("about"));
    about.setWindowTitle(
        titleText(surroundings.texts.s_IDD_ABOUT() + QLatin1Char(' ') + shell.s_App_Name()));
    about.setIconPixmap(QApplication::windowIcon().pixmap(QSize(iconSide, iconSide),
                                                          shell.window()->devicePixelRatio()));
    setPlainTexts(about, shell.s_App_Name(), lines.join(QLatin1Char('\n')));
    about.addButton(QStringLiteral("Close"), QMessageBox::RejectRole);
    about.exec();
}
