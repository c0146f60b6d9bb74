// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// The qualities that a GIF can be made in.
enum class GifPreset {
    Best,     ///< The program's own encoder without any tolerance.
    Balanced, ///< It may differ where that can hardly be seen.
    Small,    ///< It may differ a little more.
    Classic,  ///< Three runs of `ffmpeg`: one palette from the first frames.
};

inline constexpr GifPreset gifPresets[] = {GifPreset::Best, GifPreset::Balanced, GifPreset::Small,
                                           GifPreset::Classic};

/// Its word in the settings file.
const char *presetWord(GifPreset preset);
/// The preset of a word; Balanced for a text that is none of the words, as before the first choice.
GifPreset presetOfWord(QStringView word);
/// The key of its name in the strings table.
const char *presetKey(GifPreset preset);
/// What the encoder may take as its tolerance; Classic has none.
float presetTolerance(GifPreset preset);
