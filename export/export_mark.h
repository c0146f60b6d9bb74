// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/export_fields.h"

/// Marks an export as under way for as long as it lives.
class ExportMark {
public:
    explicit ExportMark(ExportFields &fields) : fields_(fields) {
        fields_.setExportRuns(true);
        fields_.setExportCancelled(false);
    }
    ~ExportMark() { fields_.setExportRuns(false); }
    ExportMark(const ExportMark &) = delete;
    ExportMark &operator=(const ExportMark &) = delete;

private:
    ExportFields &fields_;
};
