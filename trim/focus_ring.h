// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class View_Cut_Range;

/// Shows the keyboard's focus around the strip, in the margin beside it, so that the strip's own
/// picture stays as it is; two marks at the edge stand at the chosen part. A sibling of the strip
/// that follows it; owned by the strip's parent.
class FocusRing : public QWidget {
    Q_OBJECT

public:
    explicit FocusRing(View_Cut_Range &strip);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow();

    View_Cut_Range &strip_;
};
