// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "ui_MainWindow.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

#include "platform/bundle.h"

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

/// The Help pages are installed with the program, so that they need no network and always fit the
/// version at hand. Whether a browser takes them is not checked.
void openHelpPage(const QString &page) {
    const QString folder = bundle::dataFolder(QCoreApplication::applicationDirPath());
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder + QStringLiteral("/help/") + page));
}

} // namespace

void AppDelegate::OnMenuHelpAppHomePage() { openHelpPage(QStringLiteral("index.html")); }
void AppDelegate::OnMenuHelpCompanyHomePage() { openHelpPage(QStringLiteral("maker.html")); }
void AppDelegate::OnMenuHelpPrivacyPolicy() { openHelpPage(QStringLiteral("privacy.html")); }
void AppDelegate::OnMenuHelpSubmitTicket() { openHelpPage(QStringLiteral("ticket.html")); }

void AppDelegate::OnMenuAbout() {
    QMessageBox::about(shell.window(), ui->menuitemAbout->text(),
                       QStringLiteral("%1 %2\n\n%3")
                           .arg(shell.s_App_Name(), QCoreApplication::applicationVersion(),
                                qtTrId("IDD_ABOUT_TEXT")));
}

void AppDelegate::OnMenuQuit() { Terminate_App(); }
