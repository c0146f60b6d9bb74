// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/x11_input_watch.h"

#include <xcb/xinput.h>

#include <utility>

namespace x11 {

namespace {

// The wheel's and its sidewards' turns come as buttons.
constexpr std::uint32_t firstOfWheel = 4, lastOfWheel = 7;

} // namespace

bool X11InputWatch::isOffered(Connection &connection) {
    const auto *data = xcb_get_extension_data(connection.get(), &xcb_input_id);
    if (!data || !data->present)
        return false;
    // Raw events came with 2.0; that grabs do not keep them away, with 2.1.
    const auto version = connection.reply<xcb_input_xi_query_version_reply>(
        xcb_input_xi_query_version(connection.get(), 2, 2));
    return version && (version->major_version > 2 ||
                       (version->major_version == 2 && version->minor_version >= 1));
}

std::unique_ptr<X11InputWatch> X11InputWatch::create(std::unique_ptr<Connection> connection,
                                                     InputKinds kinds) {
    if (!connection || !isOffered(*connection))
        return nullptr;
    std::unique_ptr<Keyboard> keyboard;
    if (kinds.keys) {
        keyboard = Keyboard::create(connection->get());
        if (!keyboard)
            return nullptr;
    }
    std::unique_ptr<X11InputWatch> watch(
        new X11InputWatch(std::move(connection), std::move(keyboard)));
    watch->select(kinds);
    return watch;
}

X11InputWatch::X11InputWatch(std::unique_ptr<Connection> connection,
                             std::unique_ptr<Keyboard> keyboard)
    : connection_(std::move(connection)),
      extension_(xcb_get_extension_data(connection_->get(), &xcb_input_id)->major_opcode),
      keyboard_(std::move(keyboard)),
      notifier_(xcb_get_file_descriptor(connection_->get()), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { read(); });
}

void X11InputWatch::select(InputKinds kinds) {
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } wanted{};
    // Of the master devices, which all others come together in: each event once.
    wanted.head.deviceid = XCB_INPUT_DEVICE_ALL_MASTER;
    wanted.head.mask_len = 1;
    if (kinds.buttons)
        wanted.mask |=
            XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;
    if (kinds.keys)
        wanted.mask |= XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS;
    xcb_input_xi_select_events(connection_->get(), connection_->root(), 1, &wanted.head);
    connection_->roundTrip();
}

std::vector<Timed<ButtonChange>> X11InputWatch::takeButtons() {
    read();
    return std::exchange(buttons_, {});
}

std::vector<Timed<KeyPress>> X11InputWatch::takeKeys() {
    read();
    return std::exchange(keys_, {});
}

void X11InputWatch::read() {
    while (const Event event = connection_->nextEvent())
        handle(*event);
    if (connection_->broken())
        notifier_.setEnabled(false);
}

void X11InputWatch::handle(const xcb_generic_event_t &event) {
    if (keyboard_ && keyboard_->handle(event))
        return;
    if (event.response_type != XCB_GE_GENERIC)
        return;
    const auto &generic = reinterpret_cast<const xcb_ge_generic_event_t &>(event);
    if (generic.extension != extension_)
        return;
    // The three kinds of raw events begin alike.
    const auto &raw = reinterpret_cast<const xcb_input_raw_button_press_event_t &>(event);
    switch (generic.event_type) {
    case XCB_INPUT_RAW_BUTTON_PRESS:
        buttonChanged(raw.detail, true);
        break;
    case XCB_INPUT_RAW_BUTTON_RELEASE:
        buttonChanged(raw.detail, false);
        break;
    case XCB_INPUT_RAW_KEY_PRESS:
        if (const auto press = keyboard_ ? keyboard_->press(raw.detail) : std::nullopt)
            keys_.push_back({std::chrono::steady_clock::now(), *press});
        break;
    default:
        break;
    }
}

void X11InputWatch::buttonChanged(std::uint32_t button, bool down) {
    if (button >= firstOfWheel && button <= lastOfWheel)
        return;
    const auto pointer = connection_->reply<xcb_query_pointer_reply>(
        xcb_query_pointer(connection_->get(), connection_->root()));
    if (!pointer || !pointer->same_screen)
        return;
    buttons_.push_back({std::chrono::steady_clock::now(),
                        {.button = static_cast<int>(button),
                         .down = down,
                         .place = {pointer->root_x, pointer->root_y},
                         .window = pointer->child}});
}

} // namespace x11
