// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// What the bytes of window properties mean. Any client may put anything into them; nothing here
/// asks the server.
namespace x11 {

/// The class in a WM_CLASS (ICCCM, 4.1.2.5): the second of two texts, each ended by a zero. None
/// when there is no second one or it is empty.
std::optional<QString> classFromProperty(QByteArrayView both);

/// The text of a property of 8 bits a value, up to the first zero: UTF-8, or Latin-1 where it is
/// none.
QString textFromProperty(QByteArrayView bytes);

/// The values of a property of 32 bits a value; bytes at the end that make no whole one are left.
std::vector<std::uint32_t> wordsFromProperty(QByteArrayView bytes);

/// The whole number of this name among the settings of a desktop (XSETTINGS 0.5, the property
/// _XSETTINGS_SETTINGS); none where it is missing, is no number, or the bytes are no such property.
std::optional<std::int32_t> settingFromProperty(QByteArrayView bytes, std::string_view name);

} // namespace x11
