// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/underlay.h"

#include "platform/image/regions.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace x11 {

namespace {

using namespace std::chrono_literals;

// How far a compositing manager's shadow may reach beyond its window, in pixels.
constexpr int widestShadow = 64;

// Windows beneath are redirected this far ahead of a window that moves, in pixels, and this long
// after its last step. Where nothing foretells a window, as at the start, it is all of them.
constexpr int foresight = 100;
constexpr auto moveLasts = 1s;
constexpr auto startLasts = 2s;
// So long they stay redirected when nothing lies on them any more.
constexpr auto keptAfterwards = 300ms;

// A compositing manager lets windows fade and fly away, and may be late. It has been there once it
// drew the place again, which it need not do.
constexpr auto shortestEffect = 500ms;
constexpr auto longestEffect = 2s;

// So long after something beneath was drawn, and looked at, both are expected to happen again.
constexpr auto drawingLasts = 1s;

// A look at the whole screen is repeated when windows came meanwhile, but not forever.
constexpr int mostLooks = 3;

QRegion grown(const QRegion &region, int by) {
    QRegion result;
    for (const QRect &r : region)
        result = united(result, r.adjusted(-by, -by, by, by));
    return result;
}

std::int64_t area(const QRegion &region) {
    std::int64_t pixels = 0;
    for (const QRect &r : region)
        pixels += std::int64_t{r.width()} * r.height();
    return pixels;
}

bool contains(std::span<const std::uint32_t> numbers, std::uint32_t number) {
    return std::ranges::find(numbers, number) != numbers.end();
}

} // namespace

Underlay::Underlay(Connection &connection, DesktopModel &model)
    : connection_(connection), model_(model), composer_(connection, model) {
    reset();
    if (!isReady())
        return;
    // What comes while it is looked at is on it, and not known yet.
    for (int attempt = 0; attempt < mostLooks && model_.layersChanged(); ++attempt) {
        rememberScreen();
        connection_.roundTrip();
        model_.drain();
    }
}

void Underlay::reset() {
    size_ = model_.desktop().size();
    memory_ = Surface::create(connection_, model_.formats(), size_);
    ground_ = Surface::create(connection_, model_.formats(), size_);
    numbers_.clear();
    layers_ = all_ = {};
    place_ = remembered_ = dirty_ = behind_ = groundSeen_ = QRegion();
    before_ = QRegion();
    lingering_.clear();
    leftOut_.clear();
    keptUp_ = QRegion();
    ahead_.clear();
}

// Windows of ours that are about to come will lie on what is on the screen now.
void Underlay::rememberScreen() {
    std::vector<Layer> others = model_.layers();
    QRegion ours;
    for (const Layer &layer : others)
        if (model_.isPrivate(layer.window))
            ours = united(ours,
                          model_.isComposited() ? grown(layer.region, widestShadow) : layer.region);
    all_ = LayerStack(others, model_.desktop());
    std::erase_if(others, [this](const Layer &layer) { return model_.isPrivate(layer.window); });
    layers_ = LayerStack(others, model_.desktop());
    remembered_ = QRegion(model_.desktop()).subtracted(ours);
    groundSeen_ = all_.visible(all_.layers().size() - 1).subtracted(ours);
    copyRegion(connection_, model_.screen().picture(), memory_->picture(), remembered_);
    copyRegion(connection_, model_.screen().picture(), ground_->picture(), groundSeen_);
    backgroundGeneration_ = model_.background().generation();
    if (model_.isComposited())
        return;
    for (const Layer &layer : layers_.layers()) {
        if (layer.window == connection_.root())
            continue;
        model_.redirect(layer.window);
        redirected_[layer.window] = Clock::now() + startLasts;
    }
}

bool Underlay::isDue() {
    const auto now = Clock::now();
    if (!ahead_.isEmpty() || !keptUp_.isEmpty())
        return true;
    for (Lingering &each : lingering_) {
        each.repainted = each.repainted || model_.screen().damage().intersects(each.region);
        if (now - each.since >= (each.repainted ? shortestEffect : longestEffect))
            return true;
    }
    return std::ranges::any_of(redirected_,
                               [now](const auto &window) { return window.second <= now; });
}

