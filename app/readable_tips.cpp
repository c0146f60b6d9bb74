// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/readable_tips.h"

#include <QPalette>
#include <QToolTip>

#include <cstdlib>

namespace {

constexpr int leastDifference = 90; // of 255 in lightness, between words and ground

} // namespace

void makeTipsReadable() {
    QPalette tips = QToolTip::palette();
    const int words = tips.color(QPalette::ToolTipText).lightness();
    const int ground = tips.color(QPalette::ToolTipBase).lightness();
    if (std::abs(words - ground) >= leastDifference)
        return;
    tips.setBrush(QPalette::ToolTipBase, tips.window());
    tips.setBrush(QPalette::ToolTipText, tips.windowText());
    QToolTip::setPalette(tips);
}
