// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/message_box.h"

#include <QLabel>

void setPlainTexts(QMessageBox &box, const QString &message, const QString &informative) {
    box.setTextFormat(Qt::PlainText);
    box.setText(message);
    box.setInformativeText(informative);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))) {
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
    }
}
