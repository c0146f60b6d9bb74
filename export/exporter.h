// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/encoder_arguments.h"
#include "export/export_choices.h"
#include "export/export_fields.h"
#include "export/frame_timing.h"
#include "export/safe_move.h"

#include <QObject>
#include <QProcess>
#include <QSize>

#include <cstdint>
#include <functional>
#include <optional>
#include <span>

class Recorder;
class Surroundings;
class TrimEditor;
struct FitAttempt;
struct FitChoice;
struct FitLaw;
struct GifFileJob;
struct GifFileResult;
struct GifPlan;
struct MadeFile;
struct ToolExit;
struct ToolRun;
struct WebPPlan;

/// The desk of the exports: makes the GIF and the WebP of what is kept of the recording, runs and
/// watches the encoders, and sees to it that a finished file gets its place. What the user chose
/// comes to it as a value; it knows neither tabs nor controls.
class Exporter : public QObject {
    Q_OBJECT

public:
    /// What the user has chosen, as of now.
    using Choices = std::function<ExportChoices()>;

    /// The references are borrowed and outlive it.
    Exporter(Surroundings &surroundings, Recorder &recorder, TrimEditor &editor)
        : surroundings_(surroundings), recorder_(recorder), editor_(editor) {}

    ExportFields exporting;

    /// Where an export learns what it is to make; without it, the defaults.
    void setChoices(Choices choices) { choices_ = std::move(choices); }

    /// Who gives finished files their place; without one, the user is asked for it.
    using ResultTaker = std::function<void(const SaveRequest &made)>;
    void setResultTaker(ResultTaker taker) { takeResult_ = std::move(taker); }

    Surroundings &surroundings() const { return surroundings_; }
    const Recorder &recorder() const { return recorder_; }

    /// Whether an export may begin now: none is under way, and no sheet is up. Assistive technology
    /// reaches a control whose window is blocked by a dialog; an export within an export would
    /// empty the folders that the first one works in.
    bool mayExport() const;
    /// Whether a tool runs that reads the recording's files.
    bool isRunningTool() const { return watchedTool_ != nullptr; }

    /// Makes the GIF of the trimmed range and lets the user choose its place; an alert says why
    /// where that cannot be done. Does nothing while an export is under way.
    void OnGIFExport();
    /// The same, but the GIF is saved without asking, and `copyWanted` tells that it is there.
    void generateAndCopy();
    /// Likewise the WebP.
    void Generate_WebP();
    /// Likewise the MP4.
    void Generate_MP4();
    /// Ends the export that is under way: tool and encoder at once, the export itself when they
    /// have ended. Its files are removed, the recording stays.
    void cancelExport();

    // What an export would be -------------------------------------------------------------------

    /// Size of the recording's frames in pixels; none without a recording.
    std::optional<QSize> originalSize() const;
    /// Whether fewer than three frames are kept: too few for a moving picture.
    bool hasTooFewFrames() const;
    /// What is asked of a file, of what is kept of the recording.
    frame_timing::Request timingRequest(const ExportChoices &choices) const;
    /// The file of the first frame that is kept; empty where none is.
    QString firstKeptFile() const;
    /// Why no export of this range or with these sizes begins, in the user's words: fewer than
    /// three frames, or a size field that does not begin with a number other than 0. None when one
    /// may.
    std::optional<QString> refusal(const ExportChoices &choices) const;
    /// Why there is no file of the size that is typed, in the user's words: no plain number from 1
    /// to `longestSide` pixels. None when there may be one.
    std::optional<QString> sizeRefusal(const ExportChoices &choices, int longestSide) const;
    /// Why the program's own encoder makes no GIF of the size that is typed, in the user's words:
    /// no plain number from 1 to 65,535, or more memory than half of what is free. None when it
    /// does.
    std::optional<QString> GIFSizeRefusal(const ExportChoices &choices) const;

    /// What the GIF's encoder would be given, and what there is to know of the size beforehand.
    /// Nothing is written: the job has no file.
    GifPlan planGIF(const ExportChoices &choices) const;
    /// Likewise the WebP's.
    WebPPlan planWebP(const ExportChoices &choices) const;

    // A finished file without a place -----------------------------------------------------------

