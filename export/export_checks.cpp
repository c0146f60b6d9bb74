// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/export_checks.h"

#include "app/app_delegate.h"
#include "export/duration.h"
#include "platform/text_number.h"
#include "ui_MainWindow.h"

bool mayExport(const AppDelegate &controller) {
    return !controller.exporting.exportRuns() && !controller.exporting.windowProgress();
}

std::optional<QString> refusal(const AppDelegate &controller) {
    if (rangeIsTooShort(controller.trim.uFirstFrame(), controller.trim.uLastFrame()))
        return controller.texts.s_IDD_LOW_FRAME_NUMBER();
    const bool sized = integerValue(controller.ui->textGIFWidth->text()) != 0 &&
                       integerValue(controller.ui->textGIFHeigth->text()) != 0;
    return sized ? std::nullopt : std::optional(controller.texts.s_IDD_INVALID_DIMENSION());
}

ExportMark::ExportMark(ExportFields &fields) : fields_(fields) { fields_.setExportRuns(true); }
ExportMark::~ExportMark() { fields_.setExportRuns(false); }
