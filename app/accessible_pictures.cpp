// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/accessible_pictures.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace {

QAccessibleInterface *makeInterface(const QString &className, QObject *object) {
    const bool picture = className == QLatin1String("View_Record_Preview") ||
                         className == QLatin1String("View_Cut_Preview") ||
                         className == QLatin1String("View_Region_How_To");
    return picture ? new QAccessibleWidget(qobject_cast<QWidget *>(object), QAccessible::Graphic)
                   : nullptr;
}

} // namespace

void installAccessiblePictures() { QAccessible::installFactory(makeInterface); }
