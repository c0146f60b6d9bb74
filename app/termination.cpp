// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "shell/settings.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMainWindow>

#include <cstdlib>

bool AppDelegate::eventFilter(QObject *watched, QEvent *event) {
    const bool closing = watched == shell.window() && event->type() == QEvent::Close;
    // The application object asks to quit when the desktop session or the window system ends us.
    const bool quitting = watched == QCoreApplication::instance() && event->type() == QEvent::Quit;
    if (quitting)
        applicationWillTerminate();
    if (!closing)
        return QObject::eventFilter(watched, event);
    windowWillClose();
    event->ignore();
    return true;
}

void AppDelegate::windowWillClose() {
    // A click on the close button must not cost the recording that is being saved.
    if (isSavingRecording()) {
        surroundings.showStatus(qtTrId("IDD_CLOSE_WAITS"));
        return;
    }
    endForTheUser();
}

void AppDelegate::endForTheUser() {
    // What is being read is still whole on disk, and is offered again.
    if (isOpeningRecording())
        Terminate_App();
    if (mustAskFirst([this] { endForTheUser(); }))
        return;
    forgetRecording();
    Terminate_App();
}

void AppDelegate::applicationWillTerminate() { Terminate_App(); }

void AppDelegate::Terminate_App() {
    disconnect(shell.localeChangeObserver());
    settings::flush();
    // No destructors: save threads may be at work beside them, and nested event loops stand on the
    // stack. A running tool is ended by the kernel, which was told so when it was started.
    std::_Exit(EXIT_SUCCESS);
}
