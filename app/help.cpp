// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/help.h"

#include "platform/bundle.h"
#include "shell/alerts.h"

#include <QDesktopServices>
#include <QUrl>

namespace help {

namespace {

QString pathOf(const char *page) { return bundle::pathForHelp(QString::fromLatin1(page)); }

} // namespace

bool open(const char *page) { return QDesktopServices::openUrl(QUrl::fromLocalFile(pathOf(page))); }

void openFirstPage(Alerts &alerts) {
    // Whoever asks for help must get an answer; this page leads to the others, too.
    if (!open(firstPage))
        alerts.run(AlertKind::Error, qtTrId("IDD_HELP_NOT_OPENED"), pathOf(firstPage));
}

} // namespace help
