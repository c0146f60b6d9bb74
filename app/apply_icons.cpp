// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "shell/palette_icon.h"
#include "ui_MainWindow.h"

#include <QApplication>

namespace {

QString drawing(const char *name) {
    return QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name));
}

} // namespace

void AppDelegate::applyIcons() {
    QApplication::setWindowIcon(QIcon(drawing("tovarel")));
    ui->btnRecordFullScreen->setIcon(paletteIcon(drawing("full-screen")));
    ui->btnRecordRegion->setIcon(paletteIcon(drawing("region")));
    ui->btnRecordFPS->setIcon(paletteIcon(drawing("fps")));
    ui->btnRecordRecord->setIcon(paletteIcon(drawing("record"), recordRed));
    ui->btnRecordPause->setIcon(paletteIcon(drawing("pause")));
    ui->btnRecordStop->setIcon(paletteIcon(drawing("stop")));
    ui->btnCutPlay->setIcon(paletteIcon(drawing("play")));
    ui->btnCutPause->setIcon(paletteIcon(drawing("pause")));
    ui->btnCutStop->setIcon(paletteIcon(drawing("stop")));
}
