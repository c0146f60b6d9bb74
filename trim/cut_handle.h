// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class View_Cut_Range;

/// What of the strip can be moved: the two handles, and the playhead between them.
enum class StripPart { Menor, Playhead, Maior };

/// One of these as assistive technology sees it: a slider whose value is a frame number, and that
/// says this frame and its time in words. It keeps nothing of its own; the strip owns it.
class CutHandle : public QObject {
    Q_OBJECT

public:
    CutHandle(View_Cut_Range &strip, StripPart part);

    View_Cut_Range &strip() const { return strip_; }
    StripPart part() const { return part_; }

    /// Tell assistive technology that the value, or the chosen part, is another now.
    void announceValue();
    void announceFocus();

private:
    View_Cut_Range &strip_;
    StripPart part_;
};
