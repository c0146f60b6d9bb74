// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/x_client.h"

#include <random>
#include <vector>

/// Does at random what windows do, in any order: they come, go, move, change their size, place in
/// the stack, shape, border and parent, hide, and are drawn in. Some of it may name a window that
/// is gone by then, as happens on any desktop.
class Unrest {
public:
    Unrest(XClient &client, unsigned seed) : client_(client), random_(seed) {}

    void act();

private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    QRect place() { return {below(700) - 80, below(480) - 80, 1 + below(300), 1 + below(250)}; }
    QRect within() { return {below(200) - 10, below(150) - 10, 1 + below(160), 1 + below(120)}; }

    /// Another one of ours, or none.
    xcb_window_t other(xcb_window_t window);
    void add();
    void changeParent(xcb_window_t window);

    XClient &client_;
    std::mt19937 random_;
    std::vector<xcb_window_t> windows_;
};

/// What TOVAREL_TEST_SEED says, else `otherwise`. To be told where a test may fail.
unsigned seedOfThisRun(unsigned otherwise);
