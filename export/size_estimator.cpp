// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/size_estimator.h"

#include "export/exporter.h"
#include "export/gif_plan.h"
#include "export/webp_estimate.h"

#include <QElapsedTimer>

#include <sys/resource.h>

#include <utility>

namespace {

constexpr int pauseAfterChange = 300;    // milliseconds: while somebody is still choosing
constexpr qint64 betweenForecasts = 200; // milliseconds
constexpr int lowestPriority = 19;

/// Makes the GIF for its size alone, and tells what is known of that on the way.
void countGIF(GifPlan &plan, const std::stop_token &stop,
              const std::function<void(std::uint64_t bytes, bool isExact)> &tell) {
    QElapsedTimer since;
    since.start();
    SizeForecast forecast = forecastOf(plan.job.frames, plan.images);
    const auto sampled = forecast.weightiestFrame();
    if (sampled && !plan.images.empty()) {
        const GifFileResult tried = writeGifFile(sampleOf(plan, *sampled), stop);
        if (tried.isComplete())
            forecast.addSample(*sampled, tried.outcome.bytes - tried.firstFrame);
    }
    plan.job.progress = [&](std::int64_t frames, std::uint64_t bytes) {
        forecast.add(frames - 1, bytes);
        if (frames < 2 || since.elapsed() < betweenForecasts)
            return;
        since.restart();
        tell(forecast.bytes(), false);
    };
    const GifFileResult result = writeGifFile(plan.job, stop);
    if (result.isComplete())
        tell(result.outcome.bytes, true);
}

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
    if (exporter_.refusal(choices))
        return;
    std::shared_ptr<GifPlan> gif;
    if (choices.preset != GifPreset::Classic && !exporter_.GIFSizeRefusal(choices))
        gif = std::make_shared<GifPlan>(exporter_.planGIF(choices));
    const std::uint64_t run = ++run_;
    const auto tell = [this, run](const std::function<void()> &say) {
        QMetaObject::invokeMethod(
            this,
            [this, run, say] {
                if (run == run_)
                    say();
            },
            Qt::QueuedConnection);
    };
    // The one before ends within a tenth of a second after it was told to, long ago by now.
    worker_ = std::jthread([this, gif = std::move(gif), webp = exporter_.planWebP(choices),
                            tell](const std::stop_token &stop) {
        // On Linux a thread has a priority of its own, and what it starts inherits it.
        setpriority(PRIO_PROCESS, 0, lowestPriority);
        if (gif)
            countGIF(*gif, stop, [this, tell](std::uint64_t bytes, bool isExact) {
                tell([this, bytes, isExact] { Q_EMIT estimated(bytes, isExact); });
            });
        if (stop.stop_requested())
            return;
        if (const auto bytes = estimateWebP(webp, stop))
            tell([this, bytes] { Q_EMIT webpEstimated(*bytes); });
    });
}
