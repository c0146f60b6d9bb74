// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// The presets on recordings: size, time and likeness of each in one run.
//   bench_gif                          recordings made here
//   bench_gif --scaling                only what larger screens and longer stills cost
//   bench_gif NAME RAW WIDTH HEIGHT RATE [FOLDER]
//                                      one of raw RGB frames; its files are kept in the folder
#include "bench/gif/recordings.h"
#include "bench/short_form.h"
#include "export/gif/colour.h"
#include "export/gif/encoder.h"
#include "export/size_forecast.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>
#include <unordered_map>

namespace {

constexpr int threads = 2;
constexpr std::size_t measuredFrames = 24;

/// Beyond this, in units of CIEDE2000, a picture is wrong and not only coarse.
constexpr double largestDifference = 3;

struct Preset {
    const char *name;
    float tolerance;
};
constexpr Preset presets[] = {{"Best", gif::bestTolerance},
                              {"Balanced", gif::balancedTolerance},
                              {"Small", gif::smallTolerance}};

struct Made {
    std::vector<std::uint8_t> bytes;
    gif::Outcome outcome;
    double seconds = 0;
    double processor = 0;
};

/// Of all threads, in seconds.
double processorTime() { return double(std::clock()) / CLOCKS_PER_SEC; }

Made encoded(BenchRecording &recording, float tolerance) {
    gif::Options options{.width = recording.width, .height = recording.height};
    options.tolerance = tolerance;
    options.threads = threads;
    recording.rewind();
    Made made;
    const auto began = std::chrono::steady_clock::now();
    const double before = processorTime();
    made.outcome = gif::encode(recording, options, [&](std::span<const std::uint8_t> part) {
        made.bytes.insert(made.bytes.end(), part.begin(), part.end());
        return true;
    });
    made.processor = processorTime() - before;
    made.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    return made;
}

/// The delays of all pictures, by the blocks of the file.
std::vector<std::int64_t> delaysOf(const std::vector<std::uint8_t> &bytes) {
    std::vector<std::int64_t> delays;
    const auto tableSize = [](int flags) {
        return flags & 0x80 ? std::size_t(6) << (flags & 7) : 0;
    };
    std::size_t at = 13 + tableSize(bytes[10]);
    while (bytes[at] != 0x3B) {
        if (bytes[at] == 0x21) {
            if (bytes[at + 1] == 0xF9)
                delays.push_back(bytes[at + 4] | bytes[at + 5] << 8);
            at += 2;
        } else
            at += 11 + tableSize(bytes[at + 9]);
        while (bytes[at] != 0)
            at += bytes[at] + std::size_t(1);
        ++at;
    }
    return delays;
}

/// The mean CIEDE2000 of some frames against the recording, as ffmpeg composes the file.
double meanDifference(const BenchRecording &recording, const std::vector<std::uint8_t> &bytes,
                      const std::string &path) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char *>(bytes.data()), std::streamsize(bytes.size()));
    const std::string command = "ffmpeg -v error -nostdin -i '" + path +
                                "' -fps_mode passthrough -enc_time_base 0.001 -f rawvideo "
                                "-pix_fmt rgb24 -";
    std::FILE *pipe = popen(command.c_str(), "r");
    if (!pipe)
        throw std::runtime_error("ffmpeg does not run");
    const auto pixels = std::size_t(recording.width) * std::size_t(recording.height);
    std::vector<unsigned char> shown(pixels * 3);
    std::unordered_map<std::uint64_t, float> known;
    double sum = 0;
    std::int64_t end = 0, begin = 0, measured = 0;
    std::size_t frame = 0;
    for (const std::int64_t delay : delaysOf(bytes)) {
        if (std::fread(shown.data(), 1, shown.size(), pipe) != shown.size())
            throw std::runtime_error("the file does not decode");
        end += delay;
        for (; frame < recording.size() && begin < end; begin += recording.delay(frame++)) {
            if (frame % std::max(recording.size() / measuredFrames, std::size_t(1)) != 0)
                continue;
            ++measured;
            for (std::size_t i = 0; i < pixels; ++i) {
                const std::uint32_t wanted = recording.pixels(frame)[i];
                const std::uint32_t got =
                    unsigned(shown[3 * i] << 16 | shown[3 * i + 1] << 8) | shown[3 * i + 2];
                if (wanted == got)
                    continue;
                const auto [entry, fresh] = known.try_emplace(std::uint64_t(wanted) << 24 | got);
                if (fresh)
                    entry->second = gif::colourDifference(wanted, got);
                sum += double(entry->second);
            }
        }
    }
    pclose(pipe);
    return sum / double(measured) / double(pixels);
}

/// Whether all that was made looks like the recording.
bool report(BenchRecording &recording, const std::filesystem::path &folder) {
    bool good = true;
    for (const Preset &preset : presets) {
        const Made made = encoded(recording, preset.tolerance);
        const std::string name = recording.name.substr(0, recording.name.find('/')) +
                                 (recording.name.ends_with("/2") ? "-half-" : "-") + preset.name;
        const double difference =
            meanDifference(recording, made.bytes, (folder / (name + ".gif")).string());
        std::printf("%-14s %-9s %9.1f KB %4lld pictures %6.2f s %6.2f s of processor, "
                    "difference %.4f\n",
                    recording.name.c_str(), preset.name, double(made.bytes.size()) / 1024,
                    static_cast<long long>(made.outcome.pictures), made.seconds, made.processor,
                    difference);
        std::fflush(stdout);
        good = good && difference < largestDifference;
    }
    return good;
}

