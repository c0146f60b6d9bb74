// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "trim/frame_runs.h"
#include "trim/range_rules.h"

#include <QPointF>
#include <QRectF>
#include <QWidget>

#include <cstdint>
#include <optional>

class CutHandle;
class TrimEditor;
class TrimFields;
class View_Cut_Preview;

/// The strip with two handles on which a part of the recording is chosen. The handles' places are
/// kept by the desk as percentages; the strip draws them, moves them, and asks the preview to
/// follow. It never works out frame numbers for others and never starts playback. While the preview
/// plays or is paused it shows a playhead instead, and nothing can be moved.
///
/// It is worked with the pointer and with the keyboard: Tab goes from one handle to the other,
/// arrow keys move the chosen one by a frame, Page Up and Page Down by a tenth of the recording,
/// Home and End to either end, Space plays and pauses. A drag between the handles, or Shift with
/// the same keys, selects a part; while paused the keys begin at the frame that is shown. Escape
/// and a click take the selection away. What was left out is hatched.
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
    /// The press hit the lower handle: drags move it.
    bool b_Dragging_Menor() const { return b_Dragging_Menor_; }
    void setB_Dragging_Menor(bool dragging) { b_Dragging_Menor_ = dragging; }
    /// The press hit the upper handle: drags move it.
    bool b_Dragging_Maior() const { return b_Dragging_Maior_; }
    void setB_Dragging_Maior(bool dragging) { b_Dragging_Maior_ = dragging; }
    /// Where the press happened.
    QPointF mouseDownPos() const { return mouseDownPos_; }
    void setMouseDownPos(QPointF position) { mouseDownPos_ = position; }
    /// The lower handle as last drawn; while playing or paused, the playhead as last drawn.
    QRectF rectMenor() const { return rectMenor_; }
    void setRectMenor(const QRectF &rectangle) { rectMenor_ = rectangle; }
    /// The upper handle as last drawn.
    QRectF rectMaior() const { return rectMaior_; }
    void setRectMaior(const QRectF &rectangle) { rectMaior_ = rectangle; }

    /// The handle that keys move.
    range_rules::Handle chosenHandle() const { return chosen_; }

    /// The frame number that a handle represents, 0 to the number of frames.
    std::uint64_t frameOf(range_rules::Handle handle) const;
    /// Moves a handle to a frame number, under the rules of a drag: not while playing or paused,
    /// and the two are swapped when they pass each other; then the chosen handle changes as well,
    /// so that keys go on moving the same one.
    void moveToFrame(range_rules::Handle handle, std::uint64_t frame);
    /// The number of frames of the recording.
    std::uint64_t frameCount() const;
    /// Where the handle was last drawn, in widget coordinates (upper left origin).
    QRect handleArea(range_rules::Handle handle) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void chosenHandleChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void choose(range_rules::Handle handle);
    /// Shows the frame at this handle while nothing plays.
    void preview(range_rules::Handle handle);
    void store(range_rules::Handles handles);
    void drawRuns(QPainter &painter);
    /// Where a selection may be: between the handles. None where there is no frame.
    std::optional<FrameRuns::Run> selectable() const;
    std::uint64_t selectableAt(double x, FrameRuns::Run within) const;
    /// A step of the selection by keys. False where nothing can be selected.
    bool extendSelection(int key);
    void drawPlayhead(QPainter &painter, const TrimFields &trim);
    void drawHandles(QPainter &painter, range_rules::Handles handles);
    QRectF fullHeight(range_rules::Stretch stretch) const;
    void showWhatCanBeDragged(double x);
    QPointF fromLowerLeft(QPointF position) const;

    bool b_Mouse_Down_ = false;
    bool b_Dragging_Menor_ = false;
    bool b_Dragging_Maior_ = false;
    QPointF mouseDownPos_;
    /// Where the selection begins that is being made.
    std::optional<std::uint64_t> anchor_;
    QRectF rectMenor_;
    QRectF rectMaior_;

    TrimEditor *editor_ = nullptr;
    View_Cut_Preview *preview_ = nullptr;
    range_rules::Handle chosen_ = range_rules::Handle::Menor;
    CutHandle *handles_[2];
};
