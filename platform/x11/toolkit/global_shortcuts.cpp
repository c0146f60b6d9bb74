// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/global_shortcuts.h"

#include "platform/x11/connection.h"

#include <QSocketNotifier>

#include <algorithm>
#include <array>
#include <utility>

namespace {

// X11/keysymdef.h; a Latin letter's own symbol is its code.
constexpr xcb_keysym_t superSymbol = 0xffeb;
constexpr xcb_keysym_t numLockSymbol = 0xff7f;

constexpr std::uint8_t kindMask = 0x7f; // without the bit of events that another client sent
constexpr int modifierCount = 8;        // X11 protocol, SetModifierMapping
constexpr std::uint16_t realModifiers = 0xff;
constexpr std::uint8_t eventsToTheirOwner = 1;

} // namespace

/// The grabs on a connection of their own: the toolkit would have to be told which of its events
/// are not its own.
class GlobalShortcuts::Grabs {
public:
    Grabs(std::unique_ptr<x11::Connection> connection, const std::vector<std::string> &keys,
          Handler handler)
        : connection_(std::move(connection)), handler_(std::move(handler)),
          notifier_(xcb_get_file_descriptor(connection_->get()), QSocketNotifier::Read) {
        for (const std::string &letters : keys)
            keys_.push_back({.letters = letters});
        const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_->get(), connection_->root(), XCB_CW_EVENT_MASK,
                                     &mask);
        grabAll();
        QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { read(); });
    }

    std::optional<char> granted(std::size_t place) const { return keys_[place].granted; }

