// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/view_record_preview.h"
#include "tests/controller/controller_fixture.h"

#include <QPainter>
#include <QPixmap>
#include <QWindow>

class RecordPreview : public ControllerFixture {
protected:
    RecordPreview() {
        delegate->TimerRefreshVideoRoutine();
        delegate->OnRecordRecord(nullptr);
        settle();
        before = frames();
    }

    View_Record_Preview &view() { return *ui().viewRecordPreview; }
    std::uint64_t stored() {
        settle();
        return frames() - before;
    }

    std::uint64_t before = 0;
};

TEST_F(RecordPreview, storesOneFrameForEachTickPaintedOrNot) {
    delegate->TimerRefreshVideoRoutine();
    delegate->TimerRefreshVideoRoutine();
    EXPECT_EQ(stored(), 2u);
    EXPECT_TRUE(delegate->recording.array_Images->back().sameAs(*server->picture));
    window()->hide();
    settle();
    before = frames();
    delegate->TimerRefreshVideoRoutine();
    EXPECT_EQ(stored(), 1u);
}

TEST_F(RecordPreview, isPaintedOnlyWhereSomebodyMaySeeIt) {
    struct Paints : QObject {
        int count = 0;
        bool eventFilter(QObject *, QEvent *event) override {
            count += event->type() == QEvent::Paint;
            return false;
        }
    } paints;
    view().installEventFilter(&paints);
    const auto paintsOfATick = [&] {
        paints.count = 0;
        delegate->TimerRefreshVideoRoutine();
        settle();
        return paints.count;
    };
    auto change = [&, shade = 0]() mutable {
        server->picture = plainImage({64, 48}, qRgb(++shade, 0, 0));
    };
    const QRectF everything(-5000, -5000, 20000, 20000);
    const WindowDescription own{
        .number = 1, .ownerName = QStringLiteral("Tovarel"), .bounds = everything};
    const WindowDescription other{
        .number = 2, .ownerName = QStringLiteral("Other"), .bounds = everything, .opaque = true};
    WindowDescription translucent = other, small = other;
    translucent.opaque = false;
    small.bounds.setWidth(5001 + view().mapToGlobal(QPoint(10, 0)).x());
    for (const auto &inFront : {translucent, small}) {
        server->windows = {inFront, own, other};
        change();
        EXPECT_EQ(paintsOfATick(), 1);
    }
    server->windows = {other, own};
    change();
    EXPECT_EQ(paintsOfATick(), 0);
    EXPECT_EQ(stored(), 3u);
    server->windows = {own, other};
    EXPECT_EQ(paintsOfATick(), 1) << "in sight again, with nothing new";
    EXPECT_EQ(paintsOfATick(), 0);
}

TEST_F(RecordPreview, storesNothingWhenItIsOnlyPainted) {
    view().grab();
    window()->grab();
    QImage canvas(100, 100, QImage::Format_RGB32);
    view().render(&canvas);
    view().update();
    view().repaint();
    EXPECT_EQ(stored(), 0u);
    // Not even while a redisplay is due, which still happens once.
    window()->resize(window()->size() + QSize(40, 30));
    view().grab();
    EXPECT_EQ(frames() - before, 0u);
    EXPECT_EQ(stored(), 1u);
}

TEST_F(RecordPreview, storesTheSameFrameOnceMoreForEachRedisplay) {
    window()->resize(window()->size() + QSize(60, 20));
    EXPECT_EQ(stored(), 1u);
    view().hide();
    EXPECT_EQ(stored(), 1u);
    view().show();
    EXPECT_EQ(stored(), 2u);
    // A tick that comes before the redisplay makes it superfluous.
    window()->resize(window()->size() + QSize(10, 10));
    delegate->TimerRefreshVideoRoutine();
    EXPECT_EQ(stored(), 3u);
}

TEST_F(RecordPreview, paintsTheLastFrameFittedOverBlack) {
    // Twice as wide as high in a square area: bars above and below.
    server->picture = plainImage({200, 100}, qRgb(200, 100, 50));
    view().setFixedSize(400, 400);
    settle();
    delegate->TimerRefreshVideoRoutine();
    const QImage shown = view().grab().toImage();
    EXPECT_EQ(shown.pixel(200, 200), qRgb(200, 100, 50));
    EXPECT_EQ(shown.pixel(2, 102), qRgb(200, 100, 50));
    EXPECT_EQ(shown.pixel(200, 90), qRgb(0, 0, 0));
    EXPECT_EQ(shown.pixel(200, 310), qRgb(0, 0, 0));
}

