// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/recorder.h"
#include "shell/number_text.h"
#include "trim/range_rules.h"
#include "trim/trim_editor.h"

#include <algorithm>

using range_rules::Handle;
using range_rules::Handles;

namespace {

constexpr int secondsDecimals = 2; // single frames differ

} // namespace

std::uint64_t TrimEditor::frameCount() const {
    return recorder_.recording.u_Record_Current_Frame();
}

std::uint64_t TrimEditor::shownFrame() const {
    const bool atPlayhead = trim.m_PlayStatus() != PLAY_STATUS_STOP || isPlaced_;
    const std::uint64_t atHandle =
        trim.previewedEnd() == RangeEnd::Last ? trim.uLastFrame() : trim.uFirstFrame();
    return range_rules::existingFrame(atPlayhead ? trim.uCurrentFrame() : atHandle, frameCount())
        .value_or(0);
}

void TrimEditor::showFrame(std::uint64_t frame) {
    const auto existing = range_rules::existingFrame(frame, frameCount());
    if (!existing)
        return;
    trim.setUCurrentFrame(*existing);
    isPlaced_ = true;
    Q_EMIT viewsChanged();
}

void TrimEditor::step(std::int64_t frames) {
    if (trim.m_PlayStatus() == PLAY_STATUS_PLAY)
        OnCutPause();
    clearSelection();
    const std::uint64_t from = shownFrame();
    const auto by = static_cast<std::uint64_t>(std::abs(frames));
    showFrame(frames < 0 ? from - std::min(by, from) : from + by);
}

QString TrimEditor::textOfFrame(std::uint64_t frame) const {
    const std::uint64_t count = frameCount();
    const auto existing = range_rules::existingFrame(frame, count);
    if (!existing)
        return {};
    const double seconds = static_cast<double>(*existing) / recorder_.recording.exactRate();
    // People count from 1.
    return qtTrId("IDD_CUT_FRAME")
        .arg(number_text::count(*existing + 1), number_text::count(count),
             number_text::decimal(seconds, secondsDecimals));
}

void TrimEditor::moveHandles(float menor, float maior, RangeEnd inHand) {
    clearSelection();
    trim.setF_Cut_Percent_Menor(menor);
    trim.setF_Cut_Percent_Maior(maior);
    trim.setPreviewedEnd(inHand);
    // The preview's next drawing would do, but the window may be covered.
    updateTrimmedRange();
    showFrame(inHand == RangeEnd::Last ? trim.uLastFrame() : trim.uFirstFrame());
    // The hand was at the handle, not at the playhead: Play begins with the first frame.
    isPlaced_ = false;
}

void TrimEditor::moveHandleHere(RangeEnd end) {
    if (frameCount() == 0)
        return;
    const std::uint64_t here = shownFrame();
    const Handles moved =
        range_rules::with({trim.f_Cut_Percent_Menor(), trim.f_Cut_Percent_Maior()},
                          end == RangeEnd::First ? Handle::Menor : Handle::Maior,
                          range_rules::percentFor(here, frameCount()));
    clearSelection();
    trim.setF_Cut_Percent_Menor(moved.menor);
    trim.setF_Cut_Percent_Maior(moved.maior);
    updateTrimmedRange();
    showFrame(here);
}
