// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// One line of plain text that says with "…" where it had to be cut for want of room. Its `text`
/// stays whole, also for assistive technology; a tool tip is up to the owner.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// Whether parts (between " · ") are left out as a whole, from the last one, before anything is
    /// cut.
    void setLeavesPartsOut(bool leaves) {
        leavesPartsOut_ = leaves;
        update();
    }

    /// What of the text is shown in the present width.
    QString shownText() const;

    /// Where it is cut; at the end unless something else is said.
    void setElideMode(Qt::TextElideMode mode) { mode_ = mode; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect textArea() const;

    Qt::TextElideMode mode_ = Qt::ElideRight;
    bool leavesPartsOut_ = false;
};
