// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/scaler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace gif {
namespace {

constexpr double lobes = 3;
/// Pixels with at least this share of the largest weight bound the result.
constexpr double boundingShare = 0.05;

double lanczos(double x) {
    if (x == 0)
        return 1;
    if (std::abs(x) >= lobes)
        return 0;
    const double angle = std::numbers::pi * x;
    return lobes * std::sin(angle) * std::sin(angle / lobes) / (angle * angle);
}

constexpr int steps = 4096;

/// To linear light, and back by a table that is fine enough to give every value back exactly.
struct Light {
    std::array<float, 256> linear{};
    std::array<float, 256> border{}; ///< from where on a value is the nearest one
    std::array<std::uint8_t, steps + 1> guess{};

    Light() {
        const auto toLinear = [](double c) {
            return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        for (std::size_t i = 0; i < linear.size(); ++i) {
            linear[i] = float(toLinear(double(i) / 255));
            border[i] = i == 0 ? -1.0f : float(toLinear((double(i) - 0.5) / 255));
        }
        std::size_t value = 0;
        for (std::size_t i = 0; i < guess.size(); ++i) {
            while (value < 255 && border[value + 1] <= float(i) / steps)
                ++value;
            guess[i] = std::uint8_t(value);
        }
    }

    std::uint32_t back(float light) const {
        if (light <= 0)
            return 0;
        std::size_t value = guess[std::size_t(std::min(light, 1.0f) * steps)];
        while (value < 255 && border[value + 1] <= light)
            ++value;
        return std::uint32_t(value);
    }
};

const Light light;

} // namespace

std::vector<Scaler::Taps> Scaler::taps(int from, int to) {
    std::vector<Taps> all;
    const double ratio = double(from) / to, widened = std::max(ratio, 1.0);
    for (int i = 0; i < to; ++i) {
        const double centre = (i + 0.5) * ratio - 0.5;
        const int first = std::max(int(std::ceil(centre - lobes * widened)), 0);
        const int last = std::min(int(std::floor(centre + lobes * widened)), from - 1);
        std::vector<double> weights;
        double sum = 0, most = 0;
        for (int pixel = first; pixel <= last; ++pixel) {
            weights.push_back(lanczos((pixel - centre) / widened));
            sum += weights.back();
            most = std::max(most, weights.back());
        }
        Taps taps{first, last, first, {}};
        for (std::size_t k = 0; k < weights.size(); ++k) {
            if (weights[k] >= boundingShare * most) {
                taps.near = std::min(taps.near, first + int(k));
                taps.nearEnd = std::max(taps.nearEnd, first + int(k) + 1);
            }
            taps.weights.push_back(float(weights[k] / sum));
        }
        all.push_back(std::move(taps));
    }
    return all;
}

Scaler::Scaler(int fromWidth, int fromHeight, int width, int height)
    : width_(width), columns_(taps(fromWidth, width)), rows_(taps(fromHeight, height)) {}

void Scaler::scale(const std::uint32_t *from, std::ptrdiff_t stride, const Rect &part,
                   std::uint32_t *result, const std::stop_token &stop) const {
    // Bands keep the memory in between small.
    constexpr int bandHeight = 32;
    std::vector<Across> across;
    for (int y = 0; y < part.height && part.width > 0 && !stop.stop_requested(); y += bandHeight) {
        const Rect band{part.x, part.y + y, part.width, std::min(bandHeight, part.height - y)};
        const Taps &last = rows_[std::size_t(band.y + band.height - 1)];
        const int firstRow = rows_[std::size_t(band.y)].first;
        const int endRow = last.first + int(last.weights.size());
        across.resize(std::size_t(band.width) * std::size_t(endRow - firstRow));
        for (int row = firstRow; row < endRow; ++row)
            scaleAcross(from + row * stride, band,
                        &across[std::size_t(band.width) * std::size_t(row - firstRow)]);
        scaleDown(across, firstRow, band, result);
    }
}

void Scaler::scaleAcross(const std::uint32_t *row, const Rect &band, Across *out) const {
    for (int x = band.x; x < band.x + band.width; ++x, ++out) {
        const Taps &taps = columns_[std::size_t(x)];
        *out = Across();
        for (std::size_t k = 0; k < taps.weights.size(); ++k) {
            const int column = taps.first + int(k);
            const std::uint32_t pixel = row[column];
            const Sample sample{light.linear[pixel >> 16 & 255], light.linear[pixel >> 8 & 255],
                                light.linear[pixel & 255]};
            const bool bounds = column >= taps.near && column < taps.nearEnd;
            for (std::size_t c = 0; c < 3; ++c) {
                out->value[c] += taps.weights[k] * sample[c];
                out->least[c] = bounds ? std::min(out->least[c], sample[c]) : out->least[c];
                out->most[c] = bounds ? std::max(out->most[c], sample[c]) : out->most[c];
            }
        }
    }
}

void Scaler::scaleDown(std::span<const Across> across, int firstRow, const Rect &band,
                       std::uint32_t *result) const {
    const auto width = std::size_t(band.width);
    for (int y = band.y; y < band.y + band.height; ++y) {
        const Taps &taps = rows_[std::size_t(y)];
        std::uint32_t *out = result + std::ptrdiff_t(y) * width_ + band.x;
        for (std::size_t x = 0; x < width; ++x) {
            Across sum;
            for (std::size_t k = 0; k < taps.weights.size(); ++k) {
                const int row = taps.first + int(k);
                const Across &at = across[width * std::size_t(row - firstRow) + x];
                const bool bounds = row >= taps.near && row < taps.nearEnd;
                for (std::size_t c = 0; c < 3; ++c) {
                    sum.value[c] += taps.weights[k] * at.value[c];
                    sum.least[c] = bounds ? std::min(sum.least[c], at.least[c]) : sum.least[c];
                    sum.most[c] = bounds ? std::max(sum.most[c], at.most[c]) : sum.most[c];
                }
            }
            std::uint32_t pixel = 0xFF;
            for (std::size_t c = 0; c < 3; ++c)
                pixel =
                    pixel << 8 | light.back(std::clamp(sum.value[c], sum.least[c], sum.most[c]));
            out[x] = pixel;
        }
    }
}

Rect Scaler::affected(const Rect &changed) const {
    // The taps move on from pixel to pixel, so those that reach into a range are neighbours.
    const auto range = [](const std::vector<Taps> &taps, int begin, int end) {
        const auto first = std::ranges::partition_point(
            taps, [&](const Taps &t) { return t.first + int(t.weights.size()) <= begin; });
        const auto last =
            std::ranges::partition_point(taps, [&](const Taps &t) { return t.first < end; });
        return std::pair(int(first - taps.begin()), int(last - taps.begin()));
    };
    const auto [left, right] = range(columns_, changed.x, changed.x + changed.width);
    const auto [top, bottom] = range(rows_, changed.y, changed.y + changed.height);
    return changed.isEmpty() ? Rect() : Rect{left, top, right - left, bottom - top};
}

ScalingSource::ScalingSource(FrameSource &source, int fromWidth, int fromHeight, int width,
                             int height, std::stop_token stop)
    : source_(source), scaler_(fromWidth, fromHeight, width, height), width_(width),
      height_(height), stop_(std::move(stop)), pixels_(std::size_t(width) * std::size_t(height)) {}

bool ScalingSource::next(Frame &frame) {
    Frame from;
    if (!source_.next(from))
        return false;
    changed_.clear();
    if (!begun_)
        changed_.push_back({0, 0, width_, height_});
    else {
        for (const Rect &rect : from.changed)
            changed_.push_back(scaler_.affected(rect));
    }
    begun_ = true;
    for (const Rect &rect : changed_)
        scaler_.scale(from.pixels, from.stride, rect, pixels_.data(), stop_);
    frame = {pixels_.data(), width_, from.delay, changed_};
    return true;
}

bool ScalingSource::rewind() {
    begun_ = false;
    return source_.rewind();
}

} // namespace gif
