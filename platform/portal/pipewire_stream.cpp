// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/portal/pipewire_stream.h"

#include "platform/portal/stream_parameters.h"
#include "platform/portal/stream_picture.h"

#include <pipewire/pipewire.h>
#include <spa/param/video/format-utils.h>

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>

namespace {

constexpr int bytesPerPixel = 4;

/// The memory of one buffer, mapped for reading.
struct Mapping {
    void *start = MAP_FAILED;
    std::size_t length = 0;

    static Mapping of(const spa_data &data) {
        Mapping mapping;
        mapping.length = std::size_t{data.mapoffset} + data.maxsize;
        struct stat file = {};
        // A page behind the file's end would end us.
        if (data.type != SPA_DATA_MemFd || fstat(static_cast<int>(data.fd), &file) != 0 ||
            static_cast<std::size_t>(file.st_size) < mapping.length)
            return {};
        mapping.start =
            mmap(nullptr, mapping.length, PROT_READ, MAP_SHARED, static_cast<int>(data.fd), 0);
        return mapping;
    }
};

/// What of a frame is the picture, within the frame.
QRect pictureIn(const spa_buffer &buffer, QSize frame) {
    const QRect all(QPoint(), frame);
    const auto *crop = static_cast<const spa_meta_region *>(
        spa_buffer_find_meta_data(&buffer, SPA_META_VideoCrop, sizeof(spa_meta_region)));
    if (!crop || !spa_meta_region_is_valid(crop))
        return all;
    return QRect(crop->region.position.x, crop->region.position.y,
                 static_cast<int>(crop->region.size.width),
                 static_cast<int>(crop->region.size.height))
        .intersected(all);
}

using Clock = std::chrono::steady_clock;

const spa_meta_header *headerOf(const spa_buffer &buffer) {
    return static_cast<const spa_meta_header *>(
        spa_buffer_find_meta_data(&buffer, SPA_META_Header, sizeof(spa_meta_header)));
}

/// When the frame was drawn. The steady clock is the one that compositors go by; what cannot be is
/// not believed.
Clock::time_point drawnAt(const spa_buffer &buffer) {
    constexpr std::chrono::seconds longestWay{10};
    const Clock::time_point now = Clock::now();
    const spa_meta_header *header = headerOf(buffer);
    const Clock::time_point told{std::chrono::nanoseconds(header ? header->pts : 0)};
    return told <= now && now - told < longestWay ? told : now;
}

/// A frame that only tells where the pointer is has no pixels.
bool hasPixels(const spa_buffer &buffer) {
    const spa_chunk &chunk = *buffer.datas[0].chunk;
    const spa_meta_header *header = headerOf(buffer);
    const bool corrupted = (static_cast<std::uint32_t>(chunk.flags) & SPA_CHUNK_FLAG_CORRUPTED) ||
                           (header && (header->flags & SPA_META_HEADER_FLAG_CORRUPTED));
    return chunk.size > 0 && !corrupted;
}

} // namespace

/// Everything that PipeWire calls back, on its thread unless another is named.
class PipeWireStream::Thread {
public:
    Thread(PipeWireStream &owner, int descriptor, std::uint32_t node, std::uint64_t rate);
    ~Thread();
    Thread(const Thread &) = delete;
    Thread &operator=(const Thread &) = delete;

    void setRate(std::uint64_t rate);

    StreamPicture picture;
    /// When the newest frame was drawn; the clock's beginning before it came.
    std::atomic<Clock::time_point> newest{Clock::time_point()};

private:
    bool connect(int descriptor, std::uint32_t node, std::uint64_t rate);
    void end(const QString &words);
    void coreFailed(int result, const char *words);
    void stateChanged(pw_stream_state before, pw_stream_state state, const char *words);
    void formatChanged(const spa_pod &format);
    void read(const spa_buffer &buffer, const Mapping &mapping);
    void process();

