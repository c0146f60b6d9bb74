// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

/// Holds options and is never higher than they are, so that what stands beneath follows them at
/// once. Where there is no room for all of them (large fonts in a small window), they scroll.
class OptionsArea : public QScrollArea {
    Q_OBJECT

public:
    using QScrollArea::QScrollArea;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitHeight();
};
