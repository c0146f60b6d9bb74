// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/keyboard.h"

#include "platform/x11/connection.h"

#include <QChar>

// The header is C's, and has a field of this name.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
#ifdef __clang__
#pragma clang diagnostic pop
#endif
#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>
#include <iterator>

namespace x11 {

namespace {

constexpr std::uint32_t deleted = 0x7f; // Unicode's DELETE, which Delete stands for

struct NamedKey {
    xkb_keysym_t symbol;
    int key;
};

// Those of X11/keysymdef.h that yield no character, and blank.
constexpr NamedKey namedKeys[] = {
    {XKB_KEY_Return, Qt::Key_Return},    {XKB_KEY_KP_Enter, Qt::Key_Return},
    {XKB_KEY_Escape, Qt::Key_Escape},    {XKB_KEY_Tab, Qt::Key_Tab},
    {XKB_KEY_ISO_Left_Tab, Qt::Key_Tab}, {XKB_KEY_Left, Qt::Key_Left},
    {XKB_KEY_Right, Qt::Key_Right},      {XKB_KEY_Up, Qt::Key_Up},
    {XKB_KEY_Down, Qt::Key_Down},        {XKB_KEY_Delete, Qt::Key_Delete},
    {XKB_KEY_Insert, Qt::Key_Insert},    {XKB_KEY_BackSpace, Qt::Key_Backspace},
    {XKB_KEY_Home, Qt::Key_Home},        {XKB_KEY_End, Qt::Key_End},
    {XKB_KEY_Page_Up, Qt::Key_PageUp},   {XKB_KEY_Page_Down, Qt::Key_PageDown},
    {XKB_KEY_space, Qt::Key_Space},      {XKB_KEY_Print, Qt::Key_Print},
    {XKB_KEY_Menu, Qt::Key_Menu},
};

bool isBetween(xkb_keysym_t symbol, xkb_keysym_t first, xkb_keysym_t last) {
    return symbol >= first && symbol <= last;
}

bool isDeadSymbol(xkb_keysym_t symbol) {
    return isBetween(symbol, XKB_KEY_dead_grave, XKB_KEY_dead_longsolidusoverlay);
}

bool isModifier(xkb_keysym_t symbol) {
    return isBetween(symbol, XKB_KEY_Shift_L, XKB_KEY_Hyper_R) ||
           isBetween(symbol, XKB_KEY_ISO_Lock, XKB_KEY_ISO_Level5_Lock) ||
           symbol == XKB_KEY_Mode_switch || symbol == XKB_KEY_Num_Lock;
}

bool isCharacter(xkb_keysym_t symbol) {
    const std::uint32_t character = xkb_keysym_to_utf32(symbol);
    return character >= ' ' && character != deleted;
}

int keyOf(xkb_keysym_t symbol) {
    for (const NamedKey &named : namedKeys)
        if (named.symbol == symbol)
            return named.key;
    if (isBetween(symbol, XKB_KEY_F1, XKB_KEY_F35))
        return Qt::Key_F1 + static_cast<int>(symbol - XKB_KEY_F1);
    return isCharacter(symbol) ? static_cast<int>(QChar::toUpper(xkb_keysym_to_utf32(symbol))) : 0;
}

bool isActive(xkb_state *state, const char *modifier) {
    return xkb_state_mod_name_is_active(state, modifier, XKB_STATE_MODS_EFFECTIVE) > 0;
}

/// Whether a modifier is held or locked that is none of those which programs take for commands.
bool hasOtherModifier(xkb_state *state) {
    return std::ranges::any_of(std::initializer_list<const char *>{"Mod3", "Mod5"},
                               [state](const char *name) { return isActive(state, name); });
}

/// The single symbol of a key on a level; NoSymbol for none or several.
xkb_keysym_t symbolAt(xkb_keymap *keymap, std::uint32_t code, xkb_layout_index_t layout,
                      xkb_level_index_t level) {
    const xkb_keysym_t *symbols = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(keymap, code, layout, level, &symbols);
    return count == 1 ? symbols[0] : XKB_KEY_NoSymbol;
}

} // namespace

void FreeXkb::operator()(xkb_context *context) const { xkb_context_unref(context); }
void FreeXkb::operator()(xkb_keymap *keymap) const { xkb_keymap_unref(keymap); }
void FreeXkb::operator()(xkb_state *state) const { xkb_state_unref(state); }

std::optional<KeyPress> keyPress(xkb_state *state, std::uint32_t code) {
    xkb_keymap *keymap = xkb_state_get_keymap(state);
    const xkb_layout_index_t layout = xkb_state_key_get_layout(state, code);
    if (layout == XKB_LAYOUT_INVALID)
        return {};
    const xkb_level_index_t level = xkb_state_key_get_level(state, code, layout);
    const xkb_keysym_t plain = symbolAt(keymap, code, layout, 0);
    const xkb_keysym_t now = xkb_state_key_get_one_sym(state, code);
    if (isModifier(plain) || isModifier(now))
        return {};
    constexpr xkb_level_index_t shifted = 1;
    KeyPress press;
    press.key = keyOf(plain);
    // On some layouts even a key like Tab writes when it is shifted.
    press.onOtherLevel =
        hasOtherModifier(state) || (isCharacter(now) && (level > shifted || !isCharacter(plain)));
    press.onNumberPad =
        isBetween(plain, XKB_KEY_KP_Space, XKB_KEY_KP_9) && plain != XKB_KEY_KP_Enter;
    press.isDead = isDeadSymbol(plain) || isDeadSymbol(now);
    press.isCompose = plain == XKB_KEY_Multi_key || now == XKB_KEY_Multi_key;
    const std::pair<const char *, Qt::KeyboardModifier> modifiers[] = {
        {XKB_MOD_NAME_CTRL, Qt::ControlModifier},
        {XKB_MOD_NAME_ALT, Qt::AltModifier},
        {XKB_MOD_NAME_LOGO, Qt::MetaModifier},
        {XKB_MOD_NAME_SHIFT, Qt::ShiftModifier}};
    for (const auto &[name, modifier] : modifiers)
        press.modifiers.setFlag(modifier, isActive(state, name));
    return press;
}

bool Keyboard::isOffered(xcb_connection_t *connection) {
    const auto *data = xcb_get_extension_data(connection, &xcb_xkb_id);
    return data && data->present;
}

std::unique_ptr<Keyboard> Keyboard::create(xcb_connection_t *connection) {
    std::unique_ptr<Keyboard> keyboard(new Keyboard);
    keyboard->connection_ = connection;
    keyboard->context_.reset(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    if (!keyboard->context_ ||
        !xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION,
                                     XKB_X11_MIN_MINOR_XKB_VERSION,
                                     XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr,
                                     &keyboard->firstEvent_, nullptr))
        return nullptr;
    keyboard->device_ = xkb_x11_get_core_keyboard_device_id(connection);
    // Before the layout is read: no change of it may fall in between.
    constexpr std::uint16_t events = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY |
                                     XCB_XKB_EVENT_TYPE_MAP_NOTIFY |
                                     XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    constexpr std::uint16_t everything = 0xffff;
    xcb_xkb_select_events(connection, static_cast<xcb_xkb_device_spec_t>(keyboard->device_), events,
                          0, events, everything, everything, nullptr);
    if (keyboard->device_ < 0 || !keyboard->readLayout())
        return nullptr;
    return keyboard;
}

bool Keyboard::readLayout() {
    std::unique_ptr<xkb_keymap, FreeXkb> keymap(xkb_x11_keymap_new_from_device(
        context_.get(), connection_, device_, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap)
        return false;
    std::unique_ptr<xkb_state, FreeXkb> state(
        xkb_x11_state_new_from_device(keymap.get(), connection_, device_));
    if (!state)
        return false;
    keymap_ = std::move(keymap);
    state_ = std::move(state);
    return true;
}

bool Keyboard::handle(const xcb_generic_event_t &event) {
    if (event.response_type != firstEvent_)
        return false;
    // All of XKB's events are one kind, with the true one inside (XKB protocol, section 20).
    const auto &notify = reinterpret_cast<const xcb_xkb_state_notify_event_t &>(event);
    if (notify.xkbType == XCB_XKB_STATE_NOTIFY)
        xkb_state_update_mask(state_.get(), notify.baseMods, notify.latchedMods, notify.lockedMods,
                              static_cast<xkb_layout_index_t>(notify.baseGroup),
                              static_cast<xkb_layout_index_t>(notify.latchedGroup),
                              notify.lockedGroup);
    else
        readLayout(); // the one before goes on to serve if it cannot be read
    return true;
}

} // namespace x11