QRegion Underlay::follow(std::span<const std::uint32_t> numbers, const QRect &wanted,
                         const Earlier &earlier, const Earlier &painted) {
    QRegion changed;
    if (size_ != model_.desktop().size()) {
        reset();
        changed = model_.desktop();
    }
    if (!isReady())
        return changed;
    const auto now = Clock::now();
    const auto over = std::erase_if(lingering_, [now](const Lingering &each) {
        return now - each.since >= (each.repainted ? shortestEffect : longestEffect);
    });
    if (model_.layersChanged() || over > 0 || !std::ranges::equal(numbers, numbers_)) {
        catchUp(painted);
        changed = united(changed, arrange(numbers, earlier));
    }
    redirectBeneath(wanted);
    wanted_ = wanted;
    followed_ = now;
    changed = united(united(changed, std::exchange(keptUp_, {})), takeDamage());
    model_.screen().tellRepaints(mustKeepUp());
    return changed;
}

// A window may be about to lose what it showed.
void Underlay::catchUp(const Earlier &painted) {
    const QRegion known = behind_.intersected(painted.valid);
    copyRegion(connection_, painted.picture, memory_->picture(), known);
    remembered_ = united(remembered_, known);
    dirty_ = united(dirty_, behind_.subtracted(known));
    behind_ = QRegion();
}

// The layers that are asked for, in the order given. Whether that is the order on the screen, with
// the background in its place.
bool Underlay::takeAsked(std::span<const std::uint32_t> numbers, std::vector<Layer> &layers) const {
    const auto &shown = model_.layers();
    std::unordered_map<std::uint32_t, std::size_t> places;
    for (std::size_t i = 0; i < shown.size(); ++i)
        places.emplace(shown[i].window, i);
    std::unordered_set<std::uint32_t> taken;
    bool inOrder = true;
    std::size_t latest = 0;
    for (const auto number : numbers) {
        const auto found = places.find(number);
        if (found == places.end() || !taken.insert(number).second)
            continue;
        inOrder = inOrder && found->second >= latest;
        latest = found->second;
        layers.push_back(shown[found->second]);
    }
    return inOrder && taken.contains(connection_.root());
}

QRegion Underlay::placeOf(std::span<const Layer> shown,
                          std::span<const std::uint32_t> numbers) const {
    QRegion place, above;
    for (const Layer &layer : shown) {
        if (contains(numbers, layer.window)) {
            if (!layer.blended)
                above = united(above, layer.region);
            continue;
        }
        const QRegion region =
            model_.isComposited() ? grown(layer.region, widestShadow) : layer.region;
        place = united(place, region.subtracted(above));
    }
    return place.intersected(model_.desktop());
}

// The place of a window that leaves is kept until the screen shows that it has left. A window that
// is minimised, or comes back, may fly from or to its button.
void Underlay::linger(std::span<const Layer> shown, std::span<const std::uint32_t> numbers,
                      QRegion &place) {
    const auto before = std::exchange(leftOut_, {});
    for (const Layer &layer : shown)
        if (!contains(numbers, layer.window))
            leftOut_[layer.window] = layer.region.boundingRect();
    if (!model_.isComposited()) {
        lingering_.clear();
        before_ = QRegion();
        return;
    }
    QRegion leaving = before_.subtracted(place);
    before_ = place;
    const auto addFlights = [&](const auto &some, const auto &others) {
        for (const auto &[window, rect] : some)
            if (const QRect icon = model_.iconPlace(window);
                !others.contains(window) && !icon.isEmpty())
                leaving = united(leaving, (icon | rect).intersected(model_.desktop()));
    };
    addFlights(before, leftOut_);
    addFlights(leftOut_, before);
    if (!leaving.isEmpty()) {
        // Only what is drawn there from now on shows that it has left.
        model_.screen().takeAll(leaving);
        lingering_.push_back({leaving, Clock::now()});
    }
    for (const Lingering &each : lingering_)
        place = united(place, each.region);
}

// The ground is remembered when a window comes to lie on it.
void Underlay::rememberGround(const LayerStack &all, const Earlier &earlier) {
    const auto generation = model_.background().generation();
    if (std::exchange(backgroundGeneration_, generation) != generation) {
        if (!model_.isComposited())
            groundSeen_ = QRegion();
        else
            groundDoubted_ = Clock::now() + longestEffect;
    } else if (!all_.layers().empty()) {
        QRegion fresh = all_.visible(all_.layers().size() - 1)
                            .subtracted(all.visible(all.layers().size() - 1))
                            .subtracted(place_)
                            .intersected(earlier.valid);
        if (model_.isComposited() && !fresh.isEmpty()) {
            // Beside a window its shadow lies on the ground: better than nothing, and no more.
            QRegion windows;
            for (const Layer &layer : all_.layers().first(all_.layers().size() - 1))
                windows = united(windows, layer.region);
            fresh -= grown(windows, widestShadow).intersected(groundSeen_);
        }
        copyRegion(connection_, earlier.picture, ground_->picture(), fresh);
        groundSeen_ = united(groundSeen_, fresh);
    }
    all_ = all;
}

