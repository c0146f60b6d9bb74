// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/help.h"

#include "platform/bundle.h"
#include "shell/alerts.h"
#include "shell/strings_table.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace help {

namespace {

/// The page in the language of the texts. English, which has no folder of its own, serves where a
/// page was not translated.
QString pathOf(const char *page) {
    const QString name = QString::fromLatin1(page);
    const QString translated =
        bundle::pathForHelp(strings_table::chosen() + QLatin1Char('/') + name);
    return QFileInfo::exists(translated) ? translated : bundle::pathForHelp(name);
}

} // namespace

bool open(const char *page) { return QDesktopServices::openUrl(QUrl::fromLocalFile(pathOf(page))); }

void openFirstPage(Alerts &alerts) {
    // Whoever asks for help must get an answer; this page leads to the others, too.
    if (!open(firstPage))
        alerts.run(AlertKind::Error, qtTrId("IDD_HELP_NOT_OPENED"), pathOf(firstPage));
}

} // namespace help
