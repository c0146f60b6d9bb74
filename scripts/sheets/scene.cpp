// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "scripts/sheets/scene.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace {

/// A window with a title bar, and a cross to close it.
void drawWindow(QPainter &painter, const QRect &place, const QColor &ground) {
    constexpr int bar = 30;
    painter.fillRect(place, ground);
    painter.fillRect(QRect(place.topLeft(), QSize(place.width(), bar)), QColor(214, 218, 224));
    painter.setPen(QPen(QColor(90, 96, 106), 2));
    const QRect cross(place.right() - 21, place.top() + 10, 10, 10);
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
}

/// Lines as of a program, the last of them half written.
void drawCode(QPainter &painter, const QRect &place, int step) {
    constexpr std::array colours{QColor(155, 204, 96), QColor(110, 170, 230),
                                 QColor(226, 180, 100)};
    constexpr int lineHeight = 26, perLine = 4;
    const int lines = 3 + step / perLine;
    for (int line = 0; line < lines && (line + 2) * lineHeight < place.height(); ++line) {
        const int indent = 22 * (line % 5 % 3);
        const int length = 90 + 97 * line % (place.width() / 2);
        const int written = line + 1 < lines ? length : length * (step % perLine + 1) / perLine;
        painter.fillRect(place.left() + 24 + indent, place.top() + 46 + lineHeight * line, written,
                         8, colours[std::size_t(line) % colours.size()]);
    }
}

} // namespace

QImage scene(QSize size, int step) {
    step %= sceneSteps;
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient ground(0, 0, size.width(), size.height());
    ground.setColorAt(0, QColor(44, 95, 138));
    ground.setColorAt(1, QColor(126, 176, 158));
    painter.fillRect(picture.rect(), ground);
    painter.fillRect(0, 0, size.width(), 28, QColor(28, 34, 44));
    const QRect editor(size.width() / 14, size.height() / 7, size.width() / 2,
                       size.height() * 7 / 10);
    drawWindow(painter, editor, QColor(30, 31, 33));
    drawCode(painter, editor, step);
    const QRect page(size.width() * 9 / 20, size.height() * 3 / 10, size.width() / 2,
                     size.height() * 11 / 20);
    drawWindow(painter, page, QColor(252, 252, 252));
    const int inner = page.width() - 60;
    for (int line = 0; line < 8; ++line)
        painter.fillRect(page.left() + 30, page.top() + 60 + 28 * line,
                         inner / 3 + 131 * line % (inner * 2 / 3), 9, QColor(88, 100, 120));
    const QRect bar(page.left() + 30, page.bottom() - 60, inner, 26);
    painter.fillRect(bar, QColor(222, 226, 232));
    painter.fillRect(
        QRect(bar.topLeft(), QSize(bar.width() * (step + 1) / sceneSteps, bar.height())),
        QColor(53, 132, 228));
    return picture;
}
