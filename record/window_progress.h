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

/// The progress sheet: a caption and a bar, hanging from a strip of the window that it blocks. It
/// has no action of its own and cannot be dismissed by the user; the job that showed it takes it
/// down. A sheet is never used twice.
class Window_Progress : public QDialog {
    Q_OBJECT

public:
    /// A sheet on `anchor`'s window, centred under `anchor` and following that window's moves. The
    /// window owns it. The bar runs from 0 to 100 and stands at 0.
    Window_Progress(QWidget &anchor, const QString &caption);
    ~Window_Progress() override;

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

    /// The sheet stays: neither Escape nor a close request ends it.
    void reject() override {}

Q_SIGNALS:
    /// The user asked the window manager to close the window beneath the sheet.
    void parentCloseRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showValue();
    void place();

    std::unique_ptr<Ui::Window_Progress> ui_;
    QWidget &anchor_;
    std::unique_ptr<CloseRequests> closeRequests_;
    double minValue_ = 0.0;
    double maxValue_ = 100.0;
    double doubleValue_ = 0.0;
};
