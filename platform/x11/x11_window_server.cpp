// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/x11_window_server.h"

#include "platform/regions.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

// How often events are taken in while nobody grabs, at most.
constexpr std::chrono::milliseconds idlePause{500};

// A grab is repeated when windows vanished in its midst, but not for ever on a restless desktop.
constexpr int mostAttempts = 3;

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

X11WindowServer::X11WindowServer(std::unique_ptr<x11::Connection> connection,
                                 x11::PixelRoad bestRoad)
    : connection_(std::move(connection)), model_(*connection_), composer_(*connection_, model_),
      ring_(*connection_, model_.formats(), bestRoad) {
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

std::optional<Image> X11WindowServer::composite(std::span<const std::uint32_t> numbers,
                                                const std::optional<QRect> &part) {
    model_.drain();
    if (connection_->broken())
        return {};
    const bool goesOn = picture_ && part == part_;
    if (!model_.takeChanged() && goesOn && std::ranges::equal(numbers, numbers_))
        return picture_;

    numbers_.assign(numbers.begin(), numbers.end());
    part_ = part;
    QRegion changed = findChanges();
    ring_.resize(model_.desktop().size());
    ring_.invalidate(changed);
    const QRect wanted = part ? part->intersected(model_.desktop()) : model_.desktop();
    if (goesOn && !changed.intersects(wanted))
        return picture_;
    const Image::Identity before = goesOn ? picture_->identity() : 0;
    // Not held by us any more, it may be the one to be drawn on.
    picture_.reset();
    x11::PictureRing::Turn *turn = ring_.next();
    if (!turn || !draw(*turn, wanted, changed))
        return giveUp();
    picture_ = ring_.handOut(*turn, wanted, {before, std::move(changed)});
    return picture_;
}

// Again when windows vanished in its midst; what changes besides is left to the next grab.
bool X11WindowServer::draw(x11::PictureRing::Turn &turn, const QRect &part, QRegion &changed) {
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        const QRegion stale = turn.stale.intersected(part);
        // Windows go on being drawn in: whatever is composed anew may show more than was told of.
        changed = united(changed, stale);
        composer_.paint(turn.picture->picture(), layers_, stale);
        if (!turn.picture->update(stale))
            return false;
        turn.stale -= stale;
        model_.drain();
        if (!model_.takeFailures() || model_.desktop() != layers_.desktop())
            return true;
        const QRegion more = findChanges();
        ring_.invalidate(more);
        changed = united(changed, more);
    }
    // Not all of it could be drawn: the next grab starts afresh.
    if (turn.stale.intersects(part))
        layers_ = {};
    return true;
}

std::optional<Image> X11WindowServer::giveUp() {
    layers_ = {};
    ring_.clear();
    return {};
}

QRegion X11WindowServer::findChanges() {
    QRegion changed;
    auto layers = model_.layers(numbers_);
    if (!std::ranges::equal(layers, layers_.layers()) || layers_.desktop() != model_.desktop()) {
        x11::LayerStack after(std::move(layers), model_.desktop());
        changed = x11::changedBetween(layers_, after);
        layers_ = std::move(after);
    }
    return united(changed, model_.takeDamage(layers_));
}
