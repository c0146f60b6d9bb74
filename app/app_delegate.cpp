// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"

#include "app/application.h"
#include "platform/global_shortcuts.h"
#include "platform/window_server.h"
#include "record/frame_saver.h"
#include "ui_MainWindow.h"

#include <QGridLayout>
#include <QMessageBox>
#include <QTextDocument>

#include <utility>

namespace {

constexpr int alertTextWidth = 400; // points

} // namespace

AppDelegate::AppDelegate(Environment environment)
    : ui(std::make_unique<Ui::MainWindow>()), windowServer_(std::move(environment.windowServer)),
      documentsFolder_(std::move(environment.documentsFolder)) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::RunAlert(const QString &messageText, const QString &informativeText) {
    QMessageBox alert(shell.window());
    alert.setObjectName(QStringLiteral("alert"));
    alert.setWindowTitle(shell.s_App_Name());
    alert.setIcon(messageText == QLatin1String("Error") ? QMessageBox::Warning
                                                        : QMessageBox::Information);
    // Tool output and paths come into these texts: they are shown, never interpreted.
    alert.setTextFormat(Qt::PlainText);
    alert.setText(messageText);
    alert.setInformativeText(informativeText);
    alert.setWindowModality(Qt::ApplicationModal);
    alert.addButton(QStringLiteral("Close"), QMessageBox::AcceptRole);
    // Without it the box is as narrow as its title, and a sentence becomes a column of words.
    if (auto *grid = qobject_cast<QGridLayout *>(alert.layout()))
        grid->addItem(new QSpacerItem(alertTextWidth, 0), grid->rowCount(), 0, 1,
                      grid->columnCount());
    alert.exec();
}

void AppDelegate::ShowStatus(const QString &text) {
    ui->labelStatus->setText(text);
    // A path may look like markup, which a tip would follow; the label itself is set to plain text.
    ui->labelStatus->setToolTip(text.isEmpty() ? text : Qt::convertFromPlainText(text));
}

AppDelegate *appDelegate() {
    const auto *application = qobject_cast<Application *>(QCoreApplication::instance());
    return application ? application->delegate() : nullptr;
}
