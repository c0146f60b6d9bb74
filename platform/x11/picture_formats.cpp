// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/picture_formats.h"

#include <algorithm>
#include <bit>
#include <span>

namespace x11 {

namespace {

bool hasWordsOfOurOrder(const xcb_setup_t &setup) {
    constexpr auto ours = std::endian::native == std::endian::little ? XCB_IMAGE_ORDER_LSB_FIRST
                                                                     : XCB_IMAGE_ORDER_MSB_FIRST;
    const std::span formats(xcb_setup_pixmap_formats(&setup),
                            static_cast<std::size_t>(xcb_setup_pixmap_formats_length(&setup)));
    return setup.image_byte_order == ours && std::ranges::any_of(formats, [](const auto &format) {
               return format.depth == PictureFormats::targetDepth && format.bits_per_pixel == 32;
           });
}

bool isTarget(const xcb_render_pictforminfo_t &format) {
    const auto &direct = format.direct;
    return format.type == XCB_RENDER_PICT_TYPE_DIRECT &&
           format.depth == PictureFormats::targetDepth && direct.alpha_mask == 0xff &&
           direct.alpha_shift == 24 && direct.red_mask == 0xff && direct.red_shift == 16 &&
           direct.green_mask == 0xff && direct.green_shift == 8 && direct.blue_mask == 0xff &&
           direct.blue_shift == 0;
}

} // namespace

PictureFormats::PictureFormats(Connection &connection) {
    const auto reply = connection.reply<xcb_render_query_pict_formats_reply>(
        xcb_render_query_pict_formats(connection.get()));
    if (!reply)
        return;
    const std::span formats(
        xcb_render_query_pict_formats_formats(reply.get()),
        static_cast<std::size_t>(xcb_render_query_pict_formats_formats_length(reply.get())));
    std::unordered_map<xcb_render_pictformat_t, bool> alpha;
    for (const auto &format : formats) {
        alpha[format.id] = format.direct.alpha_mask != 0;
        if (target_ == 0 && isTarget(format))
            target_ = format.id;
    }
    if (!hasWordsOfOurOrder(connection.setup()))
        target_ = 0;

    auto screens = xcb_render_query_pict_formats_screens_iterator(reply.get());
    for (; screens.rem > 0; xcb_render_pictscreen_next(&screens)) {
        auto depths = xcb_render_pictscreen_depths_iterator(screens.data);
        for (; depths.rem > 0; xcb_render_pictdepth_next(&depths)) {
            const std::span visuals(
                xcb_render_pictdepth_visuals(depths.data),
                static_cast<std::size_t>(xcb_render_pictdepth_visuals_length(depths.data)));
            for (const auto &visual : visuals)
                byVisual_[visual.visual] = {visual.format, alpha[visual.format]};
        }
    }
}

PictureFormats::Format PictureFormats::of(xcb_visualid_t visual) const {
    const auto found = byVisual_.find(visual);
    return found == byVisual_.end() ? Format{} : found->second;
}

} // namespace x11
