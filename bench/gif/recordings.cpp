// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "bench/gif/recordings.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>
#include <random>

namespace {

constexpr int tile = 64;
constexpr int made = 150; ///< frames
constexpr double madeRate = 15;

void fill(BenchRecording::Pixels &pixels, int width, const gif::Rect &rect, auto colour) {
    for (int y = rect.y; y < rect.y + rect.height; ++y)
        for (int x = rect.x; x < rect.x + rect.width; ++x)
            pixels[std::size_t(y) * std::size_t(width) + std::size_t(x)] = colour(x, y);
}

/// A smooth picture with edges.
std::uint32_t wallpaper(double x, double y) {
    const auto wave = [](double v) { return std::uint32_t(127.5 + 127 * std::sin(v)); };
    return wave(x / 170 + std::sin(y / 90)) << 16 | wave(y / 140 + x / 400) << 8 |
           wave((x + y) / 260 + (std::fmod(x, 310) < y ? 1 : 0));
}

} // namespace

void BenchRecording::add(Pixels pixels) {
    std::vector<gif::Rect> changed;
    for (int y = 0; !frames_.empty() && y < height; y += tile) {
        for (int x = 0; x < width; x += tile) {
            const int right = std::min(x + tile, width), bottom = std::min(y + tile, height);
            bool differs = false;
            for (int row = y; row < bottom && !differs; ++row) {
                const auto begin = std::ptrdiff_t(row) * width + x;
                differs = !std::equal(pixels.begin() + begin, pixels.begin() + begin + (right - x),
                                      frames_.back().begin() + begin);
            }
            if (differs)
                changed.push_back({x, y, right - x, bottom - y});
        }
    }
    changes_.push_back(std::move(changed));
    frames_.push_back(std::move(pixels));
}

bool BenchRecording::load(const std::string &path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(std::fopen(path.c_str(), "rb"),
                                                                &std::fclose);
    const auto count = std::size_t(width) * std::size_t(height);
    std::vector<unsigned char> raw(count * 3);
    while (file && std::fread(raw.data(), 1, raw.size(), file.get()) == raw.size()) {
        Pixels pixels(count);
        for (std::size_t i = 0; i < count; ++i)
            pixels[i] = unsigned(raw[3 * i] << 16 | raw[3 * i + 1] << 8) | raw[3 * i + 2];
        add(std::move(pixels));
    }
    return !frames_.empty();
}

BenchRecording BenchRecording::halved() const {
    BenchRecording half(name + "/2", std::max(width / 2, 1), std::max(height / 2, 1), rate_);
    const gif::Scaler scaler(width, height, half.width, half.height);
    for (const Pixels &pixels : frames_) {
        Pixels scaled(std::size_t(half.width) * std::size_t(half.height));
        scaler.scale(pixels.data(), width, {0, 0, half.width, half.height}, scaled.data());
        for (std::uint32_t &pixel : scaled)
            pixel &= 0xFFFFFF;
        half.add(std::move(scaled));
    }
    return half;
}

std::int64_t BenchRecording::delay(std::size_t frame) const {
    const auto at = [&](std::size_t i) { return std::llround(double(i) * 100 / rate_); };
    return at(frame + 1) - at(frame);
}

bool BenchRecording::next(gif::Frame &frame) {
    if (next_ == frames_.size())
        return false;
    frame = {frames_[next_].data(), width, delay(next_), changes_[next_]};
    ++next_;
    return true;
}

bool BenchRecording::rewind() {
    next_ = 0;
    return true;
}

