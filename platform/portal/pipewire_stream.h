// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

/// The pictures of a PipeWire stream. A thread of its own takes each frame as it comes, keeps what
/// changed, and gives the buffer back at once; it never touches the interface. Ended in order by
/// the destructor.
class PipeWireStream : public QObject {
    Q_OBJECT

public:
    /// `descriptor` is a connection to PipeWire and is taken over; `node` is the stream's number
    /// there. At most `rate` frames a second are asked for.
    PipeWireStream(int descriptor, std::uint32_t node, std::uint64_t rate);
    ~PipeWireStream() override;

    void setRate(std::uint64_t rate);

    /// The newest picture, the same until something changed in it; none before the first frame.
    std::optional<Image> take();

    /// When the newest frame was drawn as the compositor tells, else when it came; none before.
    std::optional<std::chrono::steady_clock::time_point> newest() const;

Q_SIGNALS:
    /// The first picture can be taken.
    void began();
    /// No more will come: PipeWire's words, or empty when it has just ended.
    void ended(const QString &words);

private:
    class Thread;
    std::unique_ptr<Thread> thread_;
};
