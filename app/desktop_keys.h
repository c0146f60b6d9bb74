// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

class GlobalShortcuts;
class PortalShortcuts;
class QAction;
class Recorder;
class Surroundings;
namespace Ui {
class MainWindow;
}

/// Lets Record, Pause and Stop also be pressed while another window has the focus, as far as the
/// window server, or the desktop's portal, grants it; the status line says which keys do it, and
/// which are taken as far as that is known.
class DesktopKeys : public QObject {
    Q_OBJECT

public:
    /// Listens from now on; with a portal, once something is to be recorded. Everything is borrowed
    /// and outlives it.
    DesktopKeys(const Ui::MainWindow &ui, Surroundings &surroundings, Recorder &recorder);
    ~DesktopKeys() override;

private:
    struct Key {
        QString id;
        std::string letters; ///< To choose from, the preferred one first.
        QAction *item;
        QString name;
    };

    void press(std::size_t place) const;
    void grab();
    void waitForSource();
    void bindOnceOpen();
    void showBound() const;

    Surroundings &surroundings_;
    Recorder &recorder_;
    std::vector<Key> keys_;
    std::unique_ptr<GlobalShortcuts> grabs_; // of a window server
    std::unique_ptr<PortalShortcuts> bound_; // of a desktop's portal
};
