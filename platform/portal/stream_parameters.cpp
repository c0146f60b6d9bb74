// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/portal/stream_parameters.h"

#include <spa/buffer/buffer.h>
#include <spa/buffer/meta.h>
#include <spa/param/format.h>
#include <spa/param/param.h>
#include <spa/param/video/format-utils.h>
#include <spa/pod/builder.h>

namespace stream_parameters {

namespace {

constexpr int fewestBuffers = 2;
constexpr int wantedBuffers = 4;
constexpr int mostBuffers = 8;
constexpr std::uint32_t largestSide = 16384; // pixels

spa_pod_builder builderIn(Storage &storage) {
    return SPA_POD_BUILDER_INIT(storage.bytes.data(),
                                static_cast<std::uint32_t>(storage.bytes.size()));
}

const spa_pod *metadata(Storage &storage, std::uint32_t type, std::size_t size) {
    spa_pod_builder builder = builderIn(storage);
    return static_cast<const spa_pod *>(spa_pod_builder_add_object(
        &builder, SPA_TYPE_OBJECT_ParamMeta, SPA_PARAM_Meta, SPA_PARAM_META_type, SPA_POD_Id(type),
        SPA_PARAM_META_size, SPA_POD_Int(static_cast<int>(size))));
}

} // namespace

const spa_pod *formats(Storage &storage, std::uint64_t rate) {
    spa_pod_builder builder = builderIn(storage);
    const spa_rectangle usual{1920, 1080}, smallest{1, 1}, largest{largestSide, largestSide};
    const spa_fraction variable{0, 1}, fastest{static_cast<std::uint32_t>(rate), 1};
    return static_cast<const spa_pod *>(spa_pod_builder_add_object(
        &builder, SPA_TYPE_OBJECT_Format, SPA_PARAM_EnumFormat, SPA_FORMAT_mediaType,
        SPA_POD_Id(SPA_MEDIA_TYPE_video), SPA_FORMAT_mediaSubtype,
        SPA_POD_Id(SPA_MEDIA_SUBTYPE_raw), SPA_FORMAT_VIDEO_format,
        SPA_POD_CHOICE_ENUM_Id(5, SPA_VIDEO_FORMAT_BGRx, SPA_VIDEO_FORMAT_BGRx,
                               SPA_VIDEO_FORMAT_BGRA, SPA_VIDEO_FORMAT_RGBx, SPA_VIDEO_FORMAT_RGBA),
        SPA_FORMAT_VIDEO_size, SPA_POD_CHOICE_RANGE_Rectangle(&usual, &smallest, &largest),
        SPA_FORMAT_VIDEO_framerate, SPA_POD_Fraction(&variable), SPA_FORMAT_VIDEO_maxFramerate,
        SPA_POD_CHOICE_RANGE_Fraction(&fastest, &variable, &fastest)));
}

const spa_pod *buffers(Storage &storage) {
    spa_pod_builder builder = builderIn(storage);
    return static_cast<const spa_pod *>(spa_pod_builder_add_object(
        &builder, SPA_TYPE_OBJECT_ParamBuffers, SPA_PARAM_Buffers, SPA_PARAM_BUFFERS_buffers,
        SPA_POD_CHOICE_RANGE_Int(wantedBuffers, fewestBuffers, mostBuffers),
        SPA_PARAM_BUFFERS_dataType, SPA_POD_CHOICE_FLAGS_Int(1 << SPA_DATA_MemFd)));
}

const spa_pod *cropping(Storage &storage) {
    return metadata(storage, SPA_META_VideoCrop, sizeof(spa_meta_region));
}

const spa_pod *header(Storage &storage) {
    return metadata(storage, SPA_META_Header, sizeof(spa_meta_header));
}

} // namespace stream_parameters
