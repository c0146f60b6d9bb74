// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/contrast.h"
#include "shell/edged_style.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>

#include <gtest/gtest.h>

#include <string>

namespace {

QPalette look(const QColor &window, const QColor &base, const QColor &accent) {
    QPalette palette(window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Highlight, accent);
    return palette;
}

class EdgedStyleIn : public testing::TestWithParam<std::string> {
protected:
    QPalette palette() const {
        if (GetParam() == "light")
            return look(QColor(239, 239, 239), Qt::white, QColor(48, 140, 198));
        return GetParam() == "dark"
                   ? look(QColor(42, 46, 50), QColor(27, 30, 32), QColor(61, 174, 233))
                   : look(Qt::black, Qt::black, Qt::yellow);
    }

    QImage drawn(QWidget &control) {
        control.setStyle(&style);
        control.setPalette(palette());
        control.resize(control.sizeHint());
        return control.grab().toImage();
    }

    /// The best contrast with the window among the outermost pixels at half the height.
    double edge(const QImage &picture) const {
        const QColor window = palette().color(QPalette::Window);
        double best = 1;
        for (int x = 0; x < 3; ++x)
            best = std::max(best, contrast(picture.pixelColor(x, picture.height() / 2), window));
        return best;
    }

    EdgedStyle style;
};

TEST_P(EdgedStyleIn, everyControlHasAnEdgeThatIsSeen) {
    QCheckBox box;
    QRadioButton radio;
    QLineEdit field;
    QSpinBox number;
    QComboBox list;
    QPushButton button;
    for (QWidget *control :
         std::initializer_list<QWidget *>{&box, &radio, &field, &number, &list, &button})
        EXPECT_GE(edge(drawn(*control)), leastContrast) << control->metaObject()->className();
}

TEST_P(EdgedStyleIn, aCheckedToolIsToldFromOneThatIsNot) {
    QToolButton tool;
    tool.setAutoRaise(true);
    tool.setCheckable(true);
    EXPECT_EQ(edge(drawn(tool)), 1);
    tool.setChecked(true);
    EXPECT_GE(edge(drawn(tool)), leastContrast);
}

TEST_P(EdgedStyleIn, disabledItemsOfMenusAreDrawnOnce) {
    QMenu menu;
    menu.addAction(QStringLiteral("████"))->setEnabled(false);
    QPalette embossed = palette();
    embossed.setColor(QPalette::Light, Qt::red);
    menu.setStyle(&style);
    menu.setPalette(embossed);
    menu.resize(menu.sizeHint());
    const QImage picture = menu.grab().toImage();
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ASSERT_NE(picture.pixelColor(x, y), QColor(Qt::red)) << x << ',' << y;
}

TEST(EdgedStyle, aMenuHasRoomForItsWidestText) {
    EdgedStyle style;
    QMenu menu;
    menu.setStyle(&style);
    QFont font = menu.font();
    for (const int points : {9, 11, 14}) {
        font.setPointSize(points);
        menu.setFont(font);
        menu.clear();
        QAction *item = menu.addAction(QStringLiteral("プライバシーポリシー(&R)"));
        const QRect text = menu.actionGeometry(item).adjusted(0, 0, -4, 0);
        menu.resize(menu.sizeHint());
        const QImage shown = menu.grab(text).toImage();
        menu.setMinimumWidth(menu.width() + 100);
        EXPECT_EQ(shown, menu.grab(text).toImage()) << points;
        menu.setMinimumWidth(0);
    }
}

INSTANTIATE_TEST_SUITE_P(Looks, EdgedStyleIn, testing::Values("light", "dark", "contrast"));

} // namespace
