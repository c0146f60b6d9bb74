// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QStackedWidget;
class QTabBar;

/// The tab view: a bar of tabs over a stack of pages, with one place that decides whether a page
/// may be entered. A QTabWidget cannot refuse a page; here every way in (mouse, wheel, keyboard,
/// menu, assistive technology) ends in the same question, and a refused one leaves no trace.
///
/// Bar and stack are borrowed; tab i shows page i, and its identifier is the number i + 1 as text.
class TabView : public QObject {
    Q_OBJECT

public:
    struct Delegate {
        /// May the tab with this identifier be entered?
        std::function<bool(const QString &)> shouldSelect;
        /// The tab with this identifier has been entered.
        std::function<void(const QString &)> didSelect;
    };

    TabView(QTabBar &bar, QStackedWidget &stack, Delegate delegate, QObject *parent);

    /// Adds a tab for the next page of the stack.
    void addTab(const QString &label);

    /// Asks for the tab at `index`, counted from 0; one that is shown already is not entered again.
    void selectTabViewItemAtIndex(int index);

    int selectedIndex() const;

    /// The identifier of the tab at `index`.
    static QString identifierOf(int index) { return QString::number(index + 1); }

private:
    void request(int index);

    QTabBar &bar_;
    QStackedWidget &stack_;
    Delegate delegate_;
};
