// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"

#include "app/application.h"
#include "platform/global_shortcuts.h"
#include "platform/window_server.h"
#include "record/recording_loader.h"
#include "record/save/frame_saver.h"
#include "shell/working_folders.h"
#include "ui_MainWindow.h"

#include <utility>

AppDelegate::AppDelegate(Environment environment)
    : ui(std::make_unique<Ui::MainWindow>()), windowServer_(std::move(environment.windowServer)),
      documentsFolder_(std::move(environment.documentsFolder)) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::RemoveAllContentInFolder(const QString &folder) {
    working_folders::removeContent(folder);
}

AppDelegate *appDelegate() {
    const auto *application = qobject_cast<Application *>(QCoreApplication::instance());
    return application ? application->delegate() : nullptr;
}
