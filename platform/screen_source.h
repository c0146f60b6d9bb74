// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/window_server.h"

#include <QObject>
#include <QRect>
#include <QSize>
#include <QString>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

/// What a source is able to do.
struct ScreenSourceCapabilities {
    /// The user chooses in a dialog of the desktop what is recorded, and nothing can be before. A
    /// source that asks knows no windows.
    bool asksUser = false;
    /// Our own windows are not in the pictures, whatever stands where. Of a source that asks it is
    /// known once something was chosen.
    bool leavesOwnOut = false;
    /// It can tell where the pointer is and what it looks like.
    HandAccess pointer = HandAccess::NothingRecorded;
    /// It can tell of the user's clicks, and of the keys that are pressed.
    HandAccess clicks = HandAccess::NothingRecorded;
    HandAccess keys = HandAccess::NothingRecorded;
};

/// What a source is doing. Pictures come in `Live` only.
enum class SourceState {
    Idle,    ///< Not started, or stopped.
    Asking,  ///< The desktop asks the user.
    Waiting, ///< Something was chosen; its first picture has not come yet.
    Live,
    Ended,   ///< The desktop has ended it, or it failed: `reason` tells.
    Refused, ///< The user has chosen nothing.
};

/// What the user has chosen in the desktop's dialog.
struct ChosenSource {
    enum class Kind { Monitor, Window, Other };

    Kind kind = Kind::Other;
    /// Place and size in the desktop's points, as far as the desktop tells; not every one tells the
    /// truth.
    std::optional<QRect> place;
};

/// A picture of the screen, or of what was chosen of it.
struct ScreenPicture {
    Image image;
    /// Pixels of the picture for one of the desktop's points; none for a picture of the whole
    /// desktop, on which each monitor has a ratio of its own.
    std::optional<double> pixelsPerPoint = {};
};

/// Where the pictures of a recording come from: what stands between the capture and a window server
/// of ours, or a stream that the desktop hands out. It knows nothing of recordings. All calls and
/// signals belong to the main thread, and no call waits for the desktop or the user.
class ScreenSource : public QObject {
    Q_OBJECT

public:
    struct Start {
        std::uint64_t rate = 1; ///< Pictures a second that are of use.
        /// Names what was chosen an earlier time, so that the desktop need not ask again; empty to
        /// be asked. The desktop may ask all the same.
        QString restoreToken = {};
        /// Pictures show the mouse pointer, where the source draws it and `watchPointer` is null.
        bool pointer = false;
        /// No window can be chosen, whatever `restoreToken` names. For a source that asks.
        bool onlyMonitors = false;
    };

    virtual ScreenSourceCapabilities capabilities() const = 0;

    /// Why nothing can be recorded in this session; none when something can. A source that asks may
    /// find out a moment after it was made, with `stateChanged`.
    virtual std::optional<Obstacle> obstacle() const = 0;

    virtual SourceState state() const = 0;
    /// In `Ended`: what failed, in words of the desktop's; empty when the desktop has ended it as
    /// the user wished.
    virtual QString reason() const { return {}; }

    /// Begins to deliver pictures; what was begun before is ended. Returns at once.
    virtual void start(const Start &how) = 0;
    /// Another rate from now on.
    virtual void setRate(std::uint64_t rate) = 0;
    /// `Idle` from now on.
    virtual void stop() = 0;

    /// What was chosen; none of a source that doesn't ask, or before `Waiting`.
    virtual std::optional<ChosenSource> chosen() const { return {}; }
    /// Names what was chosen for a later start; empty when the desktop doesn't remember it. Each
    /// serves once.
    virtual QString restoreToken() const { return {}; }

    /// The windows on screen, see `WindowServer::listWindows`; an empty list of a source that asks.
    virtual std::vector<WindowDescription> windows() = 0;

    /// The windows that a user would point at, see `WindowServer::titledWindows`.
    virtual std::vector<TitledWindow> titledWindows() { return {}; }

    /// Follows the pointer from now on; null when that cannot be had. Ends before the source does.
    virtual std::unique_ptr<PointerWatch> watchPointer() { return nullptr; }

    /// Listens to the user's hands from now on, see `WindowServer::watchInput`.
    virtual std::unique_ptr<InputWatch> watchInput(InputKinds) { return nullptr; }

    /// The latest picture, the same (`Image::sameAs`) until something changed; none when there is
    /// none to give. `numbers` and `part` are as for `WindowServer::composite`; a source that asks
    /// knows no numbers and always gives all that was chosen.
    virtual std::optional<ScreenPicture> latest(std::span<const std::uint32_t> numbers,
                                                const std::optional<QRect> &part) = 0;

    /// When the newest picture was drawn, be it the same as before; none before the first, or of a
    /// source that is asked for a picture when one is needed.
    virtual std::optional<std::chrono::steady_clock::time_point> newestPicture() const {
        return {};
    }

Q_SIGNALS:
    /// State, obstacle, or what was chosen may be another now.
    void stateChanged();
};

/// The source of the session: of a Wayland session what its portal hands out, otherwise the window
/// server of the display. Never null; one with an obstacle where nothing can be recorded.
std::unique_ptr<ScreenSource> makeScreenSource();
