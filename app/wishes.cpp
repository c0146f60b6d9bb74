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

/// Does what the item does, if it may be chosen; what is to be said if not.
WishAnswer choose(QAction &item, WishAnswer otherwise) {
    const bool isPossible = item.isEnabled();
    item.trigger();
    return isPossible ? WishAnswer::Done : otherwise;
}

/// Records, if that is possible on the Record tab.
WishAnswer record(AppDelegate &controller) {
    controller.OnMenuTabRecord();
    return controller.shell.tabviewMain()->selectedIndex() == tabs::record
               ? choose(*controller.ui->menuitemActionRecordRecord, WishAnswer::Refused)
               : WishAnswer::Refused;
}

} // namespace

WishAnswer fulfil(const QString &wish, AppDelegate &controller) {
    if (wish == wishes::comeForward) {
        bringForward(*controller.shell.window());
        return WishAnswer::Done;
    }
    if (controller.recorder.isSavingRecording())
        return WishAnswer::Saving;
    // Not beneath a dialog, which is to be answered first.
    if (QApplication::activeModalWidget() || controller.region.pFullScreen())
        return WishAnswer::Asking;
    const Ui::MainWindow &ui = *controller.ui;
    if (wish == wishes::stop)
        return choose(*ui.menuitemActionRecordStop, WishAnswer::NotRecording);
    if (wish == wishes::toggle)
        return ui.menuitemActionRecordStop->isEnabled()
                   ? choose(*ui.menuitemActionRecordStop, WishAnswer::NotRecording)
                   : record(controller);
    if (wish != wishes::pause)
        return WishAnswer::Refused;
    return controller.recording.m_RecordStatus() == RECORD_STATUS_PAUSE
               ? record(controller)
               : choose(*ui.menuitemActionRecordPause, WishAnswer::NotRecording);
}
