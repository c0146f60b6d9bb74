// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

#include <cstdint>

/// Says beside the status line that a recording is under way (a red disc) or paused (two bars), in
/// shape and words as well as in colour. While there is none it takes no room.
class RecordingIndicator : public QLabel {
    Q_OBJECT

public:
    explicit RecordingIndicator(QWidget *parent = nullptr);

    /// One of the states of a recording, `RECORD_STATUS_STOP` and the others.
    void setState(std::uint64_t state);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::uint64_t state_;
};
