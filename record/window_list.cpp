// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/window_list.h"

#include <QRegion>

#include <cstdio>

namespace {

/// Two numbers without decimals, rounded to the nearest, `separator` between them.
QString wholePair(double first, double second, char separator) {
    // A double has up to 309 digits before its decimal sign.
    char text[640];
    std::snprintf(text, sizeof text, "%.0f%c%.0f", first, separator, second);
    return QString::fromLatin1(text);
}

/// The entry as text, every key and value.
QString entryText(const WindowEntry &entry) {
    QString text;
    for (auto field = entry.cbegin(); field != entry.cend(); ++field)
        text += field.key() + QStringLiteral(" = ") + field.value().toString() + QChar::LineFeed;
    return text;
}

} // namespace

void WindowListApplierFunction(const WindowDescription &description, WindowListApplierData &walk) {
    if (description.sharingState == 0)
        return;
    const QString owner = description.ownerName.value_or(QStringLiteral("((unknown))"));
    const QRectF &bounds = description.bounds;
    WindowEntry entry;
    entry[kAppNameKey] =
        QStringLiteral("%1 (%2)").arg(owner, QString::number(description.ownerPid));
    entry[kWindowOriginKey] = wholePair(bounds.x(), bounds.y(), '/');
    entry[kWindowSizeKey] = wholePair(bounds.width(), bounds.height(), '*');
    entry[kWindowIDKey] = description.number;
    entry[kWindowLevelKey] = description.layer;
    entry[kWindowOrderKey] = walk.order();
    walk.setOrder(walk.order() + 1);
    walk.outputArray().push_back(std::move(entry));
}

bool isCovered(std::span<const WindowDescription> frontToBack, const QRect &place) {
    QRegion seen = place;
    for (const WindowDescription &window : frontToBack) {
        if (window.ownerName == ownWindowsName) {
            if (window.bounds.intersects(place))
                break;
        } else if (window.opaque) {
            seen -= window.bounds.toAlignedRect();
        }
    }
    return seen.isEmpty();
}

bool isOwnWindow(const WindowEntry &entry) { return entryText(entry).contains(ownWindowsName); }
