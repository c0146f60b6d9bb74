// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/export_choices.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <stop_token>
#include <thread>

class Exporter;

/// Finds out how large the GIF will be, by making it in a thread of low priority and counting its
/// bytes; nothing is written. Until the count is complete, it says what is likely. After that,
/// about how large the WebP will be.
class SizeEstimator : public QObject {
    Q_OBJECT

public:
    /// `exporter` is borrowed and outlives it.
    SizeEstimator(const Exporter &exporter, QObject *parent);
    ~SizeEstimator() override;

    /// Begins for what `choices` says a moment after the last call; an earlier count is given up at
    /// once.
    void request(std::function<ExportChoices()> choices);
    /// Gives up what is asked for or under way. Nothing is said afterwards.
    void stop();

Q_SIGNALS:
    /// The GIF will have that many bytes: exactly, or about.
    void estimated(quint64 bytes, bool isExact);
    /// The WebP will have about that many bytes.
    void webpEstimated(quint64 bytes);
    /// Nothing is known yet, or cannot be.
    void unknown();

private:
    void begin();

    const Exporter &exporter_;
    QTimer pause_;
    std::function<ExportChoices()> choices_;
    std::jthread worker_;
    std::uint64_t run_ = 0; // what an earlier run still says is not listened to
};
