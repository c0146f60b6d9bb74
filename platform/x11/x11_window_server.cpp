// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/x11_window_server.h"

#include "platform/image/regions.h"
#include "platform/image/tile_comparison.h"
#include "platform/x11/surface.h"
#include "platform/x11/x11_input_watch.h"
#include "platform/x11/x11_pointer_watch.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

// How often events are taken in while nobody grabs, at most.
constexpr std::chrono::milliseconds idlePause{500};

// A grab is repeated when windows moved in its midst, but not forever on a restless desktop.
constexpr int mostAttempts = 4;

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
        new X11WindowServer(std::move(connection), options.bestMethod));
    if (!server->model_.formats().usable()) {
        obstacle = Obstacle::PictureFormat;
        return {};
    }
    return server;
}

X11WindowServer::X11WindowServer(std::unique_ptr<x11::Connection> connection,
                                 x11::TransferMethod bestMethod)
    : connection_(std::move(connection)),
      clicks_(x11::X11InputWatch::isOffered(*connection_) ? HandAccess::Granted
                                                          : HandAccess::NotOffered),
      keys_(x11::Keyboard::isOffered(connection_->get()) ? clicks_ : HandAccess::NotOffered),
      model_(*connection_), underlay_(*connection_, model_),
      ring_(*connection_, model_.formats(), bestMethod) {
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
        model_.drain();
        if (!connection_->broken() && underlay_.mustKeepUp()) {
            underlay_.keepUp();
            return;
        }
        notifier_->setEnabled(false);
        idle_.start();
    });
    idle_.start();
}

WindowServerCapabilities X11WindowServer::capabilities() const {
    return {.canList = true,
            .canLeaveOut = true,
            .knowsDamage = true,
            .pointer = HandAccess::Granted,
            .clicks = clicks_,
            .keys = keys_};
}

std::unique_ptr<PointerWatch> X11WindowServer::watchPointer() {
    auto own = connection_->another();
    return own ? std::make_unique<x11::X11PointerWatch>(std::move(own)) : nullptr;
}

std::unique_ptr<InputWatch> X11WindowServer::watchInput(InputKinds kinds) {
    return x11::X11InputWatch::create(connection_->another(), kinds);
}

std::vector<WindowDescription> X11WindowServer::listWindows() {
    model_.drain();
    if (connection_->broken())
        return {};
    return model_.windows();
}

std::vector<TitledWindow> X11WindowServer::titledWindows() {
    model_.drain();
    if (connection_->broken())
        return {};
    return model_.titledWindows();
}

std::optional<Image> X11WindowServer::composite(std::span<const std::uint32_t> numbers,
                                                const std::optional<QRect> &part) {
    model_.drain();
    if (connection_->broken())
        return {};
    const bool goesOn = picture_ && part == part_;
    const bool happened = model_.takeChanged() || model_.screen().isRestless();
    const bool due = underlay_.isDue();
    if (!happened && !due && goesOn && std::ranges::equal(numbers, numbers_))
        return picture_;

    numbers_.assign(numbers.begin(), numbers.end());
    part_ = part;
    ring_.resize(model_.desktop().size());
    const QRect wanted = part ? part->intersected(model_.desktop()) : model_.desktop();
    follow(wanted);
    if (notifier_ && underlay_.mustKeepUp())
        notifier_->setEnabled(true);
    ring_.invalidate(model_.screen().takeDamage(QRegion(wanted).subtracted(underlay_.place())));
    if (goesOn && !ring_.isStale(wanted))
        return picture_;
    x11::PictureRing::Turn *turn = underlay_.isReady() ? ring_.next() : nullptr;
    QRegion drawn;
    if (!turn || !draw(*turn, wanted, drawn))
        return giveUp();
    Image::Change change;
    if (goesOn && picture_->size() == turn->picture->size()) {
        const QImage before = picture_->toQImage();
        change = {picture_->identity(),
                  differingTiles(
                      {turn->picture->pixels(), before.width()},
                      {reinterpret_cast<const std::uint32_t *>(before.constBits()), before.width()},
                      before.size(), drawn)};
        model_.screen().pictureChanged(change.region);
        if (change.region.isEmpty()) {
            ring_.latestIsAs(*turn, drawn);
            return picture_;
        }
        underlay_.pictureChanged(change.region);
    }
    picture_ = ring_.handOut(*turn, wanted, std::move(change));
    return picture_;
}

// Brings the part that is not the screen as it is to the model's state, and tells where it changed.
// `begun` is the picture that was drawn for an earlier state just now.
QRegion X11WindowServer::follow(const QRect &wanted, const x11::PictureRing::Turn *begun) {
    const auto shownBy = [this](const x11::PictureRing::Turn *turn) {
        return turn ? x11::Underlay::Earlier{turn->picture->picture(),
                                             QRegion(model_.desktop()).subtracted(turn->stale)}
                    : x11::Underlay::Earlier{};
    };
    const auto *latest = ring_.latest();
    const auto *untouched = latest != begun ? latest : nullptr;
    QRegion changed =
        underlay_.follow(numbers_, wanted, shownBy(untouched), shownBy(begun ? begun : latest));
    ring_.invalidate(changed);
    return changed;
}

// Windows go on being moved while they are drawn. One that came to be shown meanwhile may be in the
// picture without having been asked for, and one that vanished may be missing: once more, then, and
// the last time while nobody else can do anything.
bool X11WindowServer::draw(x11::PictureRing::Turn &turn, const QRect &part, QRegion &drawn) {
    for (int attempt = 1; attempt <= mostAttempts; ++attempt) {
        const bool alone = attempt == mostAttempts;
        if (alone) {
            xcb_grab_server(connection_->get());
            connection_->roundTrip();
            model_.drain();
            follow(part, &turn);
        }
        const QRegion stale = turn.stale.intersected(part);
        drawn = united(drawn, stale);
        x11::copyRegion(*connection_, model_.screen().picture(), turn.picture->picture(),
                        stale.subtracted(underlay_.place()));
        underlay_.paint(turn.picture->picture(), stale.intersected(underlay_.place()));
        if (alone) {
            // Before pixels are fetched, which may go by another connection.
            xcb_ungrab_server(connection_->get());
            connection_->roundTrip();
        }
        if (!turn.picture->update(stale))
            return false;
        turn.stale -= stale;
        model_.drain();
        const bool failed = model_.takeFailures();
        if (alone || (!failed && !model_.layersChanged()) ||
            model_.desktop().size() != turn.picture->size())
            break;
        if (!follow(part, &turn).intersects(part))
            break;
    }
    return true;
}

std::optional<Image> X11WindowServer::giveUp() {
    ring_.clear();
    picture_.reset();
    return {};
}
