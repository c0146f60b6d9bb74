// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/export_checks.h"

#include "app/app_delegate.h"
#include "platform/text_number.h"
#include "ui_MainWindow.h"

namespace {

constexpr std::uint64_t fewestFrames = 3; // fewer are no moving picture

} // namespace

bool hasTooFewFrames(const std::optional<range_rules::Kept> &kept) {
    return !kept || kept->count() < fewestFrames;
}

bool mayExport(const AppDelegate &controller) {
    return !controller.exporting.exportRuns() && !controller.surroundings.progress.windowProgress();
}

std::optional<QString> refusal(const AppDelegate &controller) {
    if (hasTooFewFrames(controller.keptRange()))
        return controller.texts.s_IDD_LOW_FRAME_NUMBER();
    const bool sized = integerValue(controller.ui->textGIFWidth->text()) != 0 &&
                       integerValue(controller.ui->textGIFHeigth->text()) != 0;
    return sized ? std::nullopt : std::optional(controller.texts.s_IDD_INVALID_DIMENSION());
}

ExportMark::ExportMark(ExportFields &fields) : fields_(fields) {
    fields_.setExportRuns(true);
    fields_.setExportCancelled(false);
}
ExportMark::~ExportMark() { fields_.setExportRuns(false); }
