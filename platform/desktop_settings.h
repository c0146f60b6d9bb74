// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// The whole number that a desktop publishes under this name on the X server for all programs
/// (XSETTINGS 0.5), like "Gtk/EnableAnimations"; none where nobody publishes it, or where the
/// program's windows are not on an X server.
std::optional<std::int32_t> desktopSetting(std::string_view name);
