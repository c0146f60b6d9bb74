// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/region_tip.h"

#include "region/tip_place.h"

#include <QToolTip>

namespace {

constexpr int textMargin = 6; // points

} // namespace

RegionTip::RegionTip(QWidget *parent)
    : QLabel(parent, Qt::ToolTip | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus) {
    setObjectName(QStringLiteral("regionTip"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setPalette(QToolTip::palette());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true); // A window's ground is otherwise that of all windows.
    setFont(QToolTip::font());
    setMargin(textMargin);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setTextFormat(Qt::PlainText);
}

void RegionTip::showNear(const QPoint &corner, const QPoint &pointer, const QRect &screen,
                         const QString &text) {
    setText(text);
    const QSize size = sizeHint();
    const auto [x, y] = tip_place::choose({corner.x(), corner.y()}, {pointer.x(), pointer.y()},
                                          {screen.x(), screen.y(), screen.width(), screen.height()},
                                          size.width(), size.height());
    setGeometry(QRect(QPoint(x, y), size));
    show();
    raise();
}