// Not all compositing managers show the pixmap that was set anew. One that does changes
// all of it.
void Underlay::pictureChanged(const QRegion &where) {
    if (Clock::now() >= groundDoubted_ || all_.layers().empty())
        return;
    const QRegion ground = all_.visible(all_.layers().size() - 1).subtracted(place_);
    if (area(ground.subtracted(where)) * 4 >= area(ground))
        return;
    groundSeen_ = QRegion();
    groundDoubted_ = {};
}

// Around windows that moved or left, shadows of theirs may lie on the ground.
QRegion Underlay::shadowsLeftBehind(const LayerStack &after) const {
    if (!model_.isComposited() || !groundAsked_)
        return {};
    QRegion moved;
    for (std::size_t i = 0; i < layers_.layers().size(); ++i) {
        const Layer &before = layers_.layers()[i];
        const auto now = std::ranges::find(after.layers(), before.window, &Layer::window);
        if (now == after.layers().end() || now->region != before.region)
            moved = united(moved, layers_.visible(i));
    }
    return grown(moved, widestShadow)
        .intersected(after.visible(after.layers().size() - 1))
        .intersected(groundKnown());
}

QRegion Underlay::arrange(std::span<const std::uint32_t> numbers, const Earlier &earlier) {
    const auto &shown = model_.layers();
    const QRect desktop = model_.desktop();
    numbers_.assign(numbers.begin(), numbers.end());
    std::vector<Layer> asked;
    const bool asShown = takeAsked(numbers, asked);
    groundAsked_ = contains(numbers, connection_.root());
    LayerStack after(std::move(asked), desktop);
    QRegion gone = desktop;
    if (asShown == asShown_ && !layers_.desktop().isNull())
        gone = changedBetween(layers_, after);
    else if (asShown && asShown_)
        gone = QRegion();
    QRegion place = desktop;
    if (asShown)
        place = placeOf(shown, numbers);
    if (asShown)
        linger(shown, numbers, place);
    rememberGround(LayerStack(shown, desktop), earlier);
    if (asShown)
        gone = united(gone, shadowsLeftBehind(after));

    const QRegion coming = place.subtracted(place_);
    const QRegion kept = coming.intersected(earlier.valid).subtracted(gone);
    copyRegion(connection_, earlier.picture, memory_->picture(), kept);
    remembered_ = united(remembered_, kept).subtracted(gone);
    dirty_ = united(united(dirty_, coming.subtracted(remembered_)), gone).intersected(place);
    const QRegion changed = united(place_.xored(place), gone.intersected(place));
    if (place != place_)
        placeMoved_ = Clock::now();
    place_ = place;
    layers_ = std::move(after);
    asShown_ = asShown;
    return changed;
}

void Underlay::redirectBeneath(const QRect &wanted) {
    const auto now = Clock::now();
    QRegion area = place_.intersected(wanted);
    if (!area.isEmpty() && !model_.isComposited() && now - placeMoved_ < moveLasts)
        area = grown(area, foresight);
    for (const Layer &layer : layers_.layers()) {
        if (layer.window == connection_.root() || !layer.region.intersects(area))
            continue;
        model_.redirect(layer.window);
        auto &until = redirected_[layer.window];
        until = std::max(until, now + keptAfterwards);
    }
    std::erase_if(redirected_, [this, now](const auto &window) {
        if (window.second > now && model_.isRedirected(window.first))
            return false;
        model_.giveBack(window.first);
        return true;
    });
}

// Damage that nobody can see stays untaken: the server does not repeat itself about it, so that a
// film running beneath another window is silent until it comes into sight.
QRegion Underlay::takeDamage() {
    const QRegion looked = place_.intersected(wanted_);
    QRegion damage;
    for (std::size_t i = 0; !looked.isEmpty() && i < layers_.layers().size(); ++i) {
        const Layer &layer = layers_.layers()[i];
        const QRegion seen = model_.damage(layer).intersected(layers_.visible(i));
        if (!seen.intersects(looked))
            continue;
        damage = united(damage, seen.intersected(place_));
        model_.takeDamage(layer);
    }
    if (!damage.isEmpty())
        drawn_ = Clock::now();
    const bool isShown = !model_.isComposited() || model_.isDrawingShown() || looked.isEmpty();
    const QRegion shown = ahead_.shown(damage, isShown, model_.repaints());
    dirty_ = united(dirty_, shown);
    return shown;
}

