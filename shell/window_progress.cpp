// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/window_progress.h"

#include "platform/close_requests.h"
#include "shell/title_text.h"
#include "ui_Window_Progress.h"

#include <QCloseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr float outlineStrength = 0.4f; // of the words' colour

} // namespace

Window_Progress::Window_Progress(QWidget &anchor, const QString &caption)
    // Without the frameless hint some window managers give a sheet a close button.
    : QDialog(anchor.window(), Qt::Sheet | Qt::FramelessWindowHint),
      ui_(std::make_unique<Ui::Window_Progress>()), anchor_(anchor) {
    ui_->setupUi(this);
    setWindowModality(Qt::WindowModal);
    setCaption(caption);
    // The bar fills in its percentage.
    ui_->progressBar->setFormat(qtTrId("IDD_PERCENT").arg(QStringLiteral("%p")));
    ui_->btnCancel->setText(qtTrId("IDD_CANCEL"));
    ui_->btnCancel->hide();
    connect(ui_->btnCancel, &QPushButton::clicked, this, &Window_Progress::cancel);
    anchor.window()->installEventFilter(this);
    // The toolkit drops close requests for a window that a modal one blocks.
    closeRequests_ = std::make_unique<CloseRequests>([this](WId window) {
        if (!isVisible() || window != parentWidget()->internalWinId())
            return false;
        Q_EMIT parentCloseRequested();
        return true;
    });
}

Window_Progress::~Window_Progress() = default;

void Window_Progress::setCaption(const QString &caption) {
    setWindowTitle(titleText(caption));
    ui_->labelDescription->setText(caption);
    ui_->progressBar->setAccessibleName(caption);
}

QLabel *Window_Progress::labelDescription() const { return ui_->labelDescription; }
QProgressBar *Window_Progress::progressBar() const { return ui_->progressBar; }

void Window_Progress::setMinValue(double value) {
    minValue_ = value;
    showValue();
}

void Window_Progress::setMaxValue(double value) {
    maxValue_ = value;
    showValue();
}

void Window_Progress::setDoubleValue(double value) {
    if (!std::isfinite(value))
        return;
    doubleValue_ = value;
    showValue();
}

void Window_Progress::showValue() {
    const double range = maxValue_ - minValue_;
    const double share =
        range > 0.0 ? (doubleValue_ - minValue_) / range : (doubleValue_ >= maxValue_ ? 1.0 : 0.0);
    const double steps = std::clamp(share, 0.0, 1.0) * ui_->progressBar->maximum();
    ui_->progressBar->setValue(static_cast<int>(std::lround(steps)));
}

void Window_Progress::place() {
    const QPoint middle = anchor_.mapToGlobal(QPoint(anchor_.width() / 2, anchor_.height()));
    move(middle.x() - width() / 2, middle.y());
}

void Window_Progress::paintEvent(QPaintEvent *event) {
    QDialog::paintEvent(event);
    // The window manager draws no frame, and a style's own is hard to see in dark colours.
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(outlineStrength);
    QPainter painter(this);
    painter.setPen(line);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Window_Progress::offerCancel() {
    ui_->btnCancel->show();
    ui_->btnCancel->setFocus();
    adjustSize();
    place();
}

void Window_Progress::reject() { cancel(); }

void Window_Progress::cancel() {
    if (!ui_->btnCancel->isVisibleTo(this) || !ui_->btnCancel->isEnabled())
        return;
    ui_->btnCancel->setEnabled(false);
    Q_EMIT cancelled();
}

void Window_Progress::closeEvent(QCloseEvent *event) { event->ignore(); }

void Window_Progress::showEvent(QShowEvent *event) {
    QDialog::showEvent(event);
    place();
}

bool Window_Progress::eventFilter(QObject *watched, QEvent *event) {
    const bool moved = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    if (moved && isVisible())
        place();
    return QDialog::eventFilter(watched, event);
}