BenchRecording madeDocument(int width, int height) {
    BenchRecording recording("document", width, height, madeRate);
    std::mt19937 random(1);
    const std::size_t w = std::size_t(width);
    BenchRecording::Pixels pixels(w * std::size_t(height));
    fill(pixels, width, {0, 0, width, height}, [](int x, int y) { return wallpaper(x, y); });
    const gif::Rect page{width / 8, height / 8, width / 2, height * 3 / 4};
    fill(pixels, width, page, [](int, int) { return 0xFCFCF8u; });
    constexpr int glyphWidth = 9, lineHeight = 18;
    const int columns = (page.width - 20) / glyphWidth, lines = (page.height - 20) / lineHeight;
    for (int i = 0, place = 0; i < made; ++i) {
        for (int letters = i % 20 == 19 ? columns : 1; letters > 0; --letters, ++place) {
            const unsigned shape = unsigned(random());
            const gif::Rect glyph{page.x + 10 + place % columns * glyphWidth,
                                  page.y + 10 + place / columns % lines * lineHeight, 7, 13};
            fill(pixels, width, glyph, [&](int x, int y) {
                const unsigned bit = shape >> ((x - glyph.x) / 2 + (y - glyph.y) / 3 * 4) & 3;
                return bit == 0 ? 0x202830u : bit == 1 ? 0x98A0A8u : 0xFCFCF8u;
            });
        }
        if (i % 50 == 40) { // scrolled by three lines
            const auto by = std::ptrdiff_t(3 * lineHeight);
            for (int y = page.y; y < page.y + page.height - 3 * lineHeight; ++y)
                std::copy_n(pixels.begin() + (y + by) * width + page.x, page.width,
                            pixels.begin() + std::ptrdiff_t(y) * width + page.x);
        }
        if (i >= 110 && i < 118) // fades in
            fill(pixels, width, {width / 3, height / 3, width / 3, height / 4}, [&](int x, int y) {
                const std::uint32_t p = pixels[std::size_t(y) * w + std::size_t(x)];
                return (p >> 1 & 0x7F7F7F) + 0x606870u;
            });
        recording.add(pixels);
    }
    return recording;
}

BenchRecording madePan(int width, int height) {
    BenchRecording recording("pan", width, height, madeRate);
    std::mt19937 random(2);
    for (int i = 0; i < made; ++i) {
        BenchRecording::Pixels pixels(std::size_t(width) * std::size_t(height));
        fill(pixels, width, {0, 0, width, height}, [&](int x, int y) {
            return wallpaper(x + 2.5 * i, y + 0.5 * i) ^ (std::uint32_t(random()) & 0x030303);
        });
        recording.add(std::move(pixels));
    }
    return recording;
}

BenchRecording madeSquare(int width, int height, int seconds) {
    BenchRecording recording(std::to_string(width) + "x" + std::to_string(height) + ", " +
                                 std::to_string(seconds) + " s",
                             width, height, madeRate);
    BenchRecording::Pixels pixels(std::size_t(width) * std::size_t(height), 0xE0E4E8);
    for (int i = 0; i < int(madeRate) * seconds; ++i) {
        if (i < made)
            fill(pixels, width, {300, 200, 200, 100},
                 [&](int x, int y) { return wallpaper(x + 3 * i, y) & 0xF0F0F0; });
        recording.add(pixels);
    }
    return recording;
}

BenchRecording madeLateRush(int width, int height) {
    constexpr int still = 59 * int(madeRate);
    const BenchRecording rush = madePan(width, height);
    BenchRecording recording("late rush", width, height, madeRate);
    for (int i = 0; i < still; ++i) {
        BenchRecording::Pixels pixels = rush.pixels(0);
        for (int y = 0; y < 18; ++y)
            for (int x = 0; x < 2; ++x)
                pixels[std::size_t((height / 2 + y) * width + width / 2 + x)] =
                    i / 8 % 2 == 0 ? 0xFFFFFF : 0;
        recording.add(std::move(pixels));
    }
    for (int i = 0; i < int(madeRate); ++i) {
        BenchRecording::Pixels pixels = rush.pixels(std::size_t(i));
        recording.add(std::move(pixels));
    }
    return recording;
}

double BenchRecording::changedPixels(std::size_t frame) const {
    double pixels = 0;
    for (const gif::Rect &rect : changes_[frame])
        pixels += double(rect.width) * rect.height;
    return pixels;
}