bool Underlay::mustKeepUp() const {
    return isReady() && model_.isComposited() && !place_.isEmpty() &&
           Clock::now() - std::min(drawn_, followed_) < drawingLasts;
}

void Underlay::keepUp() {
    if (model_.layersChanged())
        return;
    const QRegion shown = takeDamage();
    compose(shown.intersected(place_).intersected(wanted_));
    keptUp_ = united(keptUp_, shown);
    xcb_flush(connection_.get());
}

void Underlay::paint(xcb_render_picture_t target, const QRegion &where) {
    if (where.isEmpty())
        return;
    const QRegion due = united(dirty_, behind_).intersected(where);
    const QRegion done = model_.isComposited() ? QRegion() : paintStraight(target, due);
    compose(due.subtracted(done));
    copyRegion(connection_, memory_->picture(), target, where.subtracted(done));
}

// Where one window's picture is all that there is to see, it goes past what is remembered: what is
// drawn over and over is copied once only. Tells where that was possible.
QRegion Underlay::paintStraight(xcb_render_picture_t target, const QRegion &where) {
    if (where.isEmpty())
        return {};
    const auto layers = layers_.layers();
    QRegion single = where, done;
    for (std::size_t i = 0; i < layers.size(); ++i)
        if (layers[i].blended)
            single -= layers_.visible(i);
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const Layer &layer = layers[i];
        if (layer.blended || layer.window == connection_.root())
            continue;
        const QRegion part =
            layers_.visible(i).intersected(single).subtracted(model_.untrusted(layer));
        if (part.isEmpty() || model_.picture(layer) == 0)
            continue;
        composer_.paintWindow(target, layer, part);
        done = united(done, part);
    }
    dirty_ -= done;
    behind_ = united(behind_, done);
    return done;
}

QRegion Underlay::groundKnown() const {
    return !groundAsked_ || model_.background().picture() != 0 ? QRegion(model_.desktop())
                                                               : groundSeen_;
}

// A compositing manager may have put its own background there; else the pixmap is what is there.
void Underlay::paintGround(const QRegion &where) {
    const xcb_render_picture_t target = memory_->picture();
    if (!groundAsked_) {
        fillBlack(connection_, target, where, XCB_RENDER_PICT_OP_SRC);
        return;
    }
    const bool pixmap = model_.background().picture() != 0 && !model_.isComposited();
    const QRegion seen = pixmap ? QRegion() : where.intersected(groundSeen_);
    copyRegion(connection_, ground_->picture(), target, seen);
    composer_.paintBackground(target, where.subtracted(seen));
}

void Underlay::compose(const QRegion &where) {
    if (where.isEmpty())
        return;
    const auto layers = layers_.layers();
    // Where no window's picture will be laid, and where one lets it shine through.
    QRegion open = layers_.bare(), blended;
    std::vector<QRegion> parts;
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const QRegion part = layers_.visible(i).intersected(where);
        if (layers[i].window == connection_.root()) {
            open = united(open, part);
            parts.emplace_back();
            continue;
        }
        const QRegion untrusted = model_.untrusted(layers[i]).intersected(part);
        open = united(open, untrusted);
        if (layers[i].blended)
            blended = united(blended, part);
        parts.push_back(part.subtracted(untrusted));
    }
    open = open.intersected(where);
    const QRegion unknown = open.subtracted(groundKnown());
    // What was blended over something that nobody knows can only be left as it is; where nothing is
    // remembered either, at least no shadow is laid on nothing.
    const QRegion asItIs = unknown.intersected(remembered_).intersected(blended);
    paintGround(
        open.intersected(united(where.subtracted(remembered_), blended)).subtracted(asItIs));
    for (std::size_t i = layers.size(); i-- > 0;) {
        if (layers[i].blended)
            parts[i] =
                parts[i].subtracted(asItIs).subtracted(layers[i].shadow.intersected(unknown));
        composer_.paintWindow(memory_->picture(), layers[i], parts[i]);
    }
    remembered_ = united(remembered_, where);
    dirty_ -= where;
    behind_ -= where;
}

} // namespace x11
