// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "bench/processor_time.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>

namespace {

constexpr double nanosecond = 1e-9;

double ownSeconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * nanosecond;
}

// The scheduler's own count is exact, where the usual one is in hundredths of a second.
double serverSeconds() {
    const char *process = std::getenv("TOVAREL_SERVER_PID");
    double seconds = 0.0;
    if (process)
        for (const auto &thread : std::filesystem::directory_iterator(
                 std::filesystem::path("/proc") / process / "task")) {
            double nanoseconds = 0.0;
            std::ifstream(thread.path() / "schedstat") >> nanoseconds;
            seconds += nanoseconds * nanosecond;
        }
    if (seconds == 0.0) {
        std::fputs("the display server's processor time cannot be read\n", stderr);
        std::exit(EXIT_FAILURE);
    }
    return seconds;
}

} // namespace

double processorSeconds() { return ownSeconds() + serverSeconds(); }
