// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif_preset.h"

#include "export/gif/encoder.h"

#include <QString>

#include <algorithm>
#include <iterator>

namespace {

struct Description {
    const char *word;
    const char *key;
    float tolerance;
};

const Description &descriptionOf(GifPreset preset) {
    static constexpr Description best{"best", "IDD_QUALITY_BEST", gif::bestTolerance};
    static constexpr Description balanced{"balanced", "IDD_QUALITY_BALANCED",
                                          gif::balancedTolerance};
    static constexpr Description small{"small", "IDD_QUALITY_SMALL", gif::smallTolerance};
    static constexpr Description classic{"classic", "IDD_QUALITY_CLASSIC", 0};
    switch (preset) {
    case GifPreset::Best:
        return best;
    case GifPreset::Balanced:
        break;
    case GifPreset::Small:
        return small;
    case GifPreset::Classic:
        return classic;
    }
    return balanced;
}

} // namespace

const char *presetWord(GifPreset preset) { return descriptionOf(preset).word; }

GifPreset presetOfWord(QStringView word) {
    const auto *found = std::ranges::find_if(
        gifPresets, [word](GifPreset preset) { return word == QLatin1String(presetWord(preset)); });
    return found == std::end(gifPresets) ? GifPreset::Balanced : *found;
}

const char *presetKey(GifPreset preset) { return descriptionOf(preset).key; }

float presetTolerance(GifPreset preset) { return descriptionOf(preset).tolerance; }
