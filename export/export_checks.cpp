// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/export_checks.h"

#include "app/app_delegate.h"
#include "platform/text_number.h"
#include "ui_MainWindow.h"

bool mayExport(const AppDelegate &controller) {
    return !controller.exporting.exportRuns() && !controller.exporting.windowProgress();
}

bool sizeIsUsable(const Ui::MainWindow &ui) {
    return integerValue(ui.textGIFWidth->text()) != 0 &&
           integerValue(ui.textGIFHeigth->text()) != 0;
}

ExportMark::ExportMark(ExportFields &fields) : fields_(fields) { fields_.setExportRuns(true); }
ExportMark::~ExportMark() { fields_.setExportRuns(false); }
