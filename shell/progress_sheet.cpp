// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "shell/window_progress.h"
#include "ui_MainWindow.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QWindow>

namespace {

/// The longest time that the sheet is waited for, in milliseconds; it takes 2 to 7. A window that
/// nobody can see (minimised, another desktop) is never exposed.
constexpr qint64 exposureLimit = 250;

} // namespace

void AppDelegate::showProgressSheet(const QString &caption) {
    closeProgressSheet();
    // Owned by the main window; a sheet whose job has ended deletes itself, see below.
    auto *sheet = new Window_Progress(*ui->tabBar, caption);
    connect(sheet, &Window_Progress::parentCloseRequested, this, &AppDelegate::windowWillClose);
    exporting.setWindowProgress(sheet);
    sheet->open();
}

void AppDelegate::setProgressRange(double minimum, double maximum) {
    if (Window_Progress *sheet = exporting.windowProgress()) {
        sheet->setMinValue(minimum);
        sheet->setMaxValue(maximum);
    }
}

void AppDelegate::setProgressValue(double value) {
    if (Window_Progress *sheet = exporting.windowProgress())
        sheet->setDoubleValue(value);
}

void AppDelegate::setProgressText(const QString &format) {
    if (Window_Progress *sheet = exporting.windowProgress())
        sheet->progressBar()->setFormat(format);
}

void AppDelegate::paintProgressSheet() {
    Window_Progress *sheet = exporting.windowProgress();
    if (!sheet)
        return;
    const auto exposed = [sheet] {
        return sheet->windowHandle() && sheet->windowHandle()->isExposed();
    };
    QElapsedTimer limit;
    limit.start();
    while (!exposed() && limit.elapsed() < exposureLimit)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 1);
    // Painting alone stays in the toolkit's buffer: the turn after it hands it to the display.
    sheet->repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void AppDelegate::closeProgressSheet() {
    Window_Progress *sheet = exporting.windowProgress();
    if (!sheet)
        return;
    exporting.setWindowProgress(nullptr);
    sheet->hide();
    // Later, since the caller may be called from the sheet's own events.
    sheet->deleteLater();
}
