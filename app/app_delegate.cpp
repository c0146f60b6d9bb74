// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"

#include "app/application.h"
#include "platform/global_shortcuts.h"
#include "platform/window_server.h"
#include "record/recording_loader.h"
#include "record/save/frame_saver.h"
#include "ui_MainWindow.h"

#include <QTextDocument>

#include <utility>

AppDelegate::AppDelegate(Environment environment)
    : ui(std::make_unique<Ui::MainWindow>()), windowServer_(std::move(environment.windowServer)),
      documentsFolder_(std::move(environment.documentsFolder)) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::ShowStatus(const QString &text) {
    ui->labelStatus->setText(text);
    // A path may look like markup, which a tip would follow; the label itself is set to plain text.
    ui->labelStatus->setToolTip(text.isEmpty() ? text : Qt::convertFromPlainText(text));
}

AppDelegate *appDelegate() {
    const auto *application = qobject_cast<Application *>(QCoreApplication::instance());
    return application ? application->delegate() : nullptr;
}
