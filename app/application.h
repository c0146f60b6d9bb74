// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

class AppDelegate;

/// The application object: Qt's, with a delegate. The delegate is borrowed and outlives it in
/// practice, since the process ends through `AppDelegate::Terminate_App`.
class Application : public QApplication {
    Q_OBJECT

public:
    using QApplication::QApplication;

    AppDelegate *delegate() const { return delegate_; }
    void setDelegate(AppDelegate *delegate) { delegate_ = delegate; }

private:
    AppDelegate *delegate_ = nullptr;
};
