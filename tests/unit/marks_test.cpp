// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/image_reader.h"
#include "platform/image/tile_store.h"
#include "record/marks/marks.h"
#include "record/marks/plate_painter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <set>
#include <string>

namespace {

QImage noise(QSize size, QImage::Format format, unsigned seed) {
    std::mt19937 random(seed);
    QImage picture(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, static_cast<QRgb>(random()));
    return picture.convertToFormat(format);
}

const QImage pointerShape = noise({11, 14}, QImage::Format_ARGB32_Premultiplied, 5);

MarksShown pointerAt(QPoint place) {
    MarksShown shown;
    shown.pointer = Pointer{.place = place, .shape = pointerShape, .hotSpot = {3, 2}};
    return shown;
}

/// One premultiplied value of `shape` at a pixel of the desktop, nothing outside.
QRgb shapeAt(const Pointer &pointer, QPoint pixel) {
    const QPoint at = pixel - pointer.place + pointer.hotSpot;
    return pointer.shape.rect().contains(at)
               ? reinterpret_cast<const QRgb *>(pointer.shape.constScanLine(at.y()))[at.x()]
               : 0u;
}

/// The picture with the pointer over it, one channel of one pixel after the other: those pixels of
/// the desktop that become one are averaged before they cover what is beneath.
QImage slowly(QImage picture, const FramePlace &place, const Pointer &pointer) {
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            double alpha = 0, red = 0, green = 0, blue = 0;
            for (int part = 0; part < place.density * place.density; ++part) {
                const QRgb from =
                    shapeAt(pointer, place.origin + QPoint(x, y) * place.density +
                                         QPoint(part % place.density, part / place.density));
                const double weight = 1.0 / (place.density * place.density);
                alpha += weight * qAlpha(from);
                red += weight * qRed(from);
                green += weight * qGreen(from);
                blue += weight * qBlue(from);
            }
            const QRgb under = picture.pixel(x, y);
            const auto mixed = [&](double over, int beneath) {
                return static_cast<int>(std::lround(over + beneath * (255 - alpha) / 255));
            };
            picture.setPixel(x, y,
                             qRgb(mixed(red, qRed(under)), mixed(green, qGreen(under)),
                                  mixed(blue, qBlue(under))));
        }
    return picture;
}

int furthest(const QImage &a, const QImage &b) {
    int most = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            for (const int shift : {0, 8, 16}) {
                const auto channel = [shift](QRgb pixel) {
                    return static_cast<int>(pixel >> shift & 0xff);
                };
                most = std::max(most, std::abs(channel(a.pixel(x, y)) - channel(b.pixel(x, y))));
            }
    return most;
}

/// Where two pictures are not alike.
QRegion differing(const QImage &a, const QImage &b) {
    QRegion region;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y))
                region += QRect(x, y, 1, 1);
    return region;
}

} // namespace

TEST(Marks, coverAFrameAsTheSlowReferenceDoesWhereverThePointerIs) {
    const QImage plain = noise({60, 40}, QImage::Format_RGB32, 2);
    const Image frame = Image::fromQImage(plain);
    for (const int density : {1, 2})
        for (const QPoint origin : {QPoint(0, 0), QPoint(101, -50)})
            for (const QPoint at : {QPoint(20, 20), QPoint(21, 20), QPoint(20, 21), QPoint(0, 0),
                                    QPoint(59 * density, 39 * density), QPoint(-9, 5)}) {
                const FramePlace place{.origin = origin, .density = density};
                const MarksShown shown = pointerAt(origin + at);
                Marks marks;
                const Image marked = marks.over(frame, place, shown);
                EXPECT_LE(furthest(marked.toQImage(), slowly(plain, place, *shown.pointer)), 2)
                    << density << ": " << at.x() << ", " << at.y();
                EXPECT_EQ(frame.toQImage(), plain) << "what lies beneath is never drawn on";
                EXPECT_EQ(marked.sameAs(frame), at.x() == -9) << "it is outside";
            }
}