TEST_F(RecordPreview, showsThePointerOfTheGrabButNotOverOurWindowNorWhenSwitchedOff) {
    QImage shape(3, 3, QImage::Format_ARGB32_Premultiplied);
    shape.fill(qRgb(250, 0, 0));
    server->pointer = Pointer{.place = {11, 12}, .shape = shape, .hotSpot = {1, 2}, .window = 7};
    server->windows = {{.number = 6, .ownerName = QStringLiteral("Tovarel"), .bounds = {}},
                       {.number = 7, .ownerName = QStringLiteral("Other"), .bounds = {}}};
    const auto shown = [this] {
        delegate->TimerRefreshVideoRoutine();
        return delegate->recording.array_Images->back();
    };
    EXPECT_TRUE(shown().sameAs(*server->picture)) << "nobody follows it off the Record tab";
    delegate->recorder.hands.follow();
    const Image marked = shown();
    EXPECT_TRUE(shown().sameAs(marked));
    EXPECT_EQ(marked.changesSince(delegate->capture.imgScreenCapture()), QRegion(10, 10, 3, 3));
    EXPECT_EQ(marked.toQImage().pixel(12, 12), qRgb(250, 0, 0));

    delegate->region.setI_Type_Screen_Capture(CAPTURE_REGION);
    delegate->region.setRect_Screen_Region({8, 26, 4, 12}); // up to row 10 from the top
    delegate->region.setScreenOfRegion(coordinates::Screen{.height = 48});
    const QImage cut = shown().toQImage();
    EXPECT_EQ(cut.size(), QSize(4, 12));
    EXPECT_EQ(cut.pixel(2, 0), qRgb(250, 0, 0));
    EXPECT_EQ(cut.pixel(1, 0), qRgb(10, 20, 30));
    EXPECT_EQ(cut.pixel(3, 3), qRgb(10, 20, 30));
    delegate->region.setI_Type_Screen_Capture(CAPTURE_FULL_SCREEN);

    server->pointer->window = 6;
    EXPECT_TRUE(shown().sameAs(*server->picture));
    server->pointer->window = 0;
    EXPECT_FALSE(shown().sameAs(*server->picture));

    EXPECT_FALSE(ui().btnRecordPointer->isEnabled());
    delegate->OnRecordStop(nullptr);
    EXPECT_TRUE(ui().btnRecordPointer->isChecked());
    ui().btnRecordPointer->click();
    EXPECT_FALSE(ui().btnRecordPointer->isChecked());
    delegate->TimerRefreshVideoRoutine();
    EXPECT_TRUE(delegate->capture.imageScreenCaptureFinal().sameAs(*server->picture));
    delegate->recorder.start();
    EXPECT_FALSE(delegate->recorder.hands.isPointerShown()) << "remembered";
    delegate->recorder.OnRecordPointer();
    EXPECT_TRUE(ui().btnRecordPointer->isChecked());
}

