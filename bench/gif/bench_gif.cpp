// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// bench_gif RAW WIDTH HEIGHT RATE TOLERANCE THREADS OUT: codes raw RGB frames as one GIF, and
// prints its size, its pictures, and the processor time and time of the encoder alone.
#include "export/gif/encoder.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

namespace {

constexpr int tile = 64;

/// All frames in memory, with the tiles of 64 by 64 in which each differs from the one before: what
/// a recording knows.
class Recording : public gif::FrameSource {
public:
    Recording(const char *path, int width, int height, double rate)
        : width_(width), height_(height), rate_(rate) {
        std::FILE *file = std::fopen(path, "rb");
        if (!file)
            std::exit(2);
        const auto pixels = std::size_t(width) * std::size_t(height);
        std::vector<unsigned char> raw(pixels * 3);
        while (std::fread(raw.data(), 1, raw.size(), file) == raw.size()) {
            std::vector<std::uint32_t> frame(pixels);
            for (std::size_t i = 0; i < pixels; ++i)
                frame[i] =
                    0xFF000000u | unsigned(raw[3 * i] << 16 | raw[3 * i + 1] << 8) | raw[3 * i + 2];
            findChanges(frame);
            frames_.push_back(std::move(frame));
        }
        std::fclose(file);
    }

    bool next(gif::Frame &frame) override {
        if (next_ == frames_.size())
            return false;
        frame.pixels = frames_[next_].data();
        frame.stride = width_;
        frame.changed = changes_[next_];
        const auto at = [&](std::size_t i) { return std::llround(double(i) * 100 / rate_); };
        frame.delay = at(next_ + 1) - at(next_);
        ++next_;
        return true;
    }

    bool rewind() override {
        next_ = 0;
        return true;
    }

private:
    void findChanges(const std::vector<std::uint32_t> &frame) {
        std::vector<gif::Rect> changed;
        for (int y = 0; !frames_.empty() && y < height_; y += tile) {
            for (int x = 0; x < width_; x += tile) {
                const int right = std::min(x + tile, width_), bottom = std::min(y + tile, height_);
                bool differs = false;
                for (int row = y; row < bottom && !differs; ++row) {
                    const auto begin = std::size_t(row) * std::size_t(width_) + std::size_t(x);
                    differs = !std::equal(frame.begin() + std::ptrdiff_t(begin),
                                          frame.begin() + std::ptrdiff_t(begin) + (right - x),
                                          frames_.back().begin() + std::ptrdiff_t(begin));
                }
                if (differs)
                    changed.push_back({x, y, right - x, bottom - y});
            }
        }
        changes_.push_back(std::move(changed));
    }

    int width_, height_;
    double rate_;
    std::size_t next_ = 0;
    std::vector<std::vector<std::uint32_t>> frames_;
    std::vector<std::vector<gif::Rect>> changes_;
};

} // namespace

int main(int argc, char **argv) {
    if (argc != 8)
        return 2;
    Recording recording(argv[1], std::atoi(argv[2]), std::atoi(argv[3]), std::atof(argv[4]));
    gif::Options options;
    options.width = std::atoi(argv[2]);
    options.height = std::atoi(argv[3]);
    options.tolerance = float(std::atof(argv[5]));
    options.threads = std::atoi(argv[6]);
    std::FILE *out = std::fopen(argv[7], "wb");
    if (!out)
        return 2;
    const auto began = std::chrono::steady_clock::now();
    const std::clock_t processor = std::clock();
    const gif::Outcome outcome =
        gif::encode(recording, options, [&](std::span<const std::uint8_t> bytes) {
            return std::fwrite(bytes.data(), 1, bytes.size(), out) == bytes.size();
        });
    const double spent = double(std::clock() - processor) / CLOCKS_PER_SEC;
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began;
    std::fclose(out);
    std::printf("%.1f KB, %lld pictures, %.2f s, processor %.2f s\n", double(outcome.bytes) / 1024,
                static_cast<long long>(outcome.pictures), took.count(), spent);
    return outcome.end == gif::Outcome::End::Complete ? 0 : 1;
}
