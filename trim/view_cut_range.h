// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "trim/cut_handle.h"
#include "trim/frame_runs.h"
#include "trim/range_rules.h"

#include <QPointF>
#include <QRectF>
#include <QWidget>

#include <cstdint>
#include <optional>

class StripPictures;
class TrimEditor;
class View_Cut_Preview;

/// The strip that shows the recording: small pictures in the order of time, what is left out
/// darkened, what was deleted hatched, two handles on which the part to keep is chosen, and a
/// playhead with a knob above. The handles' places are kept by the desk as percentages; the strip
/// draws them, moves them, and asks the preview to follow. It never starts playback; moving a
/// handle or the playhead pauses it.
///
/// A press goes to the nearer handle, else to the knob; else it is a click, which shows the frame
/// there, or a drag, which between the handles selects a part. A press outside a selection takes it
/// away.
///
/// By keyboard Tab goes from the lower handle to the playhead and the upper handle. On a handle
/// arrow keys move it by a frame, Page Up and Page Down by a tenth of the recording, Home and End
/// to either end, and Shift with the same keys selects from there. On the playhead Shift does so
/// with all but the left and right arrow, which like other keys without a handle are commands of
/// the window. Escape takes a selection away.
///
/// Rectangles are in points with the origin at the strip's lower left corner.
class View_Cut_Range : public QWidget {
    Q_OBJECT

public:
    explicit View_Cut_Range(QWidget *parent = nullptr);

    /// The desk whose handles it moves, and the preview that follows and that drags are measured
    /// against; both borrowed. Without them it shows nothing.
    void setEditor(TrimEditor &editor, View_Cut_Preview &preview);

    /// The pointer's button went down on the strip and has not been released.
    bool b_Mouse_Down() const { return b_Mouse_Down_; }
    void setB_Mouse_Down(bool down) { b_Mouse_Down_ = down; }
    /// The press went to the lower handle: drags move it.
    bool b_Dragging_Menor() const { return b_Dragging_Menor_; }
    void setB_Dragging_Menor(bool dragging) { b_Dragging_Menor_ = dragging; }
    /// The press went to the upper handle: drags move it.
    bool b_Dragging_Maior() const { return b_Dragging_Maior_; }
    void setB_Dragging_Maior(bool dragging) { b_Dragging_Maior_ = dragging; }
    /// Where the press happened.
    QPointF mouseDownPos() const { return mouseDownPos_; }
    void setMouseDownPos(QPointF position) { mouseDownPos_ = position; }
    /// The lower handle as last drawn.
    QRectF rectMenor() const { return rectMenor_; }
    void setRectMenor(const QRectF &rectangle) { rectMenor_ = rectangle; }
    /// The upper handle as last drawn.
    QRectF rectMaior() const { return rectMaior_; }
    void setRectMaior(const QRectF &rectangle) { rectMaior_ = rectangle; }
    /// The playhead's line as last drawn, and its knob.
    QRectF rectPlayhead() const { return rectPlayhead_; }
    QRectF rectKnob() const { return rectKnob_; }

    /// What keys move.
    StripPart chosenPart() const { return chosen_; }

    /// The frame number that a part represents: of a handle 0 to the number of frames, of the
    /// playhead that of a frame.
    std::uint64_t frameOf(StripPart part) const;
    /// The same in words.
    QString textOf(StripPart part) const;
    /// Moves a part to a frame number, as a drag does: what plays pauses, and handles are swapped
    /// when they pass each other; then the chosen one changes as well, so that keys go on moving
    /// the same one.
    void moveToFrame(StripPart part, std::uint64_t frame);
    /// The number of frames of the recording.
    std::uint64_t frameCount() const;
    /// Where the part was last drawn, in widget coordinates (upper left origin).
    QRect areaOf(StripPart part) const;
    /// Whether all pictures are there that can be shown.
    bool arePicturesComplete() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void chosenPartChanged();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void choose(StripPart part);
    void pauseWhatPlays();
    void store(range_rules::Handles handles, range_rules::Handle inHand);
    void announceMoves();
    /// Asks for the pictures of the recording at this width.
    void requestPictures();
    void place();
    void drawRuns(QPainter &painter);
    /// Where a selection may be: between the handles. None where there is no frame.
    std::optional<FrameRuns::Run> selectable() const;
    std::uint64_t selectableAt(double x, FrameRuns::Run within) const;
    void dropSelectionOutside(double x);
    /// Selects from where the press was.
    void selectTo(double x);
    /// A step of the selection by keys. False where nothing can be selected.
    bool extendSelection(int key);
    /// Whether the chosen part takes this key for itself.
    bool usesKey(const QKeyEvent &event) const;
    QRectF film() const;
    QRectF onFilm(range_rules::Stretch stretch) const;
    bool isOnKnob(QPointF position) const;
    void showWhatCanBeDragged(QPointF position);
    QPointF fromLowerLeft(QPointF position) const;
    QRectF fromLowerLeft(const QRectF &area) const;

    bool b_Mouse_Down_ = false;
    bool b_Dragging_Menor_ = false;
    bool b_Dragging_Maior_ = false;
    bool isDraggingPlayhead_ = false;
    /// The press was on none of these, and the pointer has hardly moved since.
    bool isClick_ = false;
    QPointF mouseDownPos_;
    /// Where the selection begins that is being made.
    std::optional<std::uint64_t> anchor_;
    QRectF rectMenor_;
    QRectF rectMaior_;
    QRectF rectPlayhead_;
    QRectF rectKnob_;

    TrimEditor *editor_ = nullptr;
    View_Cut_Preview *preview_ = nullptr;
    StripPictures *pictures_;
    StripPart chosen_ = StripPart::Playhead;
    CutHandle *parts_[3];
};
