// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "record/recording_fields.h"

#include <QLabel>

/// Says beside the status line that a recording is under way (a red disc) or paused (two bars), in
/// shape and words as well as in colour. While there is none it takes no room.
class RecordingIndicator : public QLabel {
    Q_OBJECT

public:
    explicit RecordingIndicator(QWidget *parent = nullptr);

    void setState(RecordStatus state);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    RecordStatus state_;
};
