// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

/// Some desktops' dark themes tell the toolkit the ground of a tool tip but not the colour of its
/// words, which then are black on nearly black. Gives tool tips the colours of windows in that
/// case; to be called once, at start-up.
void makeTipsReadable();
