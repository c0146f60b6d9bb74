// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/tab_view.h"

#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>

#include <utility>

TabView::TabView(QTabBar &bar, QStackedWidget &stack, Delegate delegate, QObject *parent)
    : QObject(parent), bar_(bar), stack_(stack), delegate_(std::move(delegate)) {
    bar_.setExpanding(true);
    bar_.setDocumentMode(true);
    bar_.setDrawBase(true);
    connect(&bar_, &QTabBar::currentChanged, this, &TabView::request);
}

void TabView::addTab(const QString &label) {
    // The first tab becomes current by itself; that is no user's request.
    const QSignalBlocker quiet(bar_);
    bar_.addTab(label);
}

void TabView::selectTabViewItemAtIndex(int index) { request(index); }

int TabView::selectedIndex() const { return stack_.currentIndex(); }

void TabView::request(int index) {
    if (index < 0 || index >= stack_.count())
        return;
    const bool enter = index != stack_.currentIndex();
    const QString identifier = identifierOf(index);
    const bool allowed = !enter || delegate_.shouldSelect(identifier);
    {
        // The bar follows the decision, so a tab that it chose by itself goes back when refused.
        const QSignalBlocker quiet(bar_);
        bar_.setCurrentIndex(allowed ? index : stack_.currentIndex());
    }
    if (!enter || !allowed)
        return;
    stack_.setCurrentIndex(index);
    delegate_.didSelect(identifier);
}
