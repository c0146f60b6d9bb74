// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/keyboard.h"
#include "record/marks/key_marks.h"

#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon.h>

#include <string>

namespace {

/// A keyboard with one of the layouts that desktops come with, and no display.
class LaidOut {
public:
    explicit LaidOut(const char *layout, const char *variant = "", const char *options = "")
        : context_(xkb_context_new(XKB_CONTEXT_NO_FLAGS)) {
        const xkb_rule_names names{.rules = "evdev",
                                   .model = "pc105",
                                   .layout = layout,
                                   .variant = variant,
                                   .options = options};
        keymap_.reset(
            xkb_keymap_new_from_names(context_.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
        if (keymap_)
            state_.reset(xkb_state_new(keymap_.get()));
    }

    bool exists() const { return state_ != nullptr; }
    xkb_keymap *keymap() { return keymap_.get(); }

    /// With these modifiers held, by their real names ("Shift", "Mod5").
    xkb_state *with(const std::vector<const char *> &modifiers) {
        xkb_mod_mask_t mask = 0;
        for (const char *name : modifiers)
            mask |= 1u << xkb_keymap_mod_get_index(keymap_.get(), name);
        xkb_state_update_mask(state_.get(), mask, 0, 0, 0, 0, 0);
        return state_.get();
    }

private:
    std::unique_ptr<xkb_context, x11::FreeXkb> context_;
    std::unique_ptr<xkb_keymap, x11::FreeXkb> keymap_;
    std::unique_ptr<xkb_state, x11::FreeXkb> state_;
};

bool isCharacter(xkb_keysym_t symbol) {
    constexpr std::uint32_t deleted = 0x7f;
    const std::uint32_t character = xkb_keysym_to_utf32(symbol);
    return character >= ' ' && character != deleted;
}

std::string nameOn(LaidOut &keyboard, std::uint32_t code,
                   const std::vector<const char *> &modifiers) {
    const auto press = x11::keyPress(keyboard.with(modifiers), code);
    return press && mayBeShown(*press) ? nameOf(*press).toStdString() : "";
}

} // namespace

TEST(Keyboard, tellsNothingThatYieldsACharacterOnAnyLayout) {
    struct Layout {
        const char *name, *variant, *options;
    };
    for (const auto &[name, variant, options] :
         {Layout{"us", "", ""}, Layout{"us", "intl", ""}, Layout{"de", "", "compose:menu"},
          Layout{"de", "neo", ""}, Layout{"fr", "", ""}, Layout{"fr", "bepo", ""},
          Layout{"ru", "", ""}, Layout{"jp", "", ""}, Layout{"gr", "polytonic", ""},
          Layout{"us", "", "lv3:alt_switch"}, Layout{"ca", "multix", ""}}) {
        LaidOut keyboard(name, variant, options);
        ASSERT_TRUE(keyboard.exists()) << name;
        const std::vector<const char *> all = {"Shift", "Lock",    "Mod2", "Mod3",
                                               "Mod5",  "Control", "Mod1", "Mod4"};
        constexpr unsigned writing = 0x1f; // those of them that programs take for no command
        int shown = 0;
        for (unsigned held = 0; held < 1u << all.size(); ++held) {
            std::vector<const char *> modifiers;
            for (std::size_t i = 0; i < all.size(); ++i)
                if (held >> i & 1)
                    modifiers.push_back(all[i]);
            xkb_state *state = keyboard.with(modifiers);
            const bool otherLevel = held & 0x18;
            for (auto code = xkb_keymap_min_keycode(keyboard.keymap());
                 code <= xkb_keymap_max_keycode(keyboard.keymap()); ++code) {
                const auto press = x11::keyPress(state, code);
                if (!press || !mayBeShown(*press))
                    continue;
                ++shown;
                const xkb_keysym_t symbol = xkb_state_key_get_one_sym(state, code);
                const bool mayWrite = (held & ~writing) == 0 || otherLevel;
                EXPECT_FALSE(mayWrite && isCharacter(symbol))
                    << name << ' ' << variant << ": key " << code << " with " << std::hex << held;
            }
        }
        EXPECT_GT(shown, 1000) << name;
    }
}

TEST(Keyboard, namesKeysAsTheLayoutDoes) {
    constexpr std::uint32_t physicalY = 29, physicalQ = 24, physicalE = 26, physicalF4 = 70,
                            left = 113, shiftKey = 50, padEnter = 104, padOne = 87;
    LaidOut us("us"), german("de"), french("fr"), russian("ru");
    EXPECT_EQ(nameOn(us, physicalY, {"Control"}), "Ctrl+Y");
    EXPECT_EQ(nameOn(german, physicalY, {"Control"}), "Ctrl+Z");
    EXPECT_EQ(nameOn(french, physicalQ, {"Control", "Shift"}), "Ctrl+Shift+A");
    EXPECT_EQ(nameOn(russian, physicalQ, {"Control"}), "Ctrl+Й");
    EXPECT_EQ(nameOn(us, physicalF4, {"Mod1"}), "Alt+F4");
    EXPECT_EQ(nameOn(us, physicalF4, {"Control", "Mod1"}), "Ctrl+Alt+F4");
    EXPECT_EQ(nameOn(us, left, {"Mod4", "Mod2"}), "Super+Left");
    EXPECT_EQ(nameOn(us, padEnter, {"Mod2"}), "Return");
    EXPECT_EQ(nameOn(us, padOne, {"Mod1", "Mod2"}), "") << "spells a character";
    EXPECT_EQ(nameOn(german, physicalE, {"Mod5", "Control"}), "") << "AltGr+E, the euro sign";
    EXPECT_FALSE(x11::keyPress(us.with({"Control"}), shiftKey)) << "only modifies others";
}
