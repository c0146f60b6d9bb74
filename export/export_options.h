// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/export_choices.h"
#include "export/size_estimator.h"

#include <QObject>
#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>

class Exporter;
class QAbstractButton;
class QAction;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QWidget;
class ScrollingOptions;

/// The controls in which an export is chosen, by their established names; borrowed.
struct ExportControls {
    QWidget *pageGIF;
    ScrollingOptions *gifOptions;
    QBoxLayout *customSizeRow; ///< Rows that fold where they have no room.
    QBoxLayout *customRateRow;
    QRadioButton *radioGIFOriginalDimension;
    QRadioButton *radioGIFCustomDimension;
    QLineEdit *textGIFWidth;
    QLineEdit *textGIFHeigth;
    QLabel *labelTimes;
    QCheckBox *checkGIFKeepAspectRatio;
    QLabel *labelDimensionHint;
    QRadioButton *radioGIFOriginalFPS;
    QRadioButton *radioGIFCustomFPS;
    QComboBox *comboGIFFPS;
    QLabel *labelSpeed;
    QComboBox *comboGIFSpeed;
    QLabel *labelQuality;
    QComboBox *comboGIFQuality;
    QLabel *labelFitUnder;
    QComboBox *comboFitUnder;
    QLabel *labelFitUnderHint;
    QAbstractButton *btnGIFSize75;
    QAbstractButton *btnGIFSize50;
    QLabel *labelGIFEstimate;
    QLabel *labelGIFSummary;
    QLabel *labelGIFThinned;
    QLabel *labelFitNote;      ///< What a limit that is too low makes worse.
    QLabel *labelInstructions; ///< Without a recording, behind what is to be done first.
    QAbstractButton *btnWebPGenerate;
    QLabel *labelFPS;
    QLabel *labelNote;
    QLabel *labelWebPLoops;
    QComboBox *comboGIFRepeat;
    QLineEdit *txtWebPLoops; ///< In which that list is typed.
    QLabel *labelWebPLoopsHint;
    QLabel *labelHold;
    QComboBox *comboGIFHold;
    const QAction *menuitemActionGIFExport; ///< Its shortcut works while a field has the focus.
};

/// Works the controls of the GIF tab: fills them in, ties width and height, says what is wrong with
/// what is typed and what the file will hold. It makes no file.
class ExportOptions : public QObject {
    Q_OBJECT

public:
    /// Fills the lists and listens to the controls. `exporter` is borrowed and outlives it.
    ExportOptions(const ExportControls &controls, Exporter &exporter, QObject *parent);

    /// Whether the GIF tab was last entered with a recording: what it offers can be used.
    bool isUsable() const { return isUsable_; }

    /// What is chosen; edits that have not been acted upon yet are finished first.
    ExportChoices choices();

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Fits the options to the recording, or disables them without one. What was chosen stays, from
    /// one recording and one start to the next; a size of one's own, for a recording of another
    /// size, only where it is not larger than that.
    void resetGIFOptions();
    /// Keeps what is chosen for the next start.
    void remember() const;
    // Each of these acts when its radio button is the one that is switched on: the recording's own
    // size or rate is written into the fields, or the fields are set free.
    void OnGIFOriginalResolution();
    void OnGIFCustomResolution();
    void OnGIFOriginalFPS();
    void OnGIFCustomFPS();
    /// A size field was edited: while the ratio is tied, the other side follows. A text that does
    /// not begin with a number other than 0 changes nothing.
    void OnGIFChangeWidth();
    void OnGIFChangeHeigth();
    /// The height follows the width when the ratio is tied.
    void OnGIFChangeKeepAspectRatio();

Q_SIGNALS:
    /// The tab was entered: whether its commands can be used may have changed.
    void entered();
    /// The file that would be made now may be another one.
    void edited(const ExportChoices &choices);

private:
    void listen();
    void fillQualities();
    /// Takes what was chosen at the last start.
    void recall();
    void adaptCustomSize();
    ExportChoices chosen() const;
    /// What is chosen once the edits that are under way will have been acted upon.
    ExportChoices choicesAfterEdits() const;
    /// Sends the actions of the size fields whose edits have not been acted upon yet.
    void finishEditingGIFSize();
    /// Says beside the size fields what is wrong with what is typed there, if anything.
    void updateGIFDimensionHint();
    /// Says beside the loop field what is wrong with what is typed there.
    void updateWebPLoopsHint();
    /// How often the file is to be played, as an encoder takes it: 0 for forever.
    QString loops() const;
    void fillRepeats();
    /// Says what the file will hold: frames, seconds, and the rate that comes of it.
    void updateGIFSummary();
    void fillLimits();
    /// The other encoder knows no limit.
    void enableLimit();
    /// Says what is wrong with the limit that is typed, if anything.
    void updateLimitHint();
    /// The two share a line, whose place is kept while it is empty.
    void showHints();
    /// Writes the limit with its unit, as it is understood.
    void finishLimit();
    /// Says how large the GIF will be: what is known of it, or the limit where that is less.
    void showEstimate();
    std::optional<std::uint64_t> limitOfGIF() const;
    FitLimit limit() const;
    /// Chooses a size of that share of the recording's.
    void chooseShare(int percent);
    /// Counts anew how large the GIF will be, while its tab is shown.
    void updateEstimate();
    /// The count alone: whether it is shown has changed, and not what is chosen.
    void estimate();
    /// Ratio that the typed size is tied to; none when it is free.
    std::optional<float> tiedAspectRatio() const;

    const ExportControls ui_;
    Exporter &exporter_;
    SizeEstimator estimator_;
    std::optional<std::uint64_t> estimate_; ///< bytes; none while nothing is known
    bool isExact_ = false;
    bool isUsable_ = false;
    bool isShown_ = false;
    bool isRecalled_ = false;
    QSize sizedFor_; ///< The recording's size that the size was chosen for.
};