TEST(Marks, changeAFrameWhereTheyWereAndAreAndNowhereElse) {
    const QImage plain = noise({300, 200}, QImage::Format_RGB32, 3);
    Image frame = Image::fromQImage(plain);
    Marks marks;
    const Image first = marks.over(frame, {}, pointerAt({50, 60}));
    EXPECT_TRUE(marks.over(frame, {}, pointerAt({50, 60})).sameAs(first));
    const Image second = marks.over(frame, {}, pointerAt({250, 70}));
    const QRegion places = QRegion(47, 58, 11, 14) + QRect(247, 68, 11, 14);
    EXPECT_EQ(second.changesSince(first), places);
    EXPECT_EQ(differing(first.toQImage(), second.toQImage()).subtracted(places), QRegion());

    // The desktop changes as well.
    QImage changed = plain;
    changed.setPixel(3, 4, qRgb(1, 2, 3));
    frame = Image::fromQImage(changed, {frame.identity(), QRect(3, 4, 1, 1)});
    const Image third = marks.over(frame, {}, pointerAt({250, 70}));
    EXPECT_EQ(third.changesSince(second), QRegion(3, 4, 1, 1) + QRect(247, 68, 11, 14));
    EXPECT_EQ(frame.changesSince(third), QRegion(247, 68, 11, 14)) << "the pointer has left";
    EXPECT_TRUE(marks.over(frame, {}, {}).sameAs(frame));
}

TEST(Marks, areKeptWithTheFramesForLittleMore) {
    QImage plain({1920, 1080}, QImage::Format_RGB32);
    plain.fill(Qt::darkCyan);
    Image frame = Image::fromQImage(plain.copy());
    TileStore store;
    Marks marks;
    ImageReader reader;
    std::vector<Image> kept;
    std::vector<std::size_t> bytes;
    for (int i = 0; i < 8; ++i) {
        if (i == 5) { // the desktop changes, also beneath the pointer
            plain.fill(Qt::darkRed);
            frame = Image::fromQImage(plain.copy(), {frame.identity(), plain.rect()});
        }
        const MarksShown shown = i == 3 ? MarksShown{} : pointerAt({250 * i, 140 * i});
        const Image marked = marks.over(frame, {}, shown);
        kept.push_back(store.keep(marked, kept.empty() ? Image() : kept.back()));
        ASSERT_TRUE(kept.back().sameAs(marked));
        ASSERT_EQ(reader.read(marked), marked.toQImage()) << i;
        ASSERT_EQ(kept.back().toQImage(), marked.toQImage()) << i;
        store.waitUntilCompressed();
        bytes.push_back(store.bytesHeld());
    }
    EXPECT_LE(bytes[4], bytes[1] + std::size_t{3} * 6 * 1024) << "a few tiles for each frame";
}

namespace {

constexpr MarkTime start{};

MarkTime after(int milliseconds) { return start + std::chrono::milliseconds(milliseconds); }

Click clickOf(int button, bool held) {
    return {.button = button,
            .place = {200, 100},
            .down = start,
            .up = held ? std::optional<MarkTime>() : after(60)};
}

std::vector<Disc> discsAt(int milliseconds, const Click &click, int width = 1000) {
    return discsOf(std::span(&click, 1), after(milliseconds), QPoint(260, 110), {}, {width, 600});
}

KeyPress pressOf(int key, Qt::KeyboardModifiers modifiers = {}) {
    KeyPress press;
    press.key = key;
    press.modifiers = modifiers;
    return press;
}

std::string shownAt(const KeyTrail &trail, int milliseconds) {
    const auto plate = trail.at(after(milliseconds));
    return plate ? plate->text.toStdString() : "";
}

} // namespace

TEST(ClickMarks, areARingThatGrowsAndFadesAndADiscWhileHeldWhereThePointerIs) {
    const auto young = discsAt(40, clickOf(1, false)), old = discsAt(360, clickOf(1, false));
    ASSERT_EQ(young.size(), 1u);
    ASSERT_EQ(old.size(), 1u);
    EXPECT_EQ(young[0].centre, QPointF(200.5, 100.5));
    EXPECT_GT(young[0].stroke, 0);
    EXPECT_GT(old[0].radius, young[0].radius * 1.5);
    EXPECT_LT(old[0].colour.alphaF(), young[0].colour.alphaF() / 3);
    EXPECT_TRUE(discsAt(400, clickOf(1, false)).empty());

    const auto held = discsAt(40, clickOf(1, true)), dragged = discsAt(5000, clickOf(1, true));
    ASSERT_EQ(held.size(), 2u);
    ASSERT_EQ(dragged.size(), 1u);
    EXPECT_EQ(dragged[0].stroke, 0);
    EXPECT_EQ(dragged[0].centre, QPointF(260.5, 110.5));
    EXPECT_LT(dragged[0].radius, old[0].radius);

    std::set<QRgb> colours;
    for (const int button : {1, 2, 3, 8})
        colours.insert(discsAt(0, clickOf(button, false))[0].colour.rgb());
    EXPECT_EQ(colours.size(), 4u);
    for (const int width : {40, 320, 1000, 3840})
        for (const int age : {0, 399})
            for (const Disc &disc : discsAt(age, clickOf(1, true), width))
                EXPECT_LE(2 * disc.radius + disc.stroke, width * 0.05 + 1e-9);

    const Click click = clickOf(1, false);
    EXPECT_EQ(discsOf(std::span(&click, 1), after(0), {}, {{100, 40}, 2}, {1000, 600})[0].centre,
              QPointF(50.5, 30.5));
}

