// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/x11_window_server.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <algorithm>
#include <chrono>
#include <utility>

using x11::PixelRoad;

namespace {

// How often events are taken in while nobody grabs, at most.
constexpr std::chrono::milliseconds idlePause{500};

// A grab is repeated when windows vanished in its midst, but not for ever on a restless desktop.
constexpr int mostAttempts = 3;

constexpr std::uint32_t opaque = 0xff000000;

} // namespace

std::unique_ptr<X11WindowServer> X11WindowServer::create(const Options &options,
                                                         Obstacle &obstacle) {
    auto connection = x11::Connection::open(options.display);
    if (!connection) {
        obstacle = Obstacle::NoDisplay;
        return {};
    }
    const auto &has = connection->extensions();
    if (!has.composite) {
        obstacle = Obstacle::NoComposite;
        return {};
    }
    if (!has.damage || !has.fixes || !has.render || !has.shape) {
        obstacle = Obstacle::MissingExtension;
        return {};
    }
    std::unique_ptr<X11WindowServer> server(
        new X11WindowServer(std::move(connection), options.bestRoad));
    if (!server->model_.formats().usable()) {
        obstacle = Obstacle::PictureFormat;
        return {};
    }
    return server;
}

X11WindowServer::X11WindowServer(std::unique_ptr<x11::Connection> connection, PixelRoad bestRoad)
    : connection_(std::move(connection)), bestRoad_(bestRoad), model_(*connection_),
      composer_(*connection_, model_) {
    watchWhileIdle();
}

X11WindowServer::~X11WindowServer() = default;

// While nobody grabs, nobody would read what the server tells, and it would pile up there. The
// pause keeps a busy desktop from waking us more often than a grab would.
void X11WindowServer::watchWhileIdle() {
    if (!QCoreApplication::instance())
        return;
    notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_->get()),
                                                  QSocketNotifier::Read);
    notifier_->setEnabled(false);
    idle_.setSingleShot(true);
    idle_.setInterval(idlePause);
    QObject::connect(&idle_, &QTimer::timeout, notifier_.get(),
                     [this] { notifier_->setEnabled(!connection_->broken()); });
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, &idle_, [this] {
        notifier_->setEnabled(false);
        model_.drain();
        idle_.start();
    });
    idle_.start();
}

WindowServerCapabilities X11WindowServer::capabilities() const {
    return {.canList = true, .canLeaveOut = true, .knowsDamage = true};
}

std::vector<WindowDescription> X11WindowServer::listWindows() {
    model_.drain();
    if (connection_->broken())
        return {};
    return model_.windows();
}

std::optional<Image> X11WindowServer::composite(std::span<const std::uint32_t> numbers) {
    model_.drain();
    if (connection_->broken())
        return {};
    if (!model_.takeChanged() && picture_ && std::ranges::equal(numbers, numbers_))
        return picture_;

    numbers_.assign(numbers.begin(), numbers.end());
    bool drawn = !picture_;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        if (!prepareTarget())
            return giveUp();
        const QRegion changed = findChanges();
        if (changed.isEmpty())
            break;
        drawn = true;
        composer_.paint(target_->picture(), layers_, changed);
        if (!target_->update(changed))
            return giveUp();
        model_.drain();
        if (!model_.takeFailures())
            break;
    }
    if (drawn)
        picture_ = copyOut();
    return picture_;
}

// What was taken for drawn may not be: the next grab starts afresh.
std::optional<Image> X11WindowServer::giveUp() {
    layers_ = {};
    picture_.reset();
    return {};
}

std::optional<PixelRoad> X11WindowServer::road() const {
    return target_ ? std::optional(target_->road()) : std::nullopt;
}

bool X11WindowServer::prepareTarget() {
    const QSize size = model_.desktop().size();
    if (target_ && target_->size() == size)
        return true;
    target_.reset();
    layers_ = {};
    target_ = x11::SharedPicture::create(*connection_, model_.formats(), size, bestRoad_);
    return target_ != nullptr;
}

QRegion X11WindowServer::findChanges() {
    QRegion changed;
    auto layers = model_.layers(numbers_);
    if (!std::ranges::equal(layers, layers_.layers()) || layers_.desktop() != model_.desktop()) {
        x11::LayerStack after(std::move(layers), model_.desktop());
        changed = x11::changedBetween(layers_, after);
        layers_ = std::move(after);
    }
    return changed + model_.takeDamage(layers_);
}

std::optional<Image> X11WindowServer::copyOut() const {
    const QSize size = target_->size();
    QImage copy = pool_->take(size);
    if (copy.isNull())
        return {};
    const auto count =
        static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
    const std::uint32_t *source = target_->pixels();
    auto *pixels = reinterpret_cast<std::uint32_t *>(copy.bits());
    for (std::size_t i = 0; i < count; ++i)
        pixels[i] = source[i] | opaque;
    return Image::fromQImage(std::move(copy));
}
