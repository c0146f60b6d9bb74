// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "platform/bundle.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMainWindow>
#include <QMessageBox>
#include <QUrl>

void AppDelegate::OnMenuActionRecordFullScreen() { OnRecordFullScreen(this); }
void AppDelegate::OnMenuActionRecordRegion() { OnRecordRegion(this); }
void AppDelegate::OnMenuActionRecordRecord() { OnRecordRecord(this); }
void AppDelegate::OnMenuActionRecordPause() { OnRecordPause(this); }
void AppDelegate::OnMenuActionRecordStop() { OnRecordStop(this); }
void AppDelegate::OnMenuActionRecordFPS() { OnRecordFPS(this); }
void AppDelegate::OnMenuActionCutPlay() { OnCutPlay(this); }
void AppDelegate::OnMenuActionCutPause() { OnCutPause(this); }
void AppDelegate::OnMenuActionCutStop() { OnCutStop(this); }
void AppDelegate::OnMenuActionGIFExport() { OnGIFExport(this); }

namespace {

const QString licence = QStringLiteral("MIT");

/// The Help pages come with the program, so that they need no network and always fit the version at
/// hand. Whether a browser takes them is not checked.
void openHelpPage(const QString &page) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(bundle::pathForHelp(page)));
}

/// Which tool serves, or that none was found: the first thing to know when an export fails.
QString toolLine(const QString &name, const QString &path) {
    return QStringLiteral("%1: %2").arg(name,
                                        path.isEmpty() ? qtTrId("IDD_ABOUT_TOOL_MISSING") : path);
}

} // namespace

void AppDelegate::OnMenuHelpAppHomePage() { openHelpPage(QStringLiteral("index.html")); }
void AppDelegate::OnMenuHelpCompanyHomePage() { openHelpPage(QStringLiteral("maker.html")); }
void AppDelegate::OnMenuHelpPrivacyPolicy() { openHelpPage(QStringLiteral("privacy.html")); }
void AppDelegate::OnMenuHelpSubmitTicket() { openHelpPage(QStringLiteral("ticket.html")); }

void AppDelegate::OnMenuAbout() {
    constexpr int iconSide = 64; // points
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
    about.setWindowTitle(texts.s_IDD_ABOUT() + QLatin1Char(' ') + shell.s_App_Name());
    about.setIconPixmap(QApplication::windowIcon().pixmap(QSize(iconSide, iconSide),
                                                          shell.window()->devicePixelRatio()));
    about.setTextFormat(Qt::PlainText); // paths are shown, never interpreted
    about.setText(shell.s_App_Name());
    about.setInformativeText(lines.join(QLatin1Char('\n')));
    about.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    about.addButton(QStringLiteral("Close"), QMessageBox::RejectRole);
    about.exec();
}

void AppDelegate::OnMenuQuit() { Terminate_App(); }
