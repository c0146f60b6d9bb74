// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/property_values.h"
#include "tests/fuzz/require.h"

#include <QByteArrayList>

#include <cstring>

/// What a client may set on its windows.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const auto parts = bytes.toByteArray().split('\0');
    const std::optional<QString> name = x11::classFromProperty(bytes);
    REQUIRE(name.has_value() == (parts.size() >= 2 && !parts[1].isEmpty()));
    // Nothing of it is lost, whatever it is written in.
    if (name)
        REQUIRE(name->toUtf8() == parts[1] || name->toLatin1() == parts[1]);

    const auto words = x11::wordsFromProperty(bytes);
    REQUIRE(words.size() == size / 4);
    REQUIRE(words.empty() || std::memcmp(words.data(), data, words.size() * 4) == 0);

    // Every name that is found is in there.
    for (const std::string_view setting : {"Gtk/EnableAnimations", "a", ""})
        if (x11::settingFromProperty(bytes, setting))
            REQUIRE(bytes.contains(QByteArrayView(setting.data(), qsizetype(setting.size()))));
    return 0;
}
