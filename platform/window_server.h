// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/input_watch.h"
#include "platform/pointer_watch.h"

#include <QRect>
#include <QRectF>
#include <QString>
#include <QStringView>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

/// One window on the screen, as the window server describes it.
struct WindowDescription {
    /// The window's number, unique among the windows that exist at one time.
    std::uint32_t number = 0;
    /// 0 when the window may not be shared (it opted out), another value otherwise.
    std::int32_t sharingState = 1;
    /// The name of the application that owns the window, never a title; it may be unknown. Windows
    /// of this program's own process bear `ownWindowsName`, whatever the executable is called.
    std::optional<QString> ownerName;
    /// The process that owns the window; 0 when the server cannot tell.
    std::int64_t ownerPid = 0;
    /// Place and size in the desktop's own units (pixels), origin at the desktop's upper left.
    QRectF bounds;
    /// The window's layer: 0 for ordinary windows, below 0 for the desktop's background, above for
    /// panels, menus and other windows that are kept on top.
    std::int32_t layer = 0;
    /// It hides whatever lies behind it: no shape of its own, no transparency, and nobody at work
    /// (a compositing manager) who may show windows through others or elsewhere.
    bool opaque = false;
};

/// A window as its user knows it.
struct TitledWindow {
    /// As its title bar has it; may be empty.
    QString title;
    /// What is seen of it, its title bar included and shadows left out, in the desktop's pixels
    /// from its upper left. It may reach beyond the desktop.
    QRect frame;
};

/// The owner name of this program's own windows.
inline constexpr QLatin1StringView ownWindowsName("Tovarel");

/// Why a session cannot be recorded. A value: the words for it are found elsewhere.
enum class Obstacle {
    NoDisplay,        ///< There is no server, or it refuses.
    NoComposite,      ///< Our own windows could not be left out.
    MissingExtension, ///< Another extension that the back end needs is missing.
    PictureFormat,    ///< The server does not hold pictures as words of 32 bits.
    WaylandSession,   ///< An X server may answer, but it shows the windows of X clients only.
    NoPortal,         ///< A Wayland session whose desktop hands out no pictures of the screen.
};

/// Whether what hands do can be had beside the picture of the windows, which shows none of it.
enum class HandAccess {
    Granted,
    NothingRecorded, ///< Without a picture there is nothing to show it in.
    NotOffered,      ///< The display does not tell.
};

/// What a back end is able to do.
struct WindowServerCapabilities {
    /// It can list the single windows on the screen.
    bool canList = false;
    /// It can compose a picture that leaves out some of them.
    bool canLeaveOut = false;
    /// It learns what changed, so that a grab costs what changed.
    bool knowsDamage = false;
    /// It can tell where the pointer is and what it looks like.
    HandAccess pointer = HandAccess::NothingRecorded;
    /// It can tell what is done to the mouse's buttons, and to the keys, in all windows.
    HandAccess clicks = HandAccess::NothingRecorded;
    HandAccess keys = HandAccess::NothingRecorded;
};

/// The window server: the list of the windows on screen, and one picture of those that are asked
/// for. What a session with such a server is recorded by (`WindowServerSource`); it knows nothing
/// of recordings. All calls come from the main thread.
class WindowServer {
public:
    virtual ~WindowServer() = default;

    /// The same as long as the server lives.
    virtual WindowServerCapabilities capabilities() const = 0;

    /// Why this server cannot record; none when it can.
    virtual std::optional<Obstacle> obstacle() const = 0;

    /// The windows on screen, front to back, menus and tool tips included. The desktop's background
    /// is the last entry. Windows that vanish meanwhile are left out; an empty list when the server
    /// cannot list.
    virtual std::vector<WindowDescription> listWindows() = 0;

    /// The windows on screen that a user would point at, front to back: no menus, no panels,
    /// nothing of this program or of what may not be shared. Empty when the server cannot tell.
    virtual std::vector<TitledWindow> titledWindows() { return {}; }

    /// One picture of the whole desktop (all displays, in pixels, upper left origin) that shows
    /// exactly the windows with these numbers, front to back in the order given; what none of them
    /// covers is black. Numbers that no window bears any more are passed over. Two calls between
    /// which nothing changed yield the same picture (`Image::sameAs`). None when the server has no
    /// picture to give.
    ///
    /// With `part` (pixels) the picture has the desktop's size all the same but need only be right
    /// within that part, and costs no more than that; elsewhere it may show anything that was there
    /// before. Two calls for one part between which nothing changed in it yield the same picture.
    virtual std::optional<Image> composite(std::span<const std::uint32_t> numbers,
                                           const std::optional<QRect> &part) = 0;

    /// Follows the pointer from now on; null when that cannot be had. Ends before the server does.
    virtual std::unique_ptr<PointerWatch> watchPointer() { return nullptr; }

    /// Hears what hands do from now on; null when that cannot be had. Ends before the server does.
    virtual std::unique_ptr<InputWatch> watchInput(InputKinds) { return nullptr; }

    /// The whole of it.
    std::optional<Image> composite(std::span<const std::uint32_t> numbers) {
        return composite(numbers, std::nullopt);
    }
};

/// The server of the X display; a null one with the obstacle where nothing can be recorded. Never
/// null itself.
std::unique_ptr<WindowServer> makeWindowServer();
