// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/tab_view.h"

#include <QStackedWidget>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class TabViewTest : public testing::Test {
protected:
    TabViewTest() {
        for (int page = 0; page < 3; ++page) {
            stack.addWidget(new QWidget(&stack));
            view.addTab(QStringLiteral("&%1").arg(page + 1));
        }
        bar.resize(300, 30);
        bar.show();
    }

    QTabBar bar;
    QStackedWidget stack;
    bool allowed = true;
    QStringList entered;
    TabView view{bar,
                 stack,
                 {.shouldSelect = [this](const QString &) { return allowed; },
                  .didSelect = [this](const QString &id) { entered << id; }},
                 nullptr};
};

} // namespace

TEST_F(TabViewTest, everyWayInEntersATabOnceWhenItIsAllowed) {
    view.selectTabViewItemAtIndex(1);
    bar.setCurrentIndex(2);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(0).center());
    view.selectTabViewItemAtIndex(0);
    EXPECT_EQ(entered,
              QStringList({QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("1")}));
    EXPECT_EQ(view.selectedIndex(), 0);
    EXPECT_EQ(bar.currentIndex(), 0);
}

TEST_F(TabViewTest, aTabThatIsRefusedIsNotEntered) {
    allowed = false;
    view.selectTabViewItemAtIndex(1);
    bar.setCurrentIndex(2);
    EXPECT_EQ(entered, QStringList());
    EXPECT_EQ(view.selectedIndex(), 0);
    EXPECT_EQ(bar.currentIndex(), 0);
}
