// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class QCheckBox;
class RegionFields;
namespace Ui {
class Window_Region_How_It_Works;
}

/// The dialog that explains the region overlay before it opens, until the user asks not to see it
/// again. Run it with `exec`; how it ended does not matter to the caller.
class Window_Region_How_It_Works : public QDialog {
    Q_OBJECT

public:
    /// `region` is borrowed: its how-to flag is what the user decides about. `picksWindows` says
    /// whether a window can be picked for it.
    Window_Region_How_It_Works(QWidget *parent, RegionFields &region, bool picksWindows = true);
    ~Window_Region_How_It_Works() override;

    /// The box by which the user asks not to see the dialog again; owned by the dialog.
    QCheckBox *checkDontShowAgain() const;

    /// The OK button: with the box ticked, clears the how-to flag and stores it.
    void OnOK();

    /// The window is closing without OK (its close button, Escape): the flag stays as it was,
    /// whether the box is ticked or not.
    void windowWillClose();

    void reject() override { windowWillClose(); }

private:
    void windowDidLoad(bool picksWindows);

    std::unique_ptr<Ui::Window_Region_How_It_Works> ui_;
    RegionFields &region_;
};
