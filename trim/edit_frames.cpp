// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/recorder.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"
#include "trim/trim_editor.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int secondsDecimals = 1;

} // namespace

void TrimEditor::select(std::uint64_t from, std::uint64_t to) {
    const std::uint64_t frames = frameCount();
    if (frames == 0 || trim.m_PlayStatus() == PLAY_STATUS_PLAY)
        return;
    const std::uint64_t end = std::min(to, frames - 1);
    const std::uint64_t begin = std::min(from, frames - 1);
    selection_ = FrameRuns::Run{std::min(begin, end), std::max(begin, end)};
    showFrame(end);
    Q_EMIT stateChanged();
}

void TrimEditor::clearSelection() {
    if (!selection_)
        return;
    selection_.reset();
    Q_EMIT viewsChanged();
    Q_EMIT stateChanged();
}

void TrimEditor::deleteSelection() {
    if (selection_)
        leaveOut(leftOut_.with(*selection_));
}

void TrimEditor::shortenStills() {
    if (!mayShorten())
        return;
    const double seconds = stillLength_;
    const double rate = recorder_.recording.exactRate();
    const auto longest = static_cast<std::uint64_t>(std::max(1L, std::lround(seconds * rate)));
    const FrameRuns surplus =
        surplusOfStills(keptFrames(), longest, [this](std::uint64_t earlier, std::uint64_t frame) {
            return showSame(earlier, frame);
        });
    if (surplus.isEmpty()) {
        surroundings_.showStatus(
            qtTrId("IDD_STILL_NONE").arg(number_text::decimal(seconds, secondsDecimals)));
        return;
    }
    FrameRuns leftOut = leftOut_;
    for (const FrameRuns::Run &run : surplus.runs())
        leftOut = leftOut.with(run);
    leaveOut(leftOut);
    surroundings_.showStatus(
        qtTrId("IDD_STILL_SHORTENED")
            .arg(number_text::decimal(static_cast<double>(surplus.count()) / rate,
                                      secondsDecimals)));
}

/// As far as the store knows. Of pictures of which it does not, the pixels tell.
bool TrimEditor::showSame(std::uint64_t earlier, std::uint64_t frame) const {
    const auto &frames = recorder_.recording.array_Images;
    if (!frames || frame >= frames->size())
        return false;
    const Image &before = (*frames)[earlier];
    const Image &after = (*frames)[frame];
    if (after.sameAs(before))
        return true;
    const auto changes = after.changesSince(before);
    return changes ? changes->isEmpty() : after.toQImage() == before.toQImage();
}

void TrimEditor::leaveOut(const FrameRuns &leftOut) {
    if (leftOut != leftOut_) {
        undo_.push_back(std::exchange(leftOut_, leftOut));
        redo_.clear();
    }
    edited();
}

void TrimEditor::undo() {
    if (undo_.empty())
        return;
    redo_.push_back(std::exchange(leftOut_, undo_.back()));
    undo_.pop_back();
    edited();
}

void TrimEditor::redo() {
    if (redo_.empty())
        return;
    undo_.push_back(std::exchange(leftOut_, redo_.back()));
    redo_.pop_back();
    edited();
}

void TrimEditor::edited() {
    selection_.reset();
    // What was cut out is no longer looked at; what follows it is.
    if (trim.m_PlayStatus() != PLAY_STATUS_STOP || isPlaced_)
        trim.setUCurrentFrame(
            keptFrames().nextFrom(trim.uCurrentFrame()).value_or(trim.uCurrentFrame()));
    Q_EMIT viewsChanged();
    Q_EMIT stateChanged();
}
