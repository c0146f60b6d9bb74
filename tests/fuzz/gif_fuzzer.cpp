// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/fuzz/require.h"
#include "tests/gif/made_clips.h"
#include "tests/gif/promise.h"

/// Clips of all kinds, encoded and read back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    std::size_t at = 0;
    // Past the input's end the numbers go on, so that a short input makes a whole clip.
    const auto draw = [&] {
        const unsigned high = at < size ? data[at] : unsigned(at * 37);
        const unsigned low = at + 1 < size ? data[at + 1] : unsigned(at * 101);
        at += 2;
        return high << 8 | (low & 0xFF);
    };
    const float tolerance = float(draw() % 11) / 2;
    Clip clip = madeClip(draw);
    const auto bytes = clip.encoded(tolerance);
    const auto gif = SlowGifReader(bytes).read();
    REQUIRE(gif);
    REQUIRE(Promise(clip, *gif, tolerance).broken() == "");
    REQUIRE(clip.outcome.bytes == bytes.size());
    REQUIRE(clip.outcome.pictures == std::int64_t(gif->pictures.size()));
    return 0;
}
