// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class CloseRequests;
class QLabel;
class QProgressBar;
namespace Ui {
class Window_Progress;
}

/// The progress sheet: a caption and a bar, hanging from a strip of the window that it blocks. The
/// job that showed it takes it down, the user cannot; a job that can be cancelled says so, and is
/// notified when the user does. A sheet is never used twice.
class Window_Progress : public QDialog {
    Q_OBJECT

public:
    /// A sheet on `anchor`'s window, centred under `anchor` and following that window's moves. The
    /// window owns it. The bar runs from 0 to 100 and starts at 0.
    Window_Progress(QWidget &anchor, const QString &caption);
    ~Window_Progress() override;

    void setCaption(const QString &caption);
    QLabel *labelDescription() const;
    QProgressBar *progressBar() const;

    /// The bar in the job's own numbers, in double precision whatever the widget can show.
    double minValue() const { return minValue_; }
    double maxValue() const { return maxValue_; }
    double doubleValue() const { return doubleValue_; }
    void setMinValue(double value);
    void setMaxValue(double value);
    /// Values beyond the range show as empty or full; one that is not finite moves nothing.
    void setDoubleValue(double value);

    /// Shows a button that asks for the job to be cancelled, as Escape then does.
    void offerCancel();

    /// Escape, or a close request. The sheet stays.
    void reject() override;

Q_SIGNALS:
    /// The user asked the window manager to close the window beneath the sheet.
    void parentCloseRequested();
    /// The user asked for the job to be cancelled: once at most, and only where that is offered.
    void cancelled();

protected:
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showValue();
    void place();
    void cancel();

    std::unique_ptr<Ui::Window_Progress> ui_;
    QWidget &anchor_;
    std::unique_ptr<CloseRequests> closeRequests_;
    double minValue_ = 0.0;
    double maxValue_ = 100.0;
    double doubleValue_ = 0.0;
};
