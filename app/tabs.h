// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

/// The three tabs by their places in the tab view, which counts from 0.
namespace tabs {

inline constexpr int record = 0;
inline constexpr int cut = 1;
inline constexpr int gif = 2;

} // namespace tabs
