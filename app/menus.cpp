// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/about.h"
#include "app/app_delegate.h"
#include "platform/bundle.h"

#include <QDesktopServices>
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

const QString firstPage = QStringLiteral("index.html");

/// The Help pages come with the program, so that they need no network and always fit the version at
/// hand. Whether somebody was found to show the page.
bool openHelpPage(const QString &page) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(bundle::pathForHelp(page)));
}

} // namespace

void AppDelegate::OnMenuHelp() {
    // Who asks for help must not be left without a word; it leads to the other pages, too.
    if (!openHelpPage(firstPage))
        surroundings.alerts.run(AlertKind::Error, qtTrId("IDD_HELP_NOT_OPENED"),
                                bundle::pathForHelp(firstPage));
}

void AppDelegate::OnMenuHelpAppHomePage() { openHelpPage(firstPage); }
void AppDelegate::OnMenuHelpCompanyHomePage() { openHelpPage(QStringLiteral("maker.html")); }
void AppDelegate::OnMenuHelpPrivacyPolicy() { openHelpPage(QStringLiteral("privacy.html")); }
void AppDelegate::OnMenuHelpSubmitTicket() { openHelpPage(QStringLiteral("ticket.html")); }

void AppDelegate::OnMenuAbout() { showAbout(surroundings); }

void AppDelegate::OnMenuQuit() { endForTheUser(); }