private:
    struct Key {
        std::string letters; // in order of preference
        xcb_keycode_t code = 0;
        std::optional<char> granted = std::nullopt;
    };

    void grabAll() {
        readKeyboard();
        for (Key &key : keys_)
            grabOneOf(key);
        followActiveWindow();
    }

    void grabOneOf(Key &key) {
        // One that was granted before was shown to the user: it stays if it can.
        const std::string letters = key.granted ? *key.granted + key.letters : key.letters;
        key.granted.reset();
        for (const char letter : letters) {
            key.code = codeOf(static_cast<xcb_keysym_t>(letter)); // 0: not in this layout
            if (key.code != 0 && super_ != 0 && grab(key.code)) {
                key.granted = letter;
                return;
            }
        }
    }

    void readKeyboard() {
        const xcb_setup_t &setup = connection_->setup();
        first_ = setup.min_keycode;
        const auto count = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);
        const auto symbols = connection_->reply<xcb_get_keyboard_mapping_reply>(
            xcb_get_keyboard_mapping(connection_->get(), first_, count));
        symbols_.clear();
        if (symbols && symbols->keysyms_per_keycode > 0) {
            perCode_ = symbols->keysyms_per_keycode;
            const xcb_keysym_t *all = xcb_get_keyboard_mapping_keysyms(symbols.get());
            symbols_.assign(all, all + xcb_get_keyboard_mapping_keysyms_length(symbols.get()));
        }
        super_ = modifierOf(codeOf(superSymbol));
        numLock_ = modifierOf(codeOf(numLockSymbol));
    }

    /// The key that bears the symbol, shifted or not, on any of its levels; 0 when none does.
    xcb_keycode_t codeOf(xcb_keysym_t symbol) const {
        const auto found = std::find(symbols_.begin(), symbols_.end(), symbol);
        if (found == symbols_.end())
            return 0;
        return static_cast<xcb_keycode_t>(first_ + (found - symbols_.begin()) / perCode_);
    }

    /// The modifier's bit that the key switches, 0 when it switches none.
    std::uint16_t modifierOf(xcb_keycode_t code) const {
        const auto mapping = connection_->reply<xcb_get_modifier_mapping_reply>(
            xcb_get_modifier_mapping(connection_->get()));
        if (!mapping || code == 0)
            return 0;
        const xcb_keycode_t *codes = xcb_get_modifier_mapping_keycodes(mapping.get());
        const int perModifier = mapping->keycodes_per_modifier;
        for (int modifier = 0; modifier < modifierCount; ++modifier)
            for (int place = 0; place < perModifier; ++place)
                if (codes[modifier * perModifier + place] == code)
                    return static_cast<std::uint16_t>(1u << modifier);
        return 0;
    }

    std::uint16_t combination() const {
        return static_cast<std::uint16_t>(XCB_MOD_MASK_CONTROL | super_);
    }

    /// The states of the locks, which a grab tells apart and a user does not.
    std::array<std::uint16_t, 4> locks() const {
        return {0, XCB_MOD_MASK_LOCK, numLock_,
                static_cast<std::uint16_t>(XCB_MOD_MASK_LOCK | numLock_)};
    }

    /// Grabs the key with the combination, whatever locks are on: all or nothing. The server
    /// answers BadAccess when another client has it (X11 protocol, GrabKey).
    bool grab(xcb_keycode_t code) {
        for (const std::uint16_t lock : locks()) {
            const xcb_void_cookie_t asked =
                xcb_grab_key_checked(connection_->get(), eventsToTheirOwner, connection_->root(),
                                     static_cast<std::uint16_t>(combination() | lock), code,
                                     XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
            if (!connection_->succeeded(asked)) {
                ungrab(code);
                return false;
            }
        }
        return true;
    }

    void ungrab(xcb_keycode_t code) {
        for (const std::uint16_t lock : locks())
            xcb_ungrab_key(connection_->get(), code, connection_->root(),
                           static_cast<std::uint16_t>(combination() | lock));
        xcb_flush(connection_->get());
    }

    xcb_window_t activeWindow() const {
        const auto property = connection_->reply<xcb_get_property_reply>(
            xcb_get_property(connection_->get(), 0, connection_->root(),
                             connection_->atoms().activeWindow, XCB_ATOM_WINDOW, 0, 1));
        if (!property || property->format != 32 || property->value_len != 1)
            return XCB_NONE;
        return *static_cast<xcb_window_t *>(xcb_get_property_value(property.get()));
    }

    /// Has what was granted on the active window, too. A desktop that wants Super alone takes the
    /// keyboard with it, and gives back what follows by replaying it, which passes over all grabs
    /// of the root window (X11 protocol, AllowEvents).
    void followActiveWindow() {
        active_ = activeWindow();
        for (const Key &key : keys_)
            for (const std::uint16_t lock : locks())
                if (key.granted && active_ != XCB_NONE)
                    xcb_grab_key(connection_->get(), eventsToTheirOwner, active_,
                                 static_cast<std::uint16_t>(combination() | lock), key.code,
                                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        xcb_flush(connection_->get());
        // Events that came while we waited for answers are queued without a notice.
        const auto readLater = [this] { read(); };
        QMetaObject::invokeMethod(&notifier_, readLater, Qt::QueuedConnection);
    }

    void leaveActiveWindow() {
        for (const Key &key : keys_)
            for (const std::uint16_t lock : locks())
                if (key.granted && active_ != XCB_NONE)
                    xcb_ungrab_key(connection_->get(), key.code, active_,
                                   static_cast<std::uint16_t>(combination() | lock));
    }

    void read() {
        bool keyboardChanged = false, windowChanged = false;
        while (const x11::Event event = connection_->nextEvent()) {
            const int kind = event->response_type & kindMask;
            if (kind == XCB_KEY_PRESS)
                pressed(*reinterpret_cast<const xcb_key_press_event_t *>(event.get()));
            if (kind == XCB_PROPERTY_NOTIFY)
                windowChanged |=
                    reinterpret_cast<const xcb_property_notify_event_t *>(event.get())->atom ==
                    connection_->atoms().activeWindow;
            // Sent to every client, wanted or not.
            if (kind == XCB_MAPPING_NOTIFY)
                keyboardChanged = true;
        }
        if (connection_->broken()) {
            notifier_.setEnabled(false);
            return;
        }
        if (keyboardChanged || windowChanged)
            leaveActiveWindow();
        if (keyboardChanged) {
            for (const Key &key : keys_)
                if (key.granted)
                    ungrab(key.code);
            grabAll();
        } else if (windowChanged) {
            followActiveWindow();
        }
    }

    void pressed(const xcb_key_press_event_t &event) {
        const std::uint16_t held = event.state & realModifiers &
                                   static_cast<std::uint16_t>(~(XCB_MOD_MASK_LOCK | numLock_));
        if (held != combination())
            return;
        for (std::size_t place = 0; place < keys_.size(); ++place)
            if (keys_[place].granted && keys_[place].code == event.detail)
                handler_(place);
    }

    std::unique_ptr<x11::Connection> connection_;
    Handler handler_;
    QSocketNotifier notifier_;
    std::vector<Key> keys_;
    xcb_window_t active_ = XCB_NONE;
    xcb_keycode_t first_ = 0;
    std::vector<xcb_keysym_t> symbols_;
    std::ptrdiff_t perCode_ = 1;
    std::uint16_t super_ = 0;
    std::uint16_t numLock_ = 0;
};

GlobalShortcuts::GlobalShortcuts(const std::vector<std::string> &keys, Handler handler) {
    if (auto connection = x11::Connection::open())
        grabs_ = std::make_unique<Grabs>(std::move(connection), keys, std::move(handler));
}

GlobalShortcuts::~GlobalShortcuts() = default;

std::optional<char> GlobalShortcuts::granted(std::size_t place) const {
    return grabs_ ? grabs_->granted(place) : std::nullopt;
}
