// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// The counter's picture (tests/support/counter_window.cpp tells of it) as a Wayland client, which
// has no say in where it stands: it fills its screen, unless it is given a size.
//
//   wayland_counter [--size WxH] [--rate N] [--screen N]
//
// A line "WxH" on its standard input gives it another size. It writes "shown" to standard output
// once it has been drawn on the screen, and "drawn N" with its processor's clock at every N that it
// draws if it is asked to by --log.
#include "tests/support/counter_options.h"
#include "tests/support/counter_picture.h"

#include <QGuiApplication>
#include <QPainter>
#include <QRasterWindow>
#include <QScreen>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <cstdio>

#include <unistd.h>

namespace {

class CounterWindow : public QRasterWindow {
public:
    explicit CounterWindow(const CounterOptions &options) : options_(options) {
        setTitle(QStringLiteral("counter"));
        setFlags(Qt::FramelessWindowHint);
        timer_.setTimerType(Qt::PreciseTimer);
        connect(&timer_, &QTimer::timeout, this, [this] { tick(); });
        timer_.start(1);
    }

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter painter(this);
        for (const auto &[place, colour] : counterPicture(number_, size()))
            painter.fillRect(place, QColor(static_cast<QRgb>(colour)));
        if (options_.log)
            std::printf("drawn %u %lld\n", number_,
                        static_cast<long long>(
                            std::chrono::steady_clock::now().time_since_epoch().count()));
        if (options_.log || !told_)
            std::fflush(stdout);
        if (!told_ && number_ > 0) {
            told_ = true;
            std::puts("shown");
            std::fflush(stdout);
        }
    }

private:
    void tick() {
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start_;
        const auto due = static_cast<std::uint32_t>(passed.count() * options_.rate);
        if (due == number_)
            return;
        number_ = due;
        update();
    }

    CounterOptions options_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    std::uint32_t number_ = 0;
    bool told_ = false;
    QTimer timer_;
};

} // namespace

int main(int argc, char **argv) {
    QGuiApplication application(argc, argv);
    const CounterOptions options = parse(argc, argv, {}); // 0 by 0: the whole screen
    CounterWindow window(options);
    QScreen *screen = QGuiApplication::screens().value(options.screen);
    window.setScreen(screen);
    // Without a place of its own the toolkit would move it to the pointer's screen.
    window.setGeometry(screen->geometry());
    if (options.width > 0) {
        window.resize(options.width, options.height);
        window.show();
    } else {
        window.showFullScreen();
    }
    QSocketNotifier commands(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&commands, &QSocketNotifier::activated, &window, [&] {
        char line[32] = {};
        int width = 0, height = 0;
        if (read(STDIN_FILENO, line, sizeof line - 1) <= 0)
            commands.setEnabled(false);
        else if (std::sscanf(line, "%dx%d", &width, &height) == 2)
            window.resize(width, height);
    });
    return QGuiApplication::exec();
}
