// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QRect>
#include <QSize>

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

/// The panel beside the region while it is chosen: its place and size in the pixels that are
/// recorded, usual sizes, and the two buttons to pick a window and to take the region. It shows and
/// asks; what becomes of it is the overlay's to decide. Presses on it are no drags of the region.
class RegionPanel : public QFrame {
    Q_OBJECT

public:
    /// Laid out in one row where `width` (points) has room for it, else in two.
    RegionPanel(QWidget *parent, int width);

    /// Shows the region as it is recorded (units of the grab, upper left origin); `problem` says
    /// why it cannot be, if it cannot.
    void showRegion(const QRect &recorded, const QString &problem);
    /// Whether a window is being picked.
    void setPicking(bool picking);
    /// What it says there is to do next, or why the region cannot be used.
    QString hint() const;
    /// Whether one of its fields has the keys.
    bool isTyping() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// For where there is no window to be picked.
    void hidePicking();

Q_SIGNALS:
    /// The user wants the region to be there.
    void wanted(const QRect &recorded);
    void wantedSize(const QSize &recorded);
    /// As wide as high.
    void wantedSquare();
    /// The one that was taken last.
    void wantedLast();
    void pickingWanted(bool picking);
    void accepted();
    /// A list has closed, which had the pointer and the keys.
    void listClosed();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void fillPresets();
    void choosePreset(int index);

    QSpinBox *x_;
    QSpinBox *y_;
    QSpinBox *width_;
    QSpinBox *height_;
    QComboBox *presets_;
    QPushButton *pick_;
    QPushButton *use_;
    QLabel *hint_;
    bool isNarrow_ = false; ///< In two rows.
};
