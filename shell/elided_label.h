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

    /// Where it is cut; at the end unless something else is said.
    void setElideMode(Qt::TextElideMode mode) { mode_ = mode; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Qt::TextElideMode mode_ = Qt::ElideRight;
};