    static pw_core_events coreEvents() {
        pw_core_events events{};
        events.version = PW_VERSION_CORE_EVENTS;
        events.error = [](void *self, std::uint32_t, int, int result, const char *words) {
            static_cast<Thread *>(self)->coreFailed(result, words);
        };
        return events;
    }
    static pw_stream_events streamEvents() {
        pw_stream_events events{};
        events.version = PW_VERSION_STREAM_EVENTS;
        events.state_changed = [](void *self, pw_stream_state before, pw_stream_state state,
                                  const char *words) {
            static_cast<Thread *>(self)->stateChanged(before, state, words);
        };
        events.param_changed = [](void *self, std::uint32_t id, const spa_pod *value) {
            if (id == SPA_PARAM_Format && value)
                static_cast<Thread *>(self)->formatChanged(*value);
        };
        events.add_buffer = [](void *, pw_buffer *buffer) {
            buffer->user_data = new Mapping(Mapping::of(buffer->buffer->datas[0]));
        };
        events.remove_buffer = [](void *, pw_buffer *buffer) {
            const std::unique_ptr<Mapping> mapping(static_cast<Mapping *>(buffer->user_data));
            buffer->user_data = nullptr;
            if (mapping && mapping->start != MAP_FAILED)
                munmap(mapping->start, mapping->length);
        };
        events.process = [](void *self) { static_cast<Thread *>(self)->process(); };
        return events;
    }
    const pw_core_events coreEvents_ = coreEvents();
    const pw_stream_events streamEvents_ = streamEvents();

    PipeWireStream &owner_;
    pw_thread_loop *loop_ = nullptr;
    pw_context *context_ = nullptr;
    pw_core *core_ = nullptr;
    pw_stream *stream_ = nullptr;
    spa_hook coreHook_{};
    spa_hook streamHook_{};

    QSize size_;
    StreamPicture::Order order_ = StreamPicture::Order::BlueFirst;
    bool began_ = false;
    bool ended_ = false;
};

PipeWireStream::Thread::Thread(PipeWireStream &owner, int descriptor, std::uint32_t node,
                               std::uint64_t rate)
    : owner_(owner), loop_(pw_thread_loop_new("tovarel-screen", nullptr)) {
    if (!loop_) {
        close(descriptor);
        end(QString::fromLocal8Bit(std::strerror(errno)));
        return;
    }
    pw_thread_loop_lock(loop_);
    if (pw_thread_loop_start(loop_) < 0 || !connect(descriptor, node, rate))
        end(QString::fromLocal8Bit(std::strerror(errno)));
    pw_thread_loop_unlock(loop_);
}

bool PipeWireStream::Thread::connect(int descriptor, std::uint32_t node, std::uint64_t rate) {
    context_ = pw_context_new(pw_thread_loop_get_loop(loop_), nullptr, 0);
    if (!context_) {
        close(descriptor);
        return false;
    }
    core_ = pw_context_connect_fd(context_, descriptor, nullptr, 0); // which takes it over
    if (!core_)
        return false;
    pw_core_add_listener(core_, &coreHook_, &coreEvents_, this);
    stream_ = pw_stream_new(core_, "tovarel",
                            pw_properties_new(PW_KEY_MEDIA_TYPE, "Video", PW_KEY_MEDIA_CATEGORY,
                                              "Capture", PW_KEY_MEDIA_ROLE, "Screen", nullptr));
    if (!stream_)
        return false;
    pw_stream_add_listener(stream_, &streamHook_, &streamEvents_, this);
    stream_parameters::Storage storage;
    const spa_pod *parameters[] = {stream_parameters::formats(storage, rate)};
    // Never another source when this one has gone, be it a camera.
    const auto flags =
        static_cast<pw_stream_flags>(PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_DONT_RECONNECT);
    return pw_stream_connect(stream_, PW_DIRECTION_INPUT, node, flags, parameters,
                             std::size(parameters)) >= 0;
}

PipeWireStream::Thread::~Thread() {
    if (!loop_)
        return;
    pw_thread_loop_lock(loop_);
    // Buffers are unmapped while the stream ends: by their own callback, the others hear nothing
    // more of it.
    ended_ = true;
    if (stream_) {
        pw_stream_disconnect(stream_);
        spa_hook_remove(&streamHook_);
        pw_stream_destroy(stream_);
    }
    if (core_) {
        spa_hook_remove(&coreHook_);
        pw_core_disconnect(core_);
    }
    if (context_)
        pw_context_destroy(context_);
    pw_thread_loop_unlock(loop_);
    pw_thread_loop_stop(loop_);
    pw_thread_loop_destroy(loop_);
}

void PipeWireStream::Thread::setRate(std::uint64_t rate) {
    if (!stream_)
        return;
    pw_thread_loop_lock(loop_);
    stream_parameters::Storage storage;
    const spa_pod *parameters[] = {stream_parameters::formats(storage, rate)};
    pw_stream_update_params(stream_, parameters, std::size(parameters));
    pw_thread_loop_unlock(loop_);
}