TEST(ClickMarks, endWithTheirButtonAndAreForgotten) {
    std::vector<Click> clicks;
    const auto change = [&clicks](int milliseconds, int button, bool down) {
        take(clicks, {after(milliseconds), {.button = button, .down = down, .place = {5, 6}}});
    };
    change(0, 1, true);
    change(10, 3, true);
    change(20, 1, false);
    change(30, 2, false); // went down before anybody looked
    forgetPast(clicks, after(410));
    ASSERT_EQ(clicks.size(), 1u);
    EXPECT_EQ(clicks[0].button, 3);
    change(500, 3, false);
    forgetPast(clicks, after(500));
    EXPECT_TRUE(clicks.empty());
}

TEST(ClickMarks, areDrawnInTheirColoursAndNowhereElse) {
    QImage plain({1000, 200}, QImage::Format_RGB32);
    plain.fill(Qt::darkGray);
    MarksShown shown;
    shown.clicks = {clickOf(1, true), clickOf(3, false)};
    shown.clicks[1].place = {990, 196}; // cut by two edges
    shown.now = after(150);
    shown.hand = QPoint(260, 110);
    Marks marks;
    const Image marked = marks.over(Image::fromQImage(plain), {}, shown);
    const auto discs = discsOf(shown.clicks, shown.now, shown.hand, {}, plain.size());
    ASSERT_EQ(discs.size(), 3u) << "a ring and a disc, and a ring";
    QRegion places;
    for (const Disc &disc : discs) {
        places += disc.bounds();
        const int x = static_cast<int>(disc.centre.x()), y = static_cast<int>(disc.centre.y());
        const int line = disc.stroke > 0 ? static_cast<int>(disc.radius) : 0;
        const auto mixed = [&](int over) {
            const double share = disc.colour.alphaF();
            return over * share + QColor(Qt::darkGray).red() * (1 - share);
        };
        const QColor seen = marked.toQImage().pixelColor(x - line, y);
        EXPECT_NEAR(seen.red(), mixed(disc.colour.red()), 2);
        EXPECT_NEAR(seen.green(), mixed(disc.colour.green()), 2);
        EXPECT_NEAR(seen.blue(), mixed(disc.colour.blue()), 2);
        EXPECT_EQ(marked.toQImage().pixel(x, y) == plain.pixel(x, y), disc.stroke > 0);
    }
    EXPECT_EQ(differing(marked.toQImage(), plain).subtracted(places), QRegion());
    shown.now = after(151);
    EXPECT_FALSE(marks.over(Image::fromQImage(plain), {}, shown).sameAs(marked));
}

TEST(KeyMarks, showCombinationsAndCommandsAndNothingThatIsWritten) {
    constexpr auto ctrl = Qt::ControlModifier, shift = Qt::ShiftModifier;
    for (const auto &shown :
         {pressOf(Qt::Key_Z, ctrl), pressOf(Qt::Key_F, Qt::AltModifier),
          pressOf(Qt::Key_L, Qt::MetaModifier), pressOf(Qt::Key_Z, ctrl | shift),
          pressOf(Qt::Key_F5), pressOf(Qt::Key_Return), pressOf(Qt::Key_Tab, shift),
          pressOf(Qt::Key_Delete), pressOf(Qt::Key_Space, ctrl), pressOf(Qt::Key_1, ctrl)})
        EXPECT_TRUE(mayBeShown(shown)) << shown.key;
    KeyPress altGr = pressOf(Qt::Key_Q, ctrl), dead = pressOf(Qt::Key_E, ctrl),
             compose = pressOf(Qt::Key_Multi_key, ctrl), pad = pressOf(Qt::Key_1, Qt::AltModifier);
    altGr.onOtherLevel = dead.isDead = compose.isCompose = pad.onNumberPad = true;
    for (const auto &hidden : {pressOf(Qt::Key_A), pressOf(Qt::Key_A, shift), pressOf(Qt::Key_7),
                               pressOf(Qt::Key_Space), pressOf(Qt::Key_Backspace), pressOf(0, ctrl),
                               pressOf(Qt::Key_U, ctrl | shift), altGr, dead, compose, pad})
        EXPECT_FALSE(mayBeShown(hidden)) << hidden.key;
}

