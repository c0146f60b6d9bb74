// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "trim/range_rules.h"

#include <optional>

class AppDelegate;
class ExportFields;

/// Whether an export may begin now: none is under way, and no sheet is up. Assistive technology
/// reaches a control whose window is blocked by a dialog; an export within an export would empty
/// the folders that the first one works in.
bool mayExport(const AppDelegate &controller);

/// Whether there are fewer than three frames in what is kept: too few for a moving picture.
bool hasTooFewFrames(const std::optional<range_rules::Kept> &kept);

/// Why no export of this range or with these sizes begins, in the user's words: fewer than three
/// frames, or a size field that does not begin with a number other than 0. None when one may.
std::optional<QString> refusal(const AppDelegate &controller);

/// Marks an export as under way for as long as it lives.
class ExportMark {
public:
    explicit ExportMark(ExportFields &fields);
    ~ExportMark();
    ExportMark(const ExportMark &) = delete;
    ExportMark &operator=(const ExportMark &) = delete;

private:
    ExportFields &fields_;
};
