// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// The scene on the whole screen, moving, beneath all windows.
#include "scripts/sheets/scene.h"

#include <QApplication>
#include <QBasicTimer>
#include <QPainter>
#include <QScreen>
#include <QWidget>

namespace {

constexpr int perSecond = 12;

class SceneWindow : public QWidget {
public:
    SceneWindow() : QWidget(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnBottomHint) {
        setWindowTitle(QStringLiteral("scene"));
        setAttribute(Qt::WA_ShowWithoutActivating);
        setGeometry(screen()->geometry());
        timer_.start(1000 / perSecond, this);
    }

protected:
    void timerEvent(QTimerEvent *) override {
        ++step_;
        update();
    }
    void paintEvent(QPaintEvent *) override {
        QPainter(this).drawImage(rect(), scene(size(), step_));
    }

private:
    QBasicTimer timer_;
    int step_ = 0;
};

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    SceneWindow window;
    window.show();
    return QApplication::exec();
}
