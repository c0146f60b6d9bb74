// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

/// What the counters' command lines say; each kind of counter heeds those that it tells of.
struct CounterOptions {
    int x = 0, y = 0, width = 0, height = 0; // pixels, or points on Wayland
    double rate = 30;                        // steps a second, above 0
    int screen = 0;
    bool unmanaged = false, log = false;
};

/// Reads a command line into what stands in `options` otherwise; the process ends when it cannot.
inline CounterOptions parse(int argc, char **argv, CounterOptions options) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view name = argv[i];
        options.unmanaged |= name == "--unmanaged";
        options.log |= name == "--log";
        if (name == "--unmanaged" || name == "--log")
            continue;
        const char *value = i + 1 < argc ? argv[++i] : "";
        const bool good =
            (name == "--at" && std::sscanf(value, "%d,%d", &options.x, &options.y) == 2) ||
            (name == "--size" &&
             std::sscanf(value, "%dx%d", &options.width, &options.height) == 2) ||
            (name == "--rate" && std::sscanf(value, "%lf", &options.rate) == 1) ||
            (name == "--screen" && std::sscanf(value, "%d", &options.screen) == 1);
        if (!good) {
            std::fprintf(stderr, "%s: cannot read %s %s\n", argv[0], name.data(), value);
            std::exit(2);
        }
    }
    return options;
}
