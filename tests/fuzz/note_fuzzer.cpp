// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/recording_note.h"
#include "tests/fuzz/require.h"

/// What may lie in the recording folder under the note's name. What is believed is within its
/// bounds, and the same when it is written and read once more.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArrayView text(data, static_cast<qsizetype>(size));
    const std::optional<RecordingNote> note = noteFromText(text);
    if (!note)
        return 0;
    REQUIRE(note->frames > 0 && note->bytes > 0 && !note->size.isEmpty());
    REQUIRE(note->seconds >= 0 && note->seconds < 1e9);
    REQUIRE(note->rate > 0 && note->rate <= 1000);
    const std::optional<RecordingNote> again = noteFromText(textOfNote(*note));
    REQUIRE(again && again->frames == note->frames && again->size == note->size);
    REQUIRE(again->seconds == note->seconds && again->rate == note->rate);
    REQUIRE(again->bytes == note->bytes);
    return 0;
}
