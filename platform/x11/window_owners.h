// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"
#include "platform/x11/owner_properties.h"

#include <span>
#include <unordered_map>
#include <vector>

namespace x11 {

/// Who owns the windows on screen.
///
/// The stack holds a window manager's frames, while process, class and the other properties belong
/// to the client window within: the frame's client is found first (known from ReparentNotify, else
/// by WM_STATE among the frame's descendants, else the first descendant that another X client made;
/// a window without any of these is its own client). All answers are kept until something tells
/// that they changed.
class WindowOwners {
public:
    explicit WindowOwners(Connection &connection);

    /// A client was taken into a frame (or anything else): both may or may not be of interest.
    void onReparent(xcb_window_t window, xcb_window_t parent);
    /// True when an owner has to be asked for again.
    bool onProperty(const xcb_property_notify_event_t &event);
    /// The window on the root has another size: its client has another place in it.
    void onResize(xcb_window_t window);
    /// A client has another size or place in its frame. True when an owner has to be asked again.
    bool onClientResize(xcb_window_t client);
    /// The window is gone.
    void forget(xcb_window_t window);

    /// Finds out all that is not known about these windows, together.
    void settle(std::span<const std::uint32_t> windows);

    /// Null before `settle`, and for windows that vanished meanwhile.
    const WindowOwner *find(xcb_window_t window) const;
    /// The client in it, or itself; 0 before `settle`.
    xcb_window_t clientOf(xcb_window_t window) const;
    /// Whether a window manager looks after the window.
    bool isManaged(xcb_window_t window) const;

private:
    struct Entry {
        xcb_window_t client = 0; // 0: not found yet
        bool managed = false;
        bool known = false;
        WindowOwner owner;
    };
    struct Node {
        xcb_window_t top = 0;
        xcb_window_t window = 0;
    };

    void findClients(const std::vector<xcb_window_t> &tops);
    std::vector<Node> searchLevel(const std::vector<Node> &level);
    void setClient(xcb_window_t top, xcb_window_t client, bool managed);
    void askOwners(const std::vector<xcb_window_t> &tops);

    Connection &connection_;
    std::unordered_map<xcb_window_t, Entry> entries_;
    std::unordered_map<xcb_window_t, xcb_window_t> topOfClient_;
    std::unordered_map<xcb_window_t, xcb_window_t> clientOfParent_; // from ReparentNotify
    std::int64_t ownPid_;
};

} // namespace x11
