// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class GlobalShortcuts;
class RegionChooser;
class Surroundings;
namespace Ui {
class MainWindow;
}

/// Lets Record, Pause and Stop also be pressed while another window has the focus, as far as the
/// window server grants it; the status line says which keys do it and which are taken.
class DesktopKeys {
public:
    /// Listens from now on. Everything is borrowed and outlives it.
    DesktopKeys(const Ui::MainWindow &ui, Surroundings &surroundings, const RegionChooser &chooser);
    ~DesktopKeys();

private:
    std::unique_ptr<GlobalShortcuts> shortcuts_;
};
