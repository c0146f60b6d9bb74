// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Whether only the short form of a bench was asked for ("--short" as the first word): a moment's
/// work in which pictures are checked and no bars, so that ./test notices a bench that no longer
/// works.
inline bool isShortForm(int argc, char **argv) {
    return argc > 1 && std::string_view(argv[1]) == "--short";
}
