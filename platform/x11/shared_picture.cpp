// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/shared_picture.h"

#include <atomic>
#include <cstring>
#include <sys/ipc.h>
#include <sys/mman.h>
#include <sys/shm.h>
#include <utility>

namespace x11 {

namespace {

constexpr std::uint32_t allPlanes = 0xffffffff;

template <class Number> std::uint16_t extent(Number pixels) {
    return static_cast<std::uint16_t>(pixels);
}

std::int16_t coordinate(int pixels) { return static_cast<std::int16_t>(pixels); }

// A fetch costs a request and a reply: many small rectangles cost more than the box around them.
constexpr int mostFetches = 16;

QRegion fetchable(const QRegion &changed) {
    return changed.rectCount() > mostFetches ? QRegion(changed.boundingRect()) : changed;
}

std::size_t area(const QRect &rect) {
    return static_cast<std::size_t>(rect.width()) * static_cast<std::size_t>(rect.height());
}

std::size_t area(QSize size) { return area(QRect(QPoint(), size)); }

} // namespace

/// A segment of shared memory, as seen from here. Goes away with its last user, however that one
/// ends.
class SharedPicture::Memory {
public:
    explicit Memory(std::size_t bytes) : id_(shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600)) {
        if (id_ < 0)
            return;
        address_ = shmat(id_, nullptr, 0);
        if (!isMapped())
            return;
        // Where the system admits it, fewer and larger pages; touched here, once, and not by the
        // server in the midst of its first grabs.
        madvise(address_, bytes, MADV_HUGEPAGE);
        std::memset(address_, 0, bytes);
    }
    ~Memory() {
        release();
        if (isMapped())
            shmdt(address_);
    }
    Memory(const Memory &) = delete;
    Memory &operator=(const Memory &) = delete;

    bool isMapped() const { return address_ != failed(); }
    std::uint32_t id() const { return static_cast<std::uint32_t>(id_); }
    const std::uint32_t *words() const { return static_cast<const std::uint32_t *>(address_); }
    /// Once the server has it too, nobody else needs to find it.
    void release() const { shmctl(id_, IPC_RMID, nullptr); }

private:
    /// What shmat(2) returns when it fails.
    static void *failed() { return reinterpret_cast<void *>(-1); }

    int id_;
    void *address_ = failed();
};

std::unique_ptr<SharedPicture> SharedPicture::create(Connection &connection,
                                                     const PictureFormats &formats, QSize size,
                                                     TransferMethod best) {
    std::unique_ptr<SharedPicture> picture(new SharedPicture(connection, size));
    const bool memory = best != TransferMethod::PlainFetch && picture->attachMemory();
    bool made = memory && best == TransferMethod::SharedPixmap &&
                connection.extensions().sharedPixmaps &&
                picture->makePixmap(TransferMethod::SharedPixmap);
    made = made || (memory && picture->makePixmap(TransferMethod::SharedFetch));
    made = made || picture->makePixmap(TransferMethod::PlainFetch);
    if (!made)
        return {};
    picture->picture_ = connection.newId();
    const auto cookie = xcb_render_create_picture_checked(
        connection.get(), picture->picture_, picture->pixmap_, formats.target(), 0, nullptr);
    return connection.succeeded(cookie) ? std::move(picture) : nullptr;
}

SharedPicture::SharedPicture(Connection &connection, QSize size)
    : connection_(connection), size_(size) {}

SharedPicture::~SharedPicture() {
    if (picture_ != 0)
        xcb_render_free_picture(connection_.get(), picture_);
    if (pixmap_ != 0)
        xcb_free_pixmap(connection_.get(), pixmap_);
    if (segment_ != 0)
        xcb_shm_detach(connection_.get(), segment_);
}

// A server on another machine has the extension too, and refuses only when it is to attach.
bool SharedPicture::attachMemory() {
    if (!connection_.extensions().sharedMemory)
        return false;
    auto memory = std::make_shared<const Memory>(area(size_) * sizeof(std::uint32_t));
    if (!memory->isMapped())
        return false;
    const auto segment = connection_.newId();
    if (!connection_.succeeded(xcb_shm_attach_checked(connection_.get(), segment, memory->id(), 0)))
        return false;
    memory->release();
    memory_ = std::move(memory);
    segment_ = segment;
    return true;
}

