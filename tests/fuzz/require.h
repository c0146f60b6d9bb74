// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the fuzzer, which then keeps the input, when a rule does not hold for it.
#define REQUIRE(rule)                                                                              \
    do {                                                                                           \
        if (!(rule)) {                                                                             \
            std::fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #rule);                \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)
