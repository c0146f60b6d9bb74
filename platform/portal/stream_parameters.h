// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

struct spa_pod;

/// What we tell PipeWire of the pictures that we can take: objects in its own encoding (SPA POD),
/// each written into a `Storage` that must outlive it.
namespace stream_parameters {

struct Storage {
    alignas(8) std::array<std::uint8_t, 1024> bytes;
};

/// Four bytes a pixel, of any size, at most `rate` a second, in ordinary memory: without a modifier
/// compositors hand out no memory of the graphics card.
const spa_pod *formats(Storage &storage, std::uint64_t rate);

/// Buffers of shared memory.
const spa_pod *buffers(Storage &storage);

/// Each frame tells which part of it is the picture.
const spa_pod *cropping(Storage &storage);
/// Each frame tells whether it is sound.
const spa_pod *header(Storage &storage);

} // namespace stream_parameters
