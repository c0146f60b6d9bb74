// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/accessible_roles.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace {

QAccessibleInterface *makeInterface(const QString &className, QObject *object) {
    const bool picture = className == QLatin1String("FilePicture") ||
                         className == QLatin1String("View_Record_Preview") ||
                         className == QLatin1String("View_Cut_Preview") ||
                         className == QLatin1String("View_Region_How_To");
    const bool dialog = className == QLatin1String("Window_Transparent_Region");
    if (!picture && !dialog)
        return nullptr;
    return new QAccessibleWidget(qobject_cast<QWidget *>(object),
                                 picture ? QAccessible::Graphic : QAccessible::Dialog);
}

} // namespace

void installAccessibleRoles() { QAccessible::installFactory(makeInterface); }
