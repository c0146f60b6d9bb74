// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/stepping_aside.h"

#include "shell/settings.h"
#include "shell/surroundings.h"

#include <QApplication>
#include <QMainWindow>
#include <QWindow>

#include <chrono>
#include <utility>

namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

/// From the request to be out of sight to the first picture that counts, at least: a compositor on
/// a slow machine takes half a second, and may let the window fly away.
constexpr milliseconds untilGone{600};
/// After so long without another picture nothing flies any more.
constexpr milliseconds stillForSure{700};
/// If nothing at all has changed for so long, the window was not in the pictures.
constexpr milliseconds neverSeen{3000};
/// A compositor that still shows the window after so long does not minimize windows.
constexpr milliseconds longestWait{2000};
constexpr milliseconds betweenLooks{50};
/// Not seen for a shorter time it may be that the compositor was only slow.
constexpr milliseconds unseenForSure{300};

/// Whether the event tells that a window of ours is on the screen, or just about to be.
bool showsOneOfOurs(QObject *watched, const QEvent &event) {
    switch (event.type()) {
    case QEvent::Expose: {
        // A window that nobody sees gets no leave to draw, which the toolkit takes for its end of
        // being exposed; with the first leave it gets it is exposed again.
        const auto *window = qobject_cast<const QWindow *>(watched);
        return window && window->isExposed();
    }
    case QEvent::WindowActivate:
    case QEvent::ApplicationActivate:
        return true;
    case QEvent::Show: {
        const auto *widget = qobject_cast<const QWidget *>(watched);
        return widget && widget->isWindow() && !event.spontaneous();
    }
    default:
        return false;
    }
}

} // namespace

bool isGoneFromPictures(Clock::time_point newest, Clock::time_point left, Clock::time_point now) {
    if (newest <= left)
        return now - left >= neverSeen;
    return newest - left >= untilGone || now - newest >= stillForSure;
}

SteppingAside::SteppingAside(Surroundings &surroundings, NewestPicture newestPicture)
    : surroundings_(surroundings), newestPicture_(std::move(newestPicture)) {
    looks_.setInterval(betweenLooks);
    connect(&looks_, &QTimer::timeout, this, &SteppingAside::look);
}

SteppingAside::~SteppingAside() = default;

bool SteppingAside::mustGo(std::function<void()> goOn) {
    if (place_ == Place::Away)
        return false;
    if (place_ == Place::Going || surroundings_.alerts.isAsking())
        return true;
    if (settings::readSteppingAsideExplained())
        go(std::move(goOn));
    else
        explain(std::move(goOn));
    return true;
}

void SteppingAside::goQuietly(std::function<void()> goOn) {
    if (place_ != Place::Here || surroundings_.alerts.isAsking())
        return;
    quiet_ = true;
    go(std::move(goOn));
}

void SteppingAside::explain(std::function<void()> goOn) {
    const Question question{.message = qtTrId("IDD_STEP_ASIDE"),
                            .detail = qtTrId("IDD_STEP_ASIDE_HOW_TO_STOP"),
                            .accept = qtTrId("IDD_OK"),
                            .destroy = {},
                            .cancel = qtTrId("IDD_CANCEL")};
    surroundings_.alerts.ask(question, [this, goOn = std::move(goOn)](Answer answer) {
        if (answer != Answer::Accept)
            return;
        settings::writeSteppingAsideExplained();
        go(goOn);
    });
}

void SteppingAside::go(std::function<void()> goOn) {
    place_ = Place::Going;
    goOn_ = std::move(goOn);
    isMinimized_ = false;
    qApp->installEventFilter(this);
    since_.start();
    unseen_.start();
    looks_.start();
}

// A Wayland client cannot bring a minimized window back by itself, but its user can; nobody can do
// that with a hidden one.
void SteppingAside::minimize() {
    isMinimized_ = true;
    surroundings_.shell.window()->showMinimized();
    left_ = Clock::now();
    since_.start();
    unseen_.start();
}

bool SteppingAside::isGone() const {
    if (milliseconds(since_.elapsed()) < untilGone ||
        milliseconds(unseen_.elapsed()) < unseenForSure)
        return false;
    const auto newest = newestPicture_();
    return !newest || isGoneFromPictures(*newest, left_, Clock::now());
}

void SteppingAside::look() {
    QMainWindow &window = *surroundings_.shell.window();
    // Drawing is how we learn whether anybody sees it.
    window.update();
    const QWindow *handle = window.windowHandle();
    const bool isSeen = handle && handle->isExposed();
    if (isSeen)
        unseen_.start();
    if (!isMinimized_) {
        // A window that has just been shown may not be on the screen yet; a compositor minimizes
        // only what is.
        if (isSeen || milliseconds(since_.elapsed()) >= longestWait)
            minimize();
        return;
    }
    if (isSeen && milliseconds(since_.elapsed()) >= longestWait) {
        // A start of the program while it runs brings it back.
        window.hide();
        left_ = Clock::now();
        since_.start();
    }
    if (!isGone())
        return;
    looks_.stop();
    place_ = Place::Away;
    if (const auto goOn = std::exchange(goOn_, nullptr))
        goOn();
}

bool SteppingAside::eventFilter(QObject *watched, QEvent *event) {
    // While it goes the news may still be of the time before.
    if (place_ == Place::Away && !quiet_ && showsOneOfOurs(watched, *event))
        arrive();
    return false;
}

void SteppingAside::arrive() {
    qApp->removeEventFilter(this);
    place_ = Place::Here;
    quiet_ = false;
    goOn_ = nullptr;
    looks_.stop();
    Q_EMIT cameBack();
    // The toolkit isn't told that the desktop has restored the window, and would minimise it no
    // second time.
    QMainWindow *window = surroundings_.shell.window();
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
}

void SteppingAside::comeBack() {
    if (place_ == Place::Here)
        return;
    arrive();
    // Shown anew, since it cannot be restored.
    QMainWindow *window = surroundings_.shell.window();
    window->hide();
    window->show();
    window->raise();
    window->activateWindow();
}