void PipeWireStream::Thread::end(const QString &words) {
    if (ended_)
        return;
    ended_ = true;
    QMetaObject::invokeMethod(
        &owner_, [owner = &owner_, words] { Q_EMIT owner->ended(words); }, Qt::QueuedConnection);
}

void PipeWireStream::Thread::coreFailed(int result, const char *words) {
    // What concerns one object of it is told by that object.
    if (result == -EPIPE)
        end(QString::fromUtf8(words));
}

void PipeWireStream::Thread::stateChanged(pw_stream_state before, pw_stream_state state,
                                          const char *words) {
    if (state == PW_STREAM_STATE_ERROR)
        end(words ? QString::fromUtf8(words) : QStringLiteral("PipeWire"));
    else if (state == PW_STREAM_STATE_UNCONNECTED && before != PW_STREAM_STATE_UNCONNECTED)
        end({});
}

void PipeWireStream::Thread::formatChanged(const spa_pod &format) {
    spa_video_info_raw info{};
    if (spa_format_video_raw_parse(&format, &info) < 0)
        return;
    size_ = QSize(static_cast<int>(info.size.width), static_cast<int>(info.size.height));
    const bool redFirst =
        info.format == SPA_VIDEO_FORMAT_RGBx || info.format == SPA_VIDEO_FORMAT_RGBA;
    order_ = redFirst ? StreamPicture::Order::RedFirst : StreamPicture::Order::BlueFirst;
    stream_parameters::Storage storage[3];
    const spa_pod *parameters[] = {stream_parameters::buffers(storage[0]),
                                   stream_parameters::header(storage[1]),
                                   stream_parameters::cropping(storage[2])};
    pw_stream_update_params(stream_, parameters, std::size(parameters));
}

void PipeWireStream::Thread::process() {
    while (pw_buffer *buffer = pw_stream_dequeue_buffer(stream_)) {
        const auto *mapping = static_cast<const Mapping *>(buffer->user_data);
        if (!ended_ && mapping && mapping->start != MAP_FAILED && hasPixels(*buffer->buffer))
            read(*buffer->buffer, *mapping);
        pw_stream_queue_buffer(stream_, buffer);
    }
}

void PipeWireStream::Thread::read(const spa_buffer &buffer, const Mapping &mapping) {
    const spa_data &data = buffer.datas[0];
    const QRect part = pictureIn(buffer, size_);
    const std::int64_t stride = data.chunk->stride;
    // What another program says of its memory is not believed.
    const std::int64_t needed = data.chunk->offset + stride * size_.height();
    if (part.isEmpty() || stride < std::int64_t{bytesPerPixel} * size_.width() ||
        stride % bytesPerPixel != 0 || data.chunk->offset % bytesPerPixel != 0 ||
        data.mapoffset % bytesPerPixel != 0 || needed > data.maxsize)
        return;
    const auto *bytes =
        static_cast<const std::uint8_t *>(mapping.start) + data.mapoffset + data.chunk->offset;
    const auto *first = reinterpret_cast<const std::uint32_t *>(bytes) +
                        part.top() * (stride / bytesPerPixel) + part.left();
    picture.put({first, stride / bytesPerPixel}, part.size(), order_);
    newest = drawnAt(buffer);
    if (began_)
        return;
    began_ = true;
    QMetaObject::invokeMethod(
        &owner_, [owner = &owner_] { Q_EMIT owner->began(); }, Qt::QueuedConnection);
}

PipeWireStream::PipeWireStream(int descriptor, std::uint32_t node, std::uint64_t rate) {
    static const bool initialized = (pw_init(nullptr, nullptr), true);
    static_cast<void>(initialized);
    thread_ = std::make_unique<Thread>(*this, descriptor, node, rate);
}

PipeWireStream::~PipeWireStream() = default;

void PipeWireStream::setRate(std::uint64_t rate) { thread_->setRate(rate); }

std::optional<Clock::time_point> PipeWireStream::newest() const {
    const Clock::time_point newest = thread_->newest;
    return newest == Clock::time_point() ? std::nullopt : std::optional(newest);
}

std::optional<Image> PipeWireStream::take() { return thread_->picture.take(); }
