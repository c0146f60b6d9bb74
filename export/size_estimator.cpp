// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/size_estimator.h"

#include "export/exporter.h"
#include "export/gif_plan.h"

#include <QElapsedTimer>

#include <sys/resource.h>

#include <utility>

namespace {

constexpr int pauseAfterChange = 300;    // milliseconds: while somebody is still choosing
constexpr qint64 betweenForecasts = 200; // milliseconds
constexpr int lowestPriority = 19;

} // namespace

SizeEstimator::SizeEstimator(const Exporter &exporter, QObject *parent)
    : QObject(parent), exporter_(exporter) {
    pause_.setSingleShot(true);
    pause_.setInterval(pauseAfterChange);
    connect(&pause_, &QTimer::timeout, this, &SizeEstimator::begin);
}

SizeEstimator::~SizeEstimator() { worker_ = {}; }

void SizeEstimator::request(std::function<ExportChoices()> choices) {
    stop();
    choices_ = std::move(choices);
    Q_EMIT unknown();
    pause_.start();
}

void SizeEstimator::stop() {
    pause_.stop();
    ++run_;
    worker_.request_stop();
}

void SizeEstimator::begin() {
    const ExportChoices choices = choices_();
    if (choices.preset == GifPreset::Classic || exporter_.refusal(choices) ||
        exporter_.GIFSizeRefusal(choices))
        return;
    auto plan = std::make_shared<GifPlan>(exporter_.planGIF(choices));
    const std::uint64_t run = ++run_;
    const auto tell = [this, run](std::uint64_t bytes, bool isExact) {
        QMetaObject::invokeMethod(
            this,
            [this, run, bytes, isExact] {
                if (run == run_)
                    Q_EMIT estimated(bytes, isExact);
            },
            Qt::QueuedConnection);
    };
    // The one before ends within a tenth of a second after it was told to, long ago by now.
    worker_ = std::jthread([plan = std::move(plan), tell](const std::stop_token &stop) {
        // On Linux a thread has a priority of its own, and those that it starts inherit it.
        setpriority(PRIO_PROCESS, 0, lowestPriority);
        QElapsedTimer since;
        since.start();
        SizeForecast forecast = forecastOf(*plan);
        const auto sampled = forecast.weightiestFrame();
        if (sampled && !plan->images.empty()) {
            const GifFileResult tried = writeGifFile(sampleOf(*plan, *sampled), stop);
            if (tried.isComplete())
                forecast.addSample(*sampled, tried.outcome.bytes - tried.firstFrame);
        }
        plan->job.progress = [&](std::int64_t frames, std::uint64_t bytes) {
            forecast.add(frames - 1, bytes);
            if (frames < 2 || since.elapsed() < betweenForecasts)
                return;
            since.restart();
            tell(forecast.bytes(), false);
        };
        const GifFileResult result = writeGifFile(plan->job, stop);
        if (result.isComplete())
            tell(result.outcome.bytes, true);
    });
}
