// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/webp_estimate.h"

#include "export/fit_search.h"
#include "export/gif_plan.h"
#include "export/tool_process.h"
#include "export/webp_sample.h"

#include <algorithm>
#include <cmath>
#include <span>

using encoder_arguments::WebPCoding;
using encoder_arguments::WebPFrame;

namespace {

constexpr int pollEvery = 50; // milliseconds

/// Bytes of these frames as a WebP; 0 where there is none.
std::uint64_t bytesOf(const WebPPlan &plan, std::span<const WebPFrame> frames,
                      const WebPCoding &coding, const std::stop_token &stop) {
    QProcess tool;
    tool_process::prepare(
        tool, plan.encoder,
        encoder_arguments::webpArguments(u"0", frames, coding, QStringLiteral("-")));
    tool.setStandardErrorFile(QProcess::nullDevice());
    tool.start(QIODevice::ReadOnly);
    while (tool.state() != QProcess::NotRunning && !tool.waitForFinished(pollEvery))
        if (stop.stop_requested())
            tool.kill();
    const bool isMade =
        !stop.stop_requested() && tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0;
    return isMade ? static_cast<std::uint64_t>(tool.readAllStandardOutput().size()) : 0;
}

std::uint64_t forecast(const WebPPlan &plan, const WebPCoding &coding,
                       const std::stop_token &stop) {
    const std::span<const WebPFrame> frames = plan.frames;
    SizeForecast forecast = forecastOf(frames.size(), plan.images);
    const std::uint64_t first = bytesOf(plan, frames.first(1), coding, stop);
    forecast.add(1, first);
    if (const auto weightiest = forecast.weightiestFrame(); first > 0 && weightiest) {
        const std::size_t from = *weightiest - std::min(*weightiest, webpSampled / 2);
        const auto sample = frames.subspan(from, std::min(webpSampled, frames.size() - from));
        const std::uint64_t whole = bytesOf(plan, sample, coding, stop);
        const std::uint64_t alone =
            from == 0 ? first : bytesOf(plan, sample.first(1), coding, stop);
        forecast.addSamples(from + 1, sample.size() - 1, whole - std::min(whole, alone));
    }
    return first > 0 ? forecast.bytes() : 0;
}

} // namespace

std::optional<std::uint64_t> estimateWebP(const WebPPlan &plan, const std::stop_token &stop) {
    if (plan.encoder.isEmpty() || plan.frames.empty())
        return std::nullopt;
    std::uint64_t bytes = forecast(plan, {}, stop);
    if (plan.lossyQuality)
        bytes =
            std::min(bytes, forecast(plan, {.lossy = true, .quality = *plan.lossyQuality}, stop));
    if (bytes == 0 || stop.stop_requested())
        return std::nullopt;
    return std::llround(static_cast<double>(bytes) * std::pow(plan.pixels, FitLaw().powerOfPixels));
}