bool SharedPicture::makePixmap(TransferMethod method) {
    xcb_connection_t *c = connection_.get();
    const auto pixmap = connection_.newId();
    const auto width = extent(size_.width()), height = extent(size_.height());
    const auto cookie =
        method == TransferMethod::SharedPixmap
            ? xcb_shm_create_pixmap_checked(c, pixmap, connection_.root(), width, height,
                                            PictureFormats::targetDepth, segment_, 0)
            : xcb_create_pixmap_checked(c, PictureFormats::targetDepth, pixmap, connection_.root(),
                                        width, height);
    if (!connection_.succeeded(cookie))
        return false;
    if (method != TransferMethod::SharedPixmap)
        fetched_.resize(area(size_));
    pixmap_ = pixmap;
    method_ = method;
    return true;
}

const std::uint32_t *SharedPicture::pixels() const {
    return method_ == TransferMethod::SharedPixmap ? memory_->words() : fetched_.data();
}

QImage SharedPicture::view() const {
    const auto release = [](void *holder) {
        delete static_cast<std::shared_ptr<const Memory> *>(holder);
    };
    auto holder = std::make_unique<std::shared_ptr<const Memory>>(memory_);
    return QImage(reinterpret_cast<const uchar *>(pixels()), size_.width(), size_.height(),
                  qsizetype{4} * size_.width(), QImage::Format_RGB32, release, holder.release());
}

bool SharedPicture::isHeld() const {
    if (memory_.use_count() > 1)
        return true;
    // Whoever held it on another thread has read all that it wanted to.
    std::atomic_thread_fence(std::memory_order_acquire);
    return false;
}

bool SharedPicture::update(const QRegion &changed) {
    switch (method_) {
    case TransferMethod::SharedPixmap:
        connection_.roundTrip();
        return !connection_.broken();
    case TransferMethod::SharedFetch:
        return fetchShared(fetchable(changed));
    case TransferMethod::PlainFetch:
        return fetchPlain(fetchable(changed));
    }
    return false;
}

// The server packs each rectangle without gaps; together they never exceed the picture.
bool SharedPicture::fetchShared(const QRegion &changed) {
    std::vector<xcb_shm_get_image_cookie_t> cookies;
    std::size_t offset = 0;
    for (const auto &rect : changed) {
        cookies.push_back(xcb_shm_get_image(
            connection_.get(), pixmap_, coordinate(rect.x()), coordinate(rect.y()),
            extent(rect.width()), extent(rect.height()), allPlanes, XCB_IMAGE_FORMAT_Z_PIXMAP,
            segment_, static_cast<std::uint32_t>(offset * sizeof(std::uint32_t))));
        offset += area(rect);
    }
    bool complete = true;
    auto cookie = cookies.begin();
    const auto *source = memory_->words();
    for (const auto &rect : changed) {
        if (connection_.reply<xcb_shm_get_image_reply>(*cookie++))
            store(rect, source);
        else
            complete = false;
        source += area(rect);
    }
    return complete;
}

// On a connection of its own: on one that also gets damage events, image data were seen to arrive
// with packets of events in their midst.
bool SharedPicture::fetchPlain(const QRegion &changed) {
    connection_.roundTrip();
    if (!fetching_)
        fetching_ = connection_.another();
    if (!fetching_)
        return false;
    std::vector<xcb_get_image_cookie_t> cookies;
    for (const auto &rect : changed)
        cookies.push_back(xcb_get_image(fetching_->get(), XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap_,
                                        coordinate(rect.x()), coordinate(rect.y()),
                                        extent(rect.width()), extent(rect.height()), allPlanes));
    bool complete = true;
    auto cookie = cookies.begin();
    for (const auto &rect : changed) {
        const auto reply = fetching_->reply<xcb_get_image_reply>(*cookie++);
        const bool whole =
            reply && static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) >=
                         area(rect) * sizeof(std::uint32_t);
        if (whole)
            store(rect, reinterpret_cast<const std::uint32_t *>(xcb_get_image_data(reply.get())));
        complete = complete && whole;
    }
    return complete;
}

void SharedPicture::store(const QRect &place, const std::uint32_t *source) {
    const auto width = static_cast<std::size_t>(place.width());
    const auto stride = static_cast<std::size_t>(size_.width());
    auto *row = fetched_.data() + static_cast<std::size_t>(place.y()) * stride + place.x();
    for (int y = 0; y < place.height(); ++y, row += stride, source += width)
        std::memcpy(row, source, width * sizeof(std::uint32_t));
}

} // namespace x11
