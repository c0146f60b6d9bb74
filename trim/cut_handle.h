// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "trim/range_rules.h"

#include <QObject>

class View_Cut_Range;

/// One handle of the strip as assistive technology sees it: a slider whose value is a frame number.
/// It keeps nothing of its own; the strip owns it.
class CutHandle : public QObject {
    Q_OBJECT

public:
    CutHandle(View_Cut_Range &strip, range_rules::Handle handle);

    View_Cut_Range &strip() const { return strip_; }
    range_rules::Handle handle() const { return handle_; }

    /// Tell assistive technology that the value, or the chosen handle, is another now.
    void announceValue();
    void announceFocus();

private:
    View_Cut_Range &strip_;
    range_rules::Handle handle_;
};
