// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/wishes.h"

#include "app/app_delegate.h"
#include "app/single_instance.h"
#include "app/tabs.h"
#include "platform/window_activation.h"
#include "shell/tab_view.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QMainWindow>
#include <QWindow>

namespace {

void bringForward(QWidget &window) {
    // A Wayland client cannot restore a minimized window, nor does it know that it is minimized;
    // but it can show it anew.
    const bool isSeen = window.windowHandle() && window.windowHandle()->isExposed();
    if (!isSeen && QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        window.hide();
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    bringToFront(window.winId());
}

/// Does what the item does, if it may be chosen.
bool choose(QAction &item) {
    const bool isPossible = item.isEnabled();
    item.trigger();
    return isPossible;
}

/// Records, if that is possible on the Record tab.
bool record(AppDelegate &controller) {
    controller.OnMenuTabRecord();
    return controller.shell.tabviewMain()->selectedIndex() == tabs::record &&
           choose(*controller.ui->menuitemActionRecordRecord);
}

} // namespace

bool fulfil(const QString &wish, AppDelegate &controller) {
    if (wish == wishes::comeForward) {
        bringForward(*controller.shell.window());
        return true;
    }
    // Not beneath a dialog, which is to be answered first.
    if (QApplication::activeModalWidget() || controller.region.pFullScreen())
        return false;
    const Ui::MainWindow &ui = *controller.ui;
    if (wish == wishes::stop)
        return choose(*ui.menuitemActionRecordStop);
    if (wish == wishes::toggle)
        return ui.menuitemActionRecordStop->isEnabled() ? choose(*ui.menuitemActionRecordStop)
                                                        : record(controller);
    if (wish != wishes::pause)
        return false;
    return controller.recording.m_RecordStatus() == RECORD_STATUS_PAUSE
               ? record(controller)
               : choose(*ui.menuitemActionRecordPause);
}
