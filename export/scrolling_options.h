// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

#include <vector>

class QBoxLayout;

/// Options that scroll where they have no room: rows fold in a narrow window, and the lower edge
/// says where there is more beneath it.
class ScrollingOptions : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrollingOptions(QWidget *parent = nullptr);

    /// The parts of this row stand beneath each other where there is no room for all of them beside
    /// each other. It is a layout within the contents, and borrowed.
    void addFoldingRow(QBoxLayout &row);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void arrange();
    void placeEdge();

    std::vector<QBoxLayout *> rows_;
    QWidget *edge_;
};