/// How near to the size of the file what is told of it beforehand is, as the program tells it.
void reportForecast(BenchRecording &recording, const Preset &preset) {
    std::vector<double> changes;
    for (std::size_t frame = 0; frame < recording.size(); ++frame)
        changes.push_back(recording.changedPixels(frame));
    SizeForecast forecast(std::move(changes));
    struct Told {
        double seconds;
        double bytes;
    };
    std::vector<Told> told;
    std::uint64_t bytes = 0;
    gif::Options options{.width = recording.width, .height = recording.height};
    options.tolerance = preset.tolerance;
    options.threads = threads;
    const auto began = std::chrono::steady_clock::now();
    const auto since = [began] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    };
    const auto count = [&](BenchRecording &frames) {
        frames.rewind();
        gif::encode(frames, options, [&](std::span<const std::uint8_t> part) {
            bytes += part.size();
            return true;
        });
    };
    if (const auto sampled = forecast.weightiestFrame()) {
        BenchRecording two("", recording.width, recording.height, 1);
        for (const std::size_t frame : {*sampled - 1, *sampled}) {
            BenchRecording::Pixels pixels = recording.pixels(frame);
            two.add(std::move(pixels));
        }
        std::uint64_t first = 0;
        options.progress = [&](std::int64_t frames) { first = frames == 2 ? bytes : first; };
        count(two);
        forecast.addSample(*sampled, bytes - first);
        bytes = 0;
    }
    options.progress = [&](std::int64_t frames) {
        forecast.add(frames - 1, bytes);
        if (frames > 1)
            told.push_back({since(), double(forecast.bytes())});
    };
    count(recording);
    const auto ratioAt = [&](double seconds) {
        double last = 0;
        for (const Told &each : told)
            if (each.seconds <= seconds || last == 0)
                last = each.bytes;
        return last / double(bytes);
    };
    std::printf(
        "%-14s %-9s size told / size: %.3f after 0.7 s, %.3f after 5 s; exact after %.2f s\n",
        recording.name.c_str(), preset.name, ratioAt(0.7), ratioAt(5), since());
    std::fflush(stdout);
}

/// What a change costs may depend neither on the picture around it nor on how long nothing changes.
void reportScaling() {
    const auto cost = [](int width, int height, int seconds) {
        BenchRecording recording = madeSquare(width, height, seconds);
        BenchRecording first = madeSquare(width, height, 0);
        BenchRecording::Pixels pixels = recording.pixels(0);
        first.add(std::move(pixels));
        // Frames that were never read cost the system more than the encoder: the least of three.
        const auto least = [](BenchRecording &frames) {
            double processor = encoded(frames, gif::balancedTolerance).processor;
            for (int i = 0; i < 2; ++i)
                processor = std::min(processor, encoded(frames, gif::balancedTolerance).processor);
            return processor;
        };
        const double all = least(recording);
        return std::pair(all, all - least(first));
    };
    const auto small = cost(1280, 800, 10), large = cost(3840, 2160, 10),
               longer = cost(1280, 800, 60);
    std::printf("A change of 200x100 on 3840x2160 costs %.2f of what it costs on 1280x800\n",
                large.second / small.second);
    std::printf("60 s with the changes of 10 s cost %.2f of these 10 s\n",
                longer.first / small.first);
}

} // namespace

int main(int argc, char **argv) {
    const auto work = std::filesystem::temp_directory_path() / "tovarel-bench-gif";
    std::filesystem::create_directories(work);
    if (isShortForm(argc, argv)) {
        BenchRecording recording = madePan(160, 100);
        const bool good = report(recording, work);
        std::filesystem::remove_all(work);
        return good ? 0 : 1;
    }
    if (argc == 2 && std::string_view(argv[1]) == "--scaling") {
        reportScaling();
        return 0;
    }
    if (argc >= 6) {
        BenchRecording recording(argv[1], std::atoi(argv[3]), std::atoi(argv[4]),
                                 std::atof(argv[5]));
        if (!recording.load(argv[2]))
            return 2;
        const std::filesystem::path folder = argc > 6 ? argv[6] : work;
        report(recording, folder);
        BenchRecording half = recording.halved();
        report(half, folder);
        for (const Preset &preset : presets)
            reportForecast(recording, preset);
        return 0;
    }
    BenchRecording rush = madeLateRush(1280, 800);
    reportForecast(rush, presets[1]);
    for (const auto &make : {madeDocument, madePan}) {
        BenchRecording recording = make(1280, 800);
        report(recording, work);
        BenchRecording half = recording.halved();
        report(half, work);
        for (const Preset &preset : presets)
            reportForecast(recording, preset);
    }
    reportScaling();
    std::filesystem::remove_all(work);
    return 0;
}
