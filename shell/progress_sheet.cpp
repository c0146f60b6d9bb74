// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/progress_sheet.h"

#include "shell/window_progress.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QWindow>

namespace {

/// The longest time that the sheet is waited for, in milliseconds; it takes 2 to 7. A window that
/// nobody can see (minimised, another desktop) is never exposed.
constexpr qint64 exposureLimit = 250;

} // namespace

void ProgressSheet::show(const QString &caption) {
    close();
    if (!anchor_)
        return;
    // Owned by the main window; a sheet whose job has ended deletes itself, see below.
    auto *sheet = new Window_Progress(*anchor_, caption);
    connect(sheet, &Window_Progress::parentCloseRequested, this,
            &ProgressSheet::parentCloseRequested);
    connect(sheet, &Window_Progress::cancelled, this, &ProgressSheet::cancelled);
    windowProgress_ = sheet;
    sheet->open();
}

void ProgressSheet::setCaption(const QString &caption) {
    if (windowProgress_)
        windowProgress_->setCaption(caption);
}

void ProgressSheet::setRange(double minimum, double maximum) {
    if (windowProgress_) {
        windowProgress_->setMinValue(minimum);
        windowProgress_->setMaxValue(maximum);
    }
}

void ProgressSheet::setValue(double value) {
    if (windowProgress_)
        windowProgress_->setDoubleValue(value);
    Q_EMIT valueChanged(value);
}

void ProgressSheet::setText(const QString &format) {
    if (windowProgress_)
        windowProgress_->progressBar()->setFormat(format);
}

void ProgressSheet::paint() {
    Window_Progress *sheet = windowProgress_;
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

void ProgressSheet::offerCancel() {
    if (windowProgress_)
        windowProgress_->offerCancel();
}

void ProgressSheet::close() {
    Window_Progress *sheet = windowProgress_;
    if (!sheet)
        return;
    windowProgress_ = nullptr;
    sheet->hide();
    // Later, since the caller may be called from the sheet's own events.
    sheet->deleteLater();
}