TEST_F(RecordPreview, showsClicksAndKeysWhileTheyAreSwitchedOnAndNotThoseForUs) {
    server->picture = plainImage({600, 400}, qRgb(10, 20, 30));
    server->windows = {{.number = 6, .ownerName = QStringLiteral("Tovarel"), .bounds = {}},
                       {.number = 7, .ownerName = QStringLiteral("Other"), .bounds = {}}};
    delegate->OnRecordStop(nullptr);
    delegate->recorder.hands.follow();
    EXPECT_FALSE(ui().btnRecordClicks->isChecked());
    EXPECT_EQ(server->heard, InputKinds()) << "off: nobody listens";
    ui().btnRecordClicks->click();
    EXPECT_EQ(server->heard, (InputKinds{.buttons = true, .keys = false}));
    ui().btnRecordKeys->click();
    EXPECT_EQ(server->heard, (InputKinds{.buttons = true, .keys = true}));
    EXPECT_TRUE(ui().labelStatus->text().endsWith(qtTrId("IDD_KEYS_SHOWN")));
    delegate->surroundings.showStatus(QStringLiteral("Something else"));
    EXPECT_TRUE(ui().labelStatus->text().startsWith(QStringLiteral("Something else")));
    EXPECT_TRUE(ui().labelStatus->text().endsWith(qtTrId("IDD_KEYS_SHOWN")));

    const auto shown = [this] {
        delegate->TimerRefreshVideoRoutine();
        return delegate->capture.imageScreenCaptureFinal().toQImage();
    };
    const QImage plain = server->picture->toQImage();
    const auto click = [this](std::uint32_t window) {
        const auto now = std::chrono::steady_clock::now();
        server->buttons.push_back(
            {now, {.button = 1, .down = true, .place = {300, 90}, .window = window}});
    };
    click(6);
    EXPECT_EQ(shown(), plain) << "a click on our own window";
    click(7);
    EXPECT_NE(shown().pixel(300, 90), plain.pixel(300, 90));

    window()->clearFocus();
    const auto press = [this] {
        KeyPress undo;
        undo.key = Qt::Key_Z;
        undo.modifiers = Qt::ControlModifier;
        server->keys.push_back({std::chrono::steady_clock::now(), undo});
    };
    QWindow another; // of another program, for all that our windows know
    another.show();
    another.requestActivate();
    settle();
    press();
    EXPECT_NE(shown().copy(200, 340, 200, 60), plain.copy(200, 340, 200, 60));
    delegate->OnRecordRecord(nullptr);
    EXPECT_EQ(shown(), plain) << "what was before a recording is not in it";
    delegate->OnRecordStop(nullptr);
    delegate->recorder.hands.rest();
    EXPECT_EQ(server->heard, InputKinds());

    delegate->recorder.start();
    EXPECT_TRUE(delegate->recorder.hands.areClicksShown()) << "remembered";
    EXPECT_FALSE(delegate->recorder.hands.areKeysShown()) << "never";
    delegate->recorder.OnRecordClicks();
    server->handAccess = HandAccess::NotOffered;
    delegate->recorder.OnRecordClicks();
    delegate->recorder.start();
    EXPECT_FALSE(delegate->recorder.hands.areClicksShown());
    server->handAccess = HandAccess::Granted;
    delegate->recorder.OnRecordClicks();
    delegate->recorder.OnRecordClicks();
}

TEST_F(RecordPreview, cutsTheRegionFromTheLowerLeftAndLeavesTheOutsideTransparent) {
    QImage pixels(64, 48, QImage::Format_RGB32);
    pixels.fill(qRgb(0, 0, 200));
    QPainter(&pixels).fillRect(0, 40, 10, 8, QColor(200, 0, 0)); // lower left corner
    server->picture = Image::fromQImage(pixels);
    delegate->region.setI_Type_Screen_Capture(CAPTURE_REGION);
    delegate->region.setRect_Screen_Region({0, 0, 20, 16});
    delegate->region.setScreenOfRegion(coordinates::Screen{.height = 48});
    delegate->TimerRefreshVideoRoutine();
    const Image inside = delegate->capture.imageScreenCaptureFinal();
    EXPECT_EQ(inside.size(), QSize(20, 16));
    EXPECT_FALSE(inside.hasAlpha());
    EXPECT_EQ(inside.toQImage().pixel(5, 12), qRgb(200, 0, 0));
    EXPECT_EQ(inside.toQImage().pixel(15, 3), qRgb(0, 0, 200));
    delegate->TimerRefreshVideoRoutine();
    EXPECT_TRUE(delegate->capture.imageScreenCaptureFinal().sameAs(inside));

    const Image outside =
        View_Record_Preview::partOfImage(*server->picture, QRectF(-10, -6, 20, 16));
    EXPECT_EQ(outside.size(), QSize(20, 16));
    EXPECT_EQ(outside.toQImage().pixel(12, 8), qRgb(200, 0, 0));
    EXPECT_EQ(qAlpha(outside.toQImage().pixel(5, 5)), 0);
    EXPECT_EQ(qAlpha(outside.toQImage().pixel(15, 12)), 0);
    EXPECT_TRUE(View_Record_Preview::partOfImage(Image(), QRectF(0, 0, 5, 5)).isEmpty());
}