    /// Whether a finished export has no place of the user's yet, since the panel was cancelled or
    /// the place could not be used. It is in the export folder.
    bool hasUnsavedResult() const;
    /// Lets the user choose a place for it once more.
    void saveUnsavedResult();
    /// What an earlier start has left unsaved is this one's unsaved export; the rest of the export
    /// folder is emptied.
    void takeLeftFile();
    /// Says in the status line that there is one, and beside it whatever there is to say of it.
    void sayWhatIsUnsaved();
    /// The file that was made last, saved or not; none where it is no longer there.
    const FinishedFile *lastFile() const;
    /// Where the file that was made last can stay: one that is not saved yet is saved under its
    /// preset name first. Empty where there is none or, after an alert, where it cannot be saved.
    QString lastFileInItsPlace();
    /// To be asked before a new recording, a new export and the end of the program, all of which
    /// lose an unsaved export. False when nothing is in the way. True when something is: the caller
    /// does nothing, and `goOn` is called later if the user saves or discards the export.
    bool mustAskFirst(std::function<void()> goOn);

    // Running the tools -------------------------------------------------------------------------

    /// Runs a tool to its end while events are processed and returns all that it wrote. A progress
    /// sheet stays up, its bar where it is.
    ToolRun RunToolReadAllOutput(const QString &toolPath, const QStringList &arguments);
    /// Runs an encoder while events are processed and its error output moves the bar of the
    /// progress sheet. The sheet is closed when it returns, however the run ended, unless the run
    /// only prepares the next one. Paths in the arguments are relative to `workingFolder`.
    ToolExit RunToolWithProgress(const QString &toolPath, const QStringList &arguments,
                                 ProgressType type = PROGRESS_TYPE_GIF,
                                 const QString &workingFolder = {});
    /// The watched tool has written to its output: takes it and forgets it.
    void outData(QProcess &tool);
    /// A chunk of the watched tool's error output; empty at its end.
    void errData(const QByteArray &data);
    /// The watched tool has ended, or could not be started; nothing of it is handled afterwards.
    void terminated(int exitCode, QProcess::ExitStatus status);

Q_SIGNALS:
    /// There is a finished file without a place now, or there is none any more.
    void unsavedResultChanged();
    /// A file has been made: `lastFile`.
    void fileMade();
    /// It has its place and is wanted on the clipboard.
    void copyWanted();
    /// An earlier start has left one: `lastFile`.
    void fileLeft();
    /// It is somewhere else now, or gone.
    void fileMoved();

private:
    struct GifWish {
        bool mayLowerChosen = false; ///< Whatever fits under the limit, as the user has agreed.
        bool copied = false;
    };
    void generateGIF(GifWish wish);

    using Frames = std::span<const frame_timing::TimedFrame>;

    /// A file that a tool makes of the recording's files.
    struct FileFormat {
        int longestSide; // pixels
        frame_timing::Ticks ticks;
        const char *caption; // keys of texts: of the sheet, and of the note about a missing frame
        const char *gap;
        QString file;
        /// Makes the file of these frames.
        std::function<MadeFile(Frames frames, const ExportChoices &choices)> encode;
        /// Makes all of it again with what the user chose lowered; none where no limit is heeded.
        std::function<void()> makeLowered = {};
    };
    /// Makes such a file and lets the user choose its place; see `OnGIFExport`.
    void makeFile(const FileFormat &format);

    /// How a file is made to fit under the limit of the choices.
    struct Fitting {
        QString file;
        const FitChoice &asked; ///< What the choices ask for.
        const FitLaw &law;
        int mostAttempts;
        bool mayLowerChosen; ///< Whether a rate and a size that the user chose may be lowered.
        /// Makes the file `trial` with these choices, of which the colours are those of `choice`.
        /// It may be given up above `sizeLimit` bytes, where there is such a limit.
        std::function<FitAttempt(const ExportChoices &choices, const FitChoice &choice,
                                 const QString &trial, std::optional<std::uint64_t> sizeLimit)>
            attempt;
    };
    /// Makes the file with more and more given up until it fits.
    MadeFile makeFitting(const ExportChoices &choices, const Fitting &fitting);
    /// Asks whether the rate and the size that the user chose may be lowered; `makeAgain` is called
    /// if so.
    void askToLower(const ExportChoices &choices, std::function<void()> makeAgain);