TEST(KeyMarks, nameTheLastCombinationAndCountIt) {
    KeyTrail trail;
    const KeyPress undo = pressOf(Qt::Key_Z, Qt::ControlModifier);
    trail.take({after(0), undo});
    EXPECT_EQ(shownAt(trail, 0), "Ctrl+Z");
    trail.take({after(500), undo});
    trail.take({after(1000), undo});
    EXPECT_EQ(shownAt(trail, 2499), "Ctrl+Z ×3");
    EXPECT_EQ(shownAt(trail, 2500), "");
    trail.take({after(3000), undo});
    EXPECT_EQ(shownAt(trail, 3000), "Ctrl+Z") << "too late to go on";
    trail.take({after(3100), pressOf(Qt::Key_A)});
    EXPECT_EQ(shownAt(trail, 3100), "Ctrl+Z");
    trail.take({after(3200), undo});
    EXPECT_EQ(shownAt(trail, 3200), "Ctrl+Z") << "not in a row";
    trail.take({after(3300), pressOf(Qt::Key_Left, Qt::MetaModifier | Qt::ShiftModifier)});
    EXPECT_EQ(shownAt(trail, 3300), "Super+Shift+Left");
    trail.take({after(3400), pressOf(0xe4 - 0x20, Qt::ControlModifier)});
    EXPECT_EQ(shownAt(trail, 3400), "Ctrl+Ä");
}

TEST(KeyMarks, showNothingOfASequenceThatYieldsACharacter) {
    constexpr auto both = Qt::ControlModifier | Qt::ShiftModifier;
    KeyPress dead = pressOf(Qt::Key_Dead_Acute), compose = pressOf(Qt::Key_Multi_key);
    dead.isDead = compose.isCompose = true;
    const KeyPress enter = pressOf(Qt::Key_Return), save = pressOf(Qt::Key_S, Qt::ControlModifier);
    const std::vector<std::pair<std::vector<KeyPress>, std::string>> cases = {
        {{dead, enter}, ""},
        {{dead, pressOf(Qt::Key_E), enter}, "Return"},
        {{compose, pressOf(Qt::Key_O), enter}, ""},
        {{compose, pressOf(Qt::Key_O), pressOf(Qt::Key_C), enter}, "Return"},
        {{dead, save}, "Ctrl+S"},
        // The number, with the keys held as on some layouts, or let go.
        {{pressOf(Qt::Key_U, both), pressOf(Qt::Key_2, both), pressOf(Qt::Key_Egrave, both)}, ""},
        {{pressOf(Qt::Key_U, both), pressOf(Qt::Key_2), pressOf(Qt::Key_A), enter}, ""},
        {{pressOf(Qt::Key_U, both), pressOf(Qt::Key_2), enter, enter}, "Return"},
        {{pressOf(Qt::Key_U, both), save}, "Ctrl+S"}};
    for (const auto &[presses, shown] : cases) {
        KeyTrail trail;
        for (const KeyPress &press : presses)
            trail.take({after(0), press});
        EXPECT_EQ(shownAt(trail, 0), shown) << presses.size();
    }
}

TEST(KeyMarks, stayOnAPlateAtTheLowerMiddleWithinTheFrame) {
    for (const QSize size : {QSize(1920, 1080), QSize(320, 200), QSize(120, 110)}) {
        QImage plain(size, QImage::Format_RGB32);
        plain.fill(Qt::white);
        MarksShown shown;
        shown.keys = Plate{QStringLiteral("Ctrl+Z ×3")};
        Marks marks;
        const QRect place =
            differing(marks.over(Image::fromQImage(plain), {}, shown).toQImage(), plain)
                .boundingRect();
        EXPECT_LE(std::abs(place.center().x() - size.width() / 2), 1);
        EXPECT_GT(place.top(), size.height() / 2);
        EXPECT_LT(place.bottom(), size.height() - 1);
        EXPECT_LE(place.width(), size.width());
    }
    EXPECT_TRUE(plateBounds({QStringLiteral("Ctrl+Shift+Left")}, {30, 200}).isEmpty());
}
