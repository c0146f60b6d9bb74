// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

class Surroundings;

/// Whether pictures no longer show windows that were asked to go at `left`, now and from `now` on;
/// the newest of them was drawn at `newest`. A compositor that is busy with their leaving may hand
/// out no picture for seconds, and then a clock alone tells nothing.
bool isGoneFromPictures(std::chrono::steady_clock::time_point newest,
                        std::chrono::steady_clock::time_point left,
                        std::chrono::steady_clock::time_point now);

/// Keeps our own windows out of pictures that hold everything visible, as a Wayland desktop hands
/// them out: they get out of the way before the first frame counts, and whoever listens learns at
/// once when one of them may be seen again.
class SteppingAside : public QObject {
    Q_OBJECT

public:
    /// When the newest picture was drawn; none where nobody knows.
    using NewestPicture = std::function<std::optional<std::chrono::steady_clock::time_point>()>;

    /// `surroundings` are borrowed and outlive it.
    SteppingAside(Surroundings &surroundings, NewestPicture newestPicture);
    ~SteppingAside() override;

    /// Whether our windows still have to go first. If so they begin to, and `goOn` is called when
    /// they have been out of sight for long enough, unless they came back meanwhile. The very first
    /// time the user is told before, and may think better of it.
    bool mustGo(std::function<void()> goOn);

    /// Lets our windows go, without a word to the user, as `mustGo` does. Then other windows of
    /// ours than the main one may show themselves; `comeBack` brings that back.
    void goQuietly(std::function<void()> goOn);

    /// Shows the main window again if it has stepped aside.
    void comeBack();

    bool isHere() const { return place_ == Place::Here; }
    bool isAway() const { return place_ == Place::Away; }

Q_SIGNALS:
    /// Our windows were away, or about to go, and may be seen from now on.
    void cameBack();

private:
    enum class Place { Here, Going, Away };

    void explain(std::function<void()> goOn);
    void go(std::function<void()> goOn);
    void minimize();
    void look();
    void arrive();
    bool eventFilter(QObject *watched, QEvent *event) override;

    bool isGone() const;

    Surroundings &surroundings_;
    NewestPicture newestPicture_;
    std::chrono::steady_clock::time_point left_; ///< When it was asked to be out of sight.
    Place place_ = Place::Here;
    bool quiet_ = false; ///< It is not to be told that something of ours is seen.
    std::function<void()> goOn_;
    bool isMinimized_ = false; ///< It was asked to be, while it goes.
    QTimer looks_;
    QElapsedTimer since_;
    QElapsedTimer unseen_;
};