    /// Makes the GIF with the program's own encoder, in threads of its own, while events are
    /// processed.
    MadeFile makeGIF(Frames frames, const ExportChoices &choices);
    /// Likewise so that it fits under the limit, whatever must be given up for that.
    MadeFile makeFittingGIF(const ExportChoices &choices, bool mayLowerChosen);
    GifFileResult runEncoder(GifFileJob &job);
    GifFileJob jobFor(Frames frames, const ExportChoices &choices) const;
    /// Stages the frames and makes the GIF by three runs of `ffmpeg`.
    MadeFile makeClassicGIF(Frames frames, const ExportChoices &choices);
    /// The three runs and the look at their result: why there is no GIF, or none.
    std::optional<QString> runClassicEncoder(Frames frames, const ExportChoices &choices);
    void generateWebP(bool mayLowerChosen);
    /// A WebP that is to be made, and how.
    struct WebPJob {
        Frames frames;
        const ExportChoices &choices;
        std::optional<int> lossyQuality; ///< Also tried; none for one that is exact.
        QString file;
        ProgressType type = PROGRESS_TYPE_WEBP;
    };
    /// Likewise for the WebP: why there is none, or none.
    std::optional<QString> encodeWebP(const WebPJob &job);
    /// Likewise so that it fits under the limit.
    MadeFile makeFittingWebP(Frames frames, const ExportChoices &choices, bool mayLowerChosen);
    /// How the size of the WebP follows what is given up, by what some of the pictures take.
    FitLaw lawOfWebP(Frames frames, const ExportChoices &choices, float tolerance);
    /// Bytes of these pictures as a WebP; 0 where there is none.
    qint64 sizeOfWebP(const ExportChoices &choices,
                      std::span<const encoder_arguments::WebPFrame> pictures,
                      const encoder_arguments::WebPCoding &coding);
    ToolExit runWebPEncoder(const ExportChoices &choices,
                            std::span<const encoder_arguments::WebPFrame> pictures,
                            const encoder_arguments::WebPCoding &coding, const QString &output,
                            ProgressType type);
    /// Likewise for the MP4.
    std::optional<QString> encodeMP4(Frames frames, const ExportChoices &choices);
    /// Scales the frames, each once, into files of their own in the export folder.
    std::optional<QString> scaleForWebP(Frames frames, const ExportChoices &choices);
    /// Starts the tool and waits for its end while events are processed; why it was not started, or
    /// none.
    std::optional<ToolExit> runWhileEventsTurn(QProcess &tool, const QString &toolPath,
                                               const QStringList &arguments);
    /// Empties the export folder and shows the sheet of an export, which can be cancelled, on the
    /// screen.
    void beginExport(const QString &caption);
    /// Takes the sheet down and shows the alert or removes what a cancelled export has left. True
    /// when the export has ended with that.
    bool endedWithoutResult(const std::optional<QString> &failure);
    /// Lets the user choose a place for a finished file, unless that is not wanted, and puts it
    /// there.
    void saveResult(const SaveRequest &request, Frames frames, frame_timing::Ticks ticks,
                    const ExportChoices &choices);
    void chooseResultsPlace();
    /// Gives it a preset name that is free. Whether it has one now; if not, an alert has said why.
    bool saveUnderPresetName();
    /// Why it is not there, or none.
    std::optional<QString> placeResult(const QString &path, Existing existing);
    void reportFailedPlace(const QString &path, const QString &reason);
    /// Says so in the status line, and the note behind it; what it says.
    QString sayWhereItIs(const QString &note);
    /// Whether the export that begins now is to be saved under its preset name straight away: that
    /// is a setting, and Shift says so this time.
    static bool mustNotAsk();
    void showUnsavedResult();
    void forgetResult();
    ExportChoices choices() const { return choices_ ? choices_() : ExportChoices(); }

    Surroundings &surroundings_;
    Recorder &recorder_;
    TrimEditor &editor_;
    Choices choices_;
    ResultTaker takeResult_;
    QProcess *watchedTool_ = nullptr; // while a run is waited for
};
