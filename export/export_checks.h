// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

class AppDelegate;
class ExportFields;
namespace Ui {
class MainWindow;
}

/// Whether an export may begin now: none is under way, and no sheet is up. Assistive technology
/// reaches a control whose window is blocked by a dialog; an export within an export would empty
/// the folders that the first one works in.
bool mayExport(const AppDelegate &controller);

/// Whether both size fields begin with a number other than 0.
bool sizeIsUsable(const Ui::MainWindow &ui);

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
