// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <type_traits>

/// One connection to the X server, with what every part of the back end asks of it: replies that
/// free themselves, the extensions that the server has, and the atoms. It knows the protocol's
/// manners and nothing of windows or pictures. For one thread.
namespace x11 {

/// The C library hands out replies and events that are returned with free().
struct FreeReply {
    void operator()(void *reply) const { std::free(reply); }
};
template <class T> using Reply = std::unique_ptr<T, FreeReply>;

/// Tells the log of an error that nothing follows from (category "tovarel.x11").
void logDropped(const xcb_generic_error_t &error);

struct Disconnect {
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};
using OwnConnection = std::unique_ptr<xcb_connection_t, Disconnect>;

/// Connects to `display`, or to what DISPLAY names when it is null; null when there is no server or
/// it refuses. `screen` gets the number of the screen that the display names.
OwnConnection openDisplay(const char *display = nullptr, int *screen = nullptr);
using Event = Reply<xcb_generic_event_t>;

/// What the server can do beyond the core protocol, and where its events start.
struct Extensions {
    bool composite = false;
    bool damage = false;
    bool fixes = false;
    bool render = false;
    bool shape = false;
    bool resources = false;            ///< version 1.2, which names processes
    bool sharedMemory = false;         ///< MIT-SHM, if only for fetches
    bool sharedPixmaps = false;        ///< pixmaps whose pixels lie in shared memory
    std::uint8_t compositeRequest = 0; ///< the major opcode, which errors name
    std::uint8_t damageEvent = 0;
    std::uint8_t fixesEvent = 0;
    std::uint8_t shapeEvent = 0;
};

/// The names that we ask for, as the server's numbers (EWMH 1.5, and old custom).
struct Atoms {
    xcb_atom_t activeWindow = 0;
    xcb_atom_t clientList = 0;
    xcb_atom_t clientListStacking = 0;
    xcb_atom_t currentDesktop = 0;
    xcb_atom_t compositingManager = 0; ///< the selection that a compositing manager owns
    xcb_atom_t frameExtents = 0;
    xcb_atom_t gtkFrameExtents = 0; ///< the shadow in a client's own window, by custom of GTK
    xcb_atom_t iconGeometry = 0;
    xcb_atom_t netWmDesktop = 0;
    xcb_atom_t netWmName = 0;
    xcb_atom_t netWmPid = 0;
    xcb_atom_t netWmState = 0;
    xcb_atom_t netWmStateAbove = 0;
    xcb_atom_t netWmStateHidden = 0;
    xcb_atom_t netWmStateShaded = 0;
    xcb_atom_t rootPixmap = 0;
    xcb_atom_t sharing = 0;       ///< ours, see X11WindowServer
    xcb_atom_t windowOpacity = 0; ///< by custom of compositing managers
    xcb_atom_t windowType = 0;
    xcb_atom_t windowTypeDesktop = 0;
    xcb_atom_t windowTypeDock = 0;
    xcb_atom_t wmState = 0;
};

class Connection {
public:
    /// Connects to `display`, or to what DISPLAY names when it is null; null when there is no
    /// server or it refuses.
    static std::unique_ptr<Connection> open(const char *display = nullptr);

    ~Connection() = default;
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    /// A second connection to the same server; null when it refuses.
    std::unique_ptr<Connection> another() const {
        return open(display_.empty() ? nullptr : display_.c_str());
    }

    xcb_connection_t *get() const { return connection_.get(); }
    const xcb_setup_t &setup() const { return *xcb_get_setup(get()); }
    const xcb_screen_t &screen() const { return *screen_; }
    xcb_window_t root() const { return screen_->root; }
    const Extensions &extensions() const { return extensions_; }
    const Atoms &atoms() const { return atoms_; }

    /// Whether the server is gone; every call is harmless then and yields nothing.
    bool broken() const { return xcb_connection_has_error(get()) != 0; }

    std::uint32_t newId() const { return xcb_generate_id(get()); }

    /// The bits of a resource's number that say which client made it; 0 for the server's own
    /// resources, such as a compositing manager's overlay window.
    std::uint32_t clientBits(std::uint32_t resource) const {
        return resource & ~setup().resource_id_mask;
    }

    /// Waits for the answer to a request, as in `reply<xcb_get_geometry_reply>(cookie)`; null when
    /// the server answered with an error: what a request is about may be gone at any time, so that
    /// errors are normal.
    template <auto Fetch, class Cookie> auto reply(Cookie cookie) {
        using Answer = std::remove_pointer_t<decltype(Fetch(get(), cookie, nullptr))>;
        xcb_generic_error_t *error = nullptr;
        Reply<Answer> answer(Fetch(get(), cookie, &error));
        if (error)
            logDropped(*error);
        std::free(error);
        return answer;
    }

    /// Whether a request that was sent as a checked one went well; waits for it.
    bool succeeded(xcb_void_cookie_t checked);

    /// The next event, or error (response type 0), that has arrived; null when there is none.
    Event nextEvent() { return Event(xcb_poll_for_event(get())); }

    /// Returns when the server has done everything that was asked of it so far.
    void roundTrip();

private:
    Connection(OwnConnection connection, xcb_screen_t *screen);
    void queryExtensions();
    void internAtoms(int screenNumber);

    std::string display_; // empty: what DISPLAY names
    OwnConnection connection_;
    xcb_screen_t *screen_;
    Extensions extensions_;
    Atoms atoms_;
};

} // namespace x11
