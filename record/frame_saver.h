// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

/// Writes the frames of a stopped recording.
class FrameSaver {};
