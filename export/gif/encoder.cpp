// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/encoder.h"

#include "export/gif/container.h"
#include "export/gif/picture_coder.h"
#include "export/gif/preparation.h"
#include "export/gif/workers.h"

#include <algorithm>
#include <deque>
#include <memory>
#include <utility>

namespace gif {
namespace {

/// One frame on its way: its picture is being prepared.
struct Pending {
    PreparedPicture picture;
    std::int64_t delay = 0;
    std::future<void> prepared;
};

/// Writes what was coded. A picture is held back until it is known how long it is shown.
class Writer {
public:
    Writer(const Options &options, const Sink &sink) : options_(options), sink_(sink) {}

    bool begin() {
        return put(fileBeginning(options_.width, options_.height, {}, options_.repeats));
    }

    bool add(CodedPicture picture) {
        const bool written = flush();
        held_ = std::move(picture);
        holds_ = true;
        return written;
    }

    void extend(std::int64_t delay) { delay_ += delay; }

    /// Writes the last picture and the end of the file.
    bool finish() { return flush() && put(std::span(&fileEnd, 1)); }

    void setUnchanged(CodedPicture picture) { unchanged_ = std::move(picture); }
    Outcome &outcome() { return outcome_; }
    bool holdsLong() const { return delay_ > longestDelay; }

private:
    bool flush() {
        if (!holds_)
            return true;
        bool written = true;
        for (bool first = true; written && (first || delay_ > 0); first = false) {
            const std::int64_t part = std::min(delay_, longestDelay);
            written = put(pictureBytes(first ? held_ : unchanged_, part));
            outcome_.delay += part;
            ++outcome_.pictures;
            delay_ -= part;
        }
        holds_ = false;
        delay_ = 0;
        return written;
    }

    bool put(std::span<const std::uint8_t> bytes) {
        // The byte that ends the file is still to come.
        const std::uint64_t size = outcome_.bytes + bytes.size() + 1;
        if (options_.sizeLimit && size > *options_.sizeLimit + (bytes.size() == 1)) {
            outcome_.end = Outcome::End::TooLarge;
            return false;
        }
        if (!sink_(bytes)) {
            outcome_.end = Outcome::End::SinkFailed;
            return false;
        }
        outcome_.bytes += bytes.size();
        return true;
    }

    const Options &options_;
    const Sink &sink_;
    Outcome outcome_;
    CodedPicture held_;
    bool holds_ = false;
    CodedPicture unchanged_;
    std::int64_t delay_ = 0;
};

/// Reads ahead as far as there are threads to prepare what is read, and codes in order.
class Encoding {
public:
    Encoding(FrameSource &source, const Options &options, const Sink &sink,
             const std::stop_token &stop)
        : source_(source), options_(options), stop_(stop), writer_(options, sink),
          reader_(options.width, options.height), workers_(std::max(options.threads, 1)),
          coder_(options.width, options.height, options.tolerance, workers_) {}

    Outcome run() {
        while (!stop_.stop_requested()) {
            readAhead();
            if (pending_.empty())
                return end();
            if (!codeFirst())
                return writer_.outcome();
        }
        return cancelled();
    }

private:
    void readAhead() {
        const std::size_t ahead = workers_.threads() > 1 ? std::size_t(workers_.threads()) + 1 : 1;
        Frame frame;
        while (!atEnd_ && pending_.size() < ahead) {
            if (!source_.next(frame)) {
                atEnd_ = true;
                return;
            }
            auto next = std::make_unique<Pending>();
            next->picture = reader_.read(frame);
            next->delay = frame.delay;
            PreparedPicture &picture = next->picture;
            next->prepared = workers_.start(
                [&picture, this] { chooseColours(picture, options_.tolerance, stop_); });
            pending_.push_back(std::move(next));
        }
    }

    bool codeFirst() {
        Outcome &outcome = writer_.outcome();
        if (outcome.frames == 0 && !writer_.begin())
            return false;
        Pending &first = *pending_.front();
        workers_.wait(first.prepared);
        std::optional<CodedPicture> coded;
        if (!stop_.stop_requested()) // otherwise it may not have been prepared to the end
            coded = coder_.code(first.picture, stop_);
        if (stop_.stop_requested()) {
            outcome = cancelled();
            return false;
        }
        if (coded && !writer_.add(std::move(*coded)))
            return false;
        writer_.extend(first.delay);
        if (writer_.holdsLong())
            writer_.setUnchanged(coder_.unchangedPixel());
        pending_.pop_front();
        ++outcome.frames;
        if (options_.progress)
            options_.progress(outcome.frames);
        return true;
    }

    Outcome end() {
        if (writer_.outcome().frames == 0)
            writer_.outcome().end = Outcome::End::NoFrames;
        else
            writer_.finish();
        return writer_.outcome();
    }

    Outcome cancelled() {
        writer_.outcome().end = Outcome::End::Cancelled;
        return writer_.outcome();
    }

    FrameSource &source_;
    const Options &options_;
    const std::stop_token &stop_;
    Writer writer_;
    ChangeReader reader_;
    std::deque<std::unique_ptr<Pending>> pending_;
    bool atEnd_ = false;
    Workers workers_; // ends its threads before what they work on goes away
    PictureCoder coder_;
};

} // namespace

Outcome encode(FrameSource &source, const Options &options, const Sink &sink,
               const std::stop_token &stop) {
    return Encoding(source, options, sink, stop).run();
}

} // namespace gif
