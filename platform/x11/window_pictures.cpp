// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/window_pictures.h"

#include "platform/image/regions.h"

#include <xcb/composite.h>

#include <algorithm>
#include <span>
#include <utility>

namespace x11 {

namespace {

constexpr int mostPieces = 64;

} // namespace

WindowPictures::WindowPictures(Connection &connection, const PictureFormats &formats)
    : connection_(connection), formats_(formats) {}

WindowPictures::Entry *WindowPictures::find(xcb_window_t window) {
    const auto found = entries_.find(window);
    return found == entries_.end() ? nullptr : &found->second;
}

const WindowPictures::Entry *WindowPictures::find(xcb_window_t window) const {
    const auto found = entries_.find(window);
    return found == entries_.end() ? nullptr : &found->second;
}

void WindowPictures::watch(xcb_window_t window) {
    const auto [place, isNew] = entries_.try_emplace(window);
    if (!isNew)
        return;
    Entry &entry = place->second;
    entry.generation = ++generations_;
    xcb_shape_select_input(connection_.get(), window, 1);
    ask(window, true);
}

void WindowPictures::ask(xcb_window_t window, bool attributesToo) {
    Question question;
    question.window = window;
    if (attributesToo)
        question.attributes = xcb_get_window_attributes(connection_.get(), window);
    question.extents = xcb_shape_query_extents(connection_.get(), window);
    question.rectangles =
        xcb_shape_get_rectangles(connection_.get(), window, XCB_SHAPE_SK_BOUNDING);
    questions_.push_back(question);
}

void WindowPictures::settle() {
    for (const auto &question : std::exchange(questions_, {}))
        answer(question);
}

void WindowPictures::answer(const Question &question) {
    const auto attributes =
        question.attributes
            ? connection_.reply<xcb_get_window_attributes_reply>(*question.attributes)
            : nullptr;
    const auto extents = connection_.reply<xcb_shape_query_extents_reply>(question.extents);
    const auto rectangles = connection_.reply<xcb_shape_get_rectangles_reply>(question.rectangles);
    Entry *entry = find(question.window);
    if (!entry)
        return;
    if (attributes) {
        entry->known = true;
        entry->format = formats_.of(attributes->visual);
        entry->inputOnly = attributes->_class == XCB_WINDOW_CLASS_INPUT_ONLY;
        entry->showable =
            attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT && entry->format.id != 0;
    }
    if (!extents || !rectangles)
        return;
    std::optional<QRegion> shape;
    // The rectangles of a window that has no shape leave out its border.
    if (extents->bounding_shaped) {
        shape.emplace();
        const std::span list(
            xcb_shape_get_rectangles_rectangles(rectangles.get()),
            static_cast<std::size_t>(xcb_shape_get_rectangles_rectangles_length(rectangles.get())));
        for (const auto &r : list)
            *shape += QRect(r.x, r.y, r.width, r.height);
    }
    // Some window managers set the same shape again whenever they draw a frame.
    if (shape != entry->shape || attributes)
        entry->generation = ++generations_;
    entry->shape = std::move(shape);
}

void WindowPictures::release(Entry &entry) {
    if (entry.picture != 0)
        xcb_render_free_picture(connection_.get(), entry.picture);
    if (entry.pixmap != 0)
        xcb_free_pixmap(connection_.get(), entry.pixmap);
    entry.picture = 0;
    entry.pixmap = 0;
}

void WindowPictures::forget(xcb_window_t window) {
    // A window that was only taken elsewhere stays redirected unless we end it.
    giveBack(window);
    entries_.erase(window);
}

void WindowPictures::renew(xcb_window_t window, const QRegion &covered, const QPoint &inner) {
    Entry *entry = find(window);
    if (!entry)
        return;
    release(*entry);
    entry->failed = false;
    entry->generation = ++generations_;
    if (entry->redirected)
        entry->untrusted = covered.translated(-inner);
}

bool WindowPictures::isDoubtful(xcb_window_t window, std::uint32_t sequence) const {
    const Entry *entry = find(window);
    return entry && entry->redirected && (sequence <= entry->since || !entry->untrusted.isEmpty());
}

bool WindowPictures::hidesDrawing(xcb_window_t window) const {
    const Entry *entry = find(window);
    return entry && entry->untrusted.intersects(entry->pending);
}

void WindowPictures::redirect(xcb_window_t window, const QRegion &covered, const QPoint &inner) {
    Entry *entry = find(window);
    if (!entry || entry->redirected)
        return;
    xcb_connection_t *c = connection_.get();
    entry->redirected = true;
    entry->untrusted = covered.translated(-inner);
    entry->pending = QRegion();
    entry->damage = connection_.newId();
    xcb_damage_create(c, entry->damage, window, XCB_DAMAGE_REPORT_LEVEL_DELTA_RECTANGLES);
    xcb_composite_redirect_window(c, window, XCB_COMPOSITE_REDIRECT_AUTOMATIC);
    // The server itself draws while it redirects: that is not the client's content.
    entry->since = xcb_damage_subtract(c, entry->damage, XCB_NONE, XCB_NONE).sequence;
    // At once: what is drawn before the server has it is never told, and a grab may send nothing.
    xcb_flush(c);
}

bool WindowPictures::isRedirected(xcb_window_t window) const {
    const Entry *entry = find(window);
    return entry && entry->redirected;
}

void WindowPictures::giveBack(xcb_window_t window) {
    Entry *entry = find(window);
    if (!entry)
        return;
    release(*entry);
    if (!std::exchange(entry->redirected, false))
        return;
    xcb_composite_unredirect_window(connection_.get(), window, XCB_COMPOSITE_REDIRECT_AUTOMATIC);
    xcb_damage_destroy(connection_.get(), entry->damage);
    entry->pending = entry->untrusted = QRegion();
}

void WindowPictures::distrust(xcb_window_t window, const QRegion &covered, const QPoint &inner,
                              std::uint32_t sequence) {
    Entry *entry = find(window);
    if (entry && entry->redirected && sequence <= entry->since)
        entry->untrusted = united(entry->untrusted, covered.translated(-inner));
}

QRegion WindowPictures::untrusted(xcb_window_t window, const QPoint &inner) const {
    const Entry *entry = find(window);
    return entry ? entry->untrusted.translated(inner) : QRegion();
}

bool WindowPictures::onShape(const xcb_shape_notify_event_t &event) {
    if (event.shape_kind != XCB_SHAPE_SK_BOUNDING || !find(event.affected_window))
        return false;
    ask(event.affected_window, false);
    return true;
}

bool WindowPictures::onDamage(const xcb_damage_notify_event_t &event, std::uint32_t sequence) {
    Entry *entry = find(event.drawable);
    if (!entry || !entry->redirected || event.damage != entry->damage || sequence < entry->since)
        return false;
    const QRect area(event.area.x, event.area.y, event.area.width, event.area.height);
    entry->untrusted -= area;
    entry->pending = united(entry->pending, area);
    // Many pieces cost more than the box around them.
    if (entry->pending.rectCount() > mostPieces)
        entry->pending = entry->pending.boundingRect();
    return true;
}

bool WindowPictures::onError(const xcb_generic_error_t &error) {
    if (error.major_code != connection_.extensions().compositeRequest ||
        error.minor_code != XCB_COMPOSITE_NAME_WINDOW_PIXMAP)
        return false;
    const auto failed = std::ranges::find_if(entries_, [&error](const auto &entry) {
        return entry.second.pixmap != 0 && entry.second.naming == error.full_sequence;
    });
    // Else the window's end was reported before, and is known already; it was not drawn all the
    // same.
    if (failed != entries_.end()) {
        release(failed->second);
        failed->second.failed = true;
    }
    return true;
}

bool WindowPictures::isShowable(xcb_window_t window) const {
    const Entry *entry = find(window);
    return entry && entry->known && entry->showable && !entry->failed;
}

bool WindowPictures::takesInputOnly(xcb_window_t window) const {
    const Entry *entry = find(window);
    return entry && entry->inputOnly;
}

bool WindowPictures::hasAlpha(xcb_window_t window) const {
    const Entry *entry = find(window);
    return entry && entry->format.hasAlpha;
}

bool WindowPictures::isShaped(xcb_window_t window) const {
    const Entry *entry = find(window);
    return entry && entry->shape;
}

std::uint64_t WindowPictures::generation(xcb_window_t window) const {
    const Entry *entry = find(window);
    return entry ? entry->generation : 0;
}

QRegion WindowPictures::region(xcb_window_t window, const QRect &outer, int border) const {
    const Entry *entry = find(window);
    if (!entry || !entry->shape)
        return outer;
    return entry->shape->translated(outer.topLeft() + QPoint(border, border)).intersected(outer);
}

const QRegion &WindowPictures::damage(xcb_window_t window) const {
    static const QRegion none;
    const Entry *entry = find(window);
    return entry ? entry->pending : none;
}

void WindowPictures::takeDamage(xcb_window_t window) {
    if (Entry *entry = find(window); entry && !entry->pending.isEmpty()) {
        xcb_damage_subtract(connection_.get(), entry->damage, XCB_NONE, XCB_NONE);
        entry->pending = QRegion();
    }
}

xcb_render_picture_t WindowPictures::picture(xcb_window_t window) {
    Entry *entry = find(window);
    if (!entry || !entry->showable || entry->failed || !entry->redirected)
        return 0;
    if (entry->picture == 0) {
        entry->pixmap = connection_.newId();
        entry->picture = connection_.newId();
        entry->naming =
            xcb_composite_name_window_pixmap(connection_.get(), window, entry->pixmap).sequence;
        xcb_render_create_picture(connection_.get(), entry->picture, entry->pixmap,
                                  entry->format.id, 0, nullptr);
    }
    return entry->picture;
}

} // namespace x11
