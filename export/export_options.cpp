// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/export_options.h"

#include "export/aspect_ratio.h"
#include "export/exporter.h"
#include "export/loops_text.h"
#include "export/size_text.h"
#include "platform/text_number.h"
#include "record/recorder.h"
#include "shell/settings.h"
#include "shell/surroundings.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QRadioButton>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Gives the field a text of ours: it is not an edit that still waits for its action.
void write(QLineEdit &field, const QString &text) {
    field.setText(text);
    field.setModified(false);
}

// What is remembered, by its name in the settings. The size is empty for the recording's own, and
// so is the rate.
constexpr auto sizeChoice = "ExportSize";
constexpr auto aspectChoice = "ExportKeepAspectRatio";
constexpr auto rateChoice = "ExportRate";
constexpr auto speedChoice = "ExportSpeed";
constexpr auto limitChoice = "ExportLimit"; // in MB
constexpr auto loopsChoice = "WebPLoops";
constexpr auto holdChoice = "ExportHold"; // in seconds
constexpr double bytesPerMegabyte = 1e6;
const QString yes = QStringLiteral("1");
const QString no = QStringLiteral("0");

} // namespace

void ExportOptions::resetGIFOptions() {
    isUsable_ = exporter_.surroundings().firstFrameFileExists();
    Q_EMIT entered();
    QWidget *const controls[] = {ui_.radioGIFOriginalDimension,
                                 ui_.radioGIFCustomDimension,
                                 ui_.textGIFWidth,
                                 ui_.textGIFHeigth,
                                 ui_.labelTimes,
                                 ui_.checkGIFKeepAspectRatio,
                                 ui_.radioGIFOriginalFPS,
                                 ui_.radioGIFCustomFPS,
                                 ui_.comboGIFFPS,
                                 ui_.labelQuality,
                                 ui_.comboGIFQuality,
                                 ui_.btnGIFSize75,
                                 ui_.btnGIFSize50,
                                 ui_.labelSpeed,
                                 ui_.comboGIFSpeed,
                                 ui_.labelFPS,
                                 ui_.labelNote,
                                 ui_.labelWebPLoops,
                                 ui_.comboGIFRepeat,
                                 ui_.labelHold,
                                 ui_.comboGIFHold};
    for (QWidget *control : controls)
        control->setEnabled(isUsable_);
    enableLimit();
    if (isUsable_) {
        if (!std::exchange(isRecalled_, true))
            recall();
        adaptCustomSize();
        OnGIFOriginalResolution();
        OnGIFCustomResolution();
        OnGIFOriginalFPS();
        OnGIFCustomFPS();
    }
    updateGIFSummary();
}

void ExportOptions::adaptCustomSize() {
    const std::optional<QSize> size = exporter_.originalSize();
    if (!size || std::exchange(sizedFor_, *size) == *size ||
        !ui_.radioGIFCustomDimension->isChecked())
        return;
    OnGIFChangeWidth();
    if (integerValue(ui_.textGIFWidth->text()) > size->width() ||
        integerValue(ui_.textGIFHeigth->text()) > size->height())
        ui_.radioGIFOriginalDimension->setChecked(true);
}

void ExportOptions::recall() {
    ui_.checkGIFKeepAspectRatio->setChecked(settings::readChoice(aspectChoice) != no);
    const QStringList sides = settings::readChoice(sizeChoice).split(QLatin1Char('x'));
    const bool isSize = sides.size() == 2 && sizeTextProblem(sides[0]) == SizeTextProblem::None &&
                        sizeTextProblem(sides[1]) == SizeTextProblem::None;
    if (isSize) {
        write(*ui_.textGIFWidth, sides[0]);
        write(*ui_.textGIFHeigth, sides[1]);
    }
    (isSize ? ui_.radioGIFCustomDimension : ui_.radioGIFOriginalDimension)->setChecked(true);
    const std::int64_t rate = integerValue(settings::readChoice(rateChoice));
    const bool isRate = rate >= std::int64_t{lowestRate} && rate <= std::int64_t{highestRate};
    if (isRate)
        ui_.comboGIFFPS->setCurrentIndex(static_cast<int>(rate - std::int64_t{lowestRate}));
    (isRate ? ui_.radioGIFCustomFPS : ui_.radioGIFOriginalFPS)->setChecked(true);
    const int speed = ui_.comboGIFSpeed->findData(settings::readChoice(speedChoice).toDouble());
    if (speed >= 0)
        ui_.comboGIFSpeed->setCurrentIndex(speed);
    const double limit = settings::readChoice(limitChoice).toDouble();
    if (const int offered = ui_.comboFitUnder->findData(limit); limit > 0 && offered >= 0)
        ui_.comboFitUnder->setCurrentIndex(offered);
    else if (limit > 0)
        ui_.comboFitUnder->setEditText(
            fitLimitText(static_cast<std::uint64_t>(std::llround(limit * bytesPerMegabyte))));
    const QString loops = settings::readChoice(loopsChoice);
    if (!loops.isEmpty() && loopsTextProblem(loops) == LoopsTextProblem::None)
        ui_.txtWebPLoops->setText(loops == QLatin1String("0")   ? qtTrId("IDD_LOOP_FOREVER")
                                  : loops == QLatin1String("1") ? qtTrId("IDD_LOOP_ONCE")
                                                                : loops);
    const int hold = ui_.comboGIFHold->findData(settings::readChoice(holdChoice).toDouble());
    if (hold >= 0)
        ui_.comboGIFHold->setCurrentIndex(hold);
}

void ExportOptions::remember() const {
    if (!isRecalled_)
        return; // nobody has seen them
    const ExportChoices now = chosen();
    settings::writeChoice(sizeChoice,
                          now.customSize ? now.width + QLatin1Char('x') + now.height : QString());
    settings::writeChoice(aspectChoice, ui_.checkGIFKeepAspectRatio->isChecked() ? yes : no);
    settings::writeChoice(rateChoice, now.rate ? QString::number(*now.rate) : QString());
    settings::writeChoice(speedChoice, QString::number(now.speed));
    if (!now.limit.isWrong)
        settings::writeChoice(
            limitChoice, now.limit.bytes ? QString::number(static_cast<double>(*now.limit.bytes) /
                                                               bytesPerMegabyte,
                                                           'g', QLocale::FloatingPointShortest)
                                         : QString());
    settings::writeChoice(loopsChoice, now.loops);
    settings::writeChoice(holdChoice, QString::number(now.hold));
}

void ExportOptions::OnGIFOriginalResolution() {
    if (!ui_.radioGIFOriginalDimension->isChecked())
        return;
    ui_.radioGIFCustomDimension->setChecked(false);
    ui_.textGIFWidth->setEnabled(false);
    ui_.textGIFHeigth->setEnabled(false);
    ui_.labelTimes->setEnabled(false);
    ui_.checkGIFKeepAspectRatio->setEnabled(false);
    if (const std::optional<QSize> size = exporter_.originalSize()) {
        write(*ui_.textGIFWidth, QString::number(size->width()));
        write(*ui_.textGIFHeigth, QString::number(size->height()));
    }
    updateGIFDimensionHint();
}

void ExportOptions::OnGIFCustomResolution() {
    if (!ui_.radioGIFCustomDimension->isChecked())
        return;
    ui_.radioGIFOriginalDimension->setChecked(false);
    ui_.textGIFWidth->setEnabled(true);
    ui_.textGIFHeigth->setEnabled(true);
    ui_.labelTimes->setEnabled(true);
    ui_.checkGIFKeepAspectRatio->setEnabled(true);
    updateGIFDimensionHint();
}

void ExportOptions::OnGIFOriginalFPS() {
    if (!ui_.radioGIFOriginalFPS->isChecked())
        return;
    ui_.radioGIFCustomFPS->setChecked(false);
    ui_.comboGIFFPS->setEnabled(false);
    // The list is never without a selection, whatever rate was measured.
    const auto entries = static_cast<std::uint64_t>(ui_.comboGIFFPS->count());
    const std::uint64_t rate =
        std::clamp<std::uint64_t>(exporter_.recorder().recording.u_Record_Current_FPS(), 1,
                                  std::max<std::uint64_t>(entries, 1));
    ui_.comboGIFFPS->setCurrentIndex(static_cast<int>(rate) - 1);
    updateGIFSummary();
}

void ExportOptions::OnGIFCustomFPS() {
    if (!ui_.radioGIFCustomFPS->isChecked())
        return;
    ui_.radioGIFOriginalFPS->setChecked(false);
    ui_.comboGIFFPS->setEnabled(true);
    updateGIFSummary();
}

std::optional<float> ExportOptions::tiedAspectRatio() const {
    const std::optional<QSize> size = exporter_.originalSize();
    if (!ui_.checkGIFKeepAspectRatio->isChecked() || !size)
        return std::nullopt;
    const float ratio = aspect_ratio::ratio(size->width(), size->height());
    // Without a picture there is no ratio either.
    return std::isfinite(ratio) && ratio > 0.0f ? std::optional(ratio) : std::nullopt;
}

void ExportOptions::OnGIFChangeWidth() {
    ui_.textGIFWidth->setModified(false);
    const std::optional<float> ratio = tiedAspectRatio();
    const float width = floatValue(ui_.textGIFWidth->text());
    if (!ratio || width == 0.0f)
        return;
    write(*ui_.textGIFWidth, QString::number(aspect_ratio::cut(width)));
    write(*ui_.textGIFHeigth, QString::number(aspect_ratio::heightForWidth(width, *ratio)));
}

void ExportOptions::OnGIFChangeHeigth() {
    ui_.textGIFHeigth->setModified(false);
    const std::optional<float> ratio = tiedAspectRatio();
    const float height = floatValue(ui_.textGIFHeigth->text());
    if (!ratio || height == 0.0f)
        return;
    write(*ui_.textGIFWidth, QString::number(aspect_ratio::widthForHeight(height, *ratio)));
    write(*ui_.textGIFHeigth, QString::number(aspect_ratio::cut(height)));
}

void ExportOptions::OnGIFChangeKeepAspectRatio() { OnGIFChangeWidth(); }

void ExportOptions::finishEditingGIFSize() {
    // The menu's shortcut leaves the focus in the field: its edit must not miss its action.
    if (ui_.textGIFWidth->isModified())
        OnGIFChangeWidth();
    if (ui_.textGIFHeigth->isModified())
        OnGIFChangeHeigth();
}

void ExportOptions::updateGIFDimensionHint() {
    QString hint;
    for (const auto &[side, field] : {std::pair(PictureSide::Width, ui_.textGIFWidth),
                                      {PictureSide::Height, ui_.textGIFHeigth}}) {
        // Without a recording no size is chosen, and the fields are empty.
        const bool counts = field->isEnabled() && ui_.radioGIFCustomDimension->isChecked();
        const QString problem =
            counts ? sizeProblemText(side, sizeTextProblem(field->text())) : QString();
        field->setAccessibleDescription(problem);
        if (hint.isEmpty())
            hint = problem;
    }
    ui_.labelDimensionHint->setText(hint);
    ui_.labelDimensionHint->setToolTip(hint);
}

QString ExportOptions::loops() const {
    const QString text = ui_.txtWebPLoops->text();
    if (text == qtTrId("IDD_LOOP_FOREVER"))
        return QStringLiteral("0");
    return text == qtTrId("IDD_LOOP_ONCE") ? QStringLiteral("1") : text;
}

FitLimit ExportOptions::limit() const {
    const QString text = ui_.comboFitUnder->currentText();
    return text == qtTrId("IDD_NO_LIMIT") ? FitLimit() : fitLimitOf(text);
}

void ExportOptions::updateLimitHint() {
    const QString hint = limit().isWrong ? qtTrId("IDD_LIMIT_NOT_NUMBER") : QString();
    ui_.comboFitUnder->setAccessibleDescription(hint);
    ui_.labelFitUnderHint->setText(hint);
    showHints();
}

void ExportOptions::showHints() {
    const bool ofLoops = !ui_.labelWebPLoopsHint->text().isEmpty();
    ui_.labelWebPLoopsHint->setVisible(ofLoops);
    ui_.labelFitUnderHint->setVisible(!ofLoops || !ui_.labelFitUnderHint->text().isEmpty());
}

void ExportOptions::enableLimit() {
    const bool isKnown =
        presetOfWord(ui_.comboGIFQuality->currentData().toString()) != GifPreset::Classic;
    for (QWidget *control :
         {static_cast<QWidget *>(ui_.labelFitUnder), static_cast<QWidget *>(ui_.comboFitUnder)})
        control->setEnabled(isUsable_ && isKnown);
    showEstimate();
}

ExportChoices ExportOptions::choicesAfterEdits() const {
    ExportChoices choices = chosen();
    const std::optional<float> ratio = tiedAspectRatio();
    const float width = floatValue(choices.width);
    const float height = floatValue(choices.height);
    if (ratio && ui_.textGIFWidth->isModified() && width != 0.0f)
        choices.height = QString::number(aspect_ratio::heightForWidth(width, *ratio));
    else if (ratio && ui_.textGIFHeigth->isModified() && height != 0.0f)
        choices.width = QString::number(aspect_ratio::widthForHeight(height, *ratio));
    return choices;
}

void ExportOptions::chooseShare(int percent) {
    const std::optional<QSize> size = exporter_.originalSize();
    if (!size)
        return;
    const auto share = [percent](int side) {
        return QString::number(std::max(1, (side * percent + 50) / 100));
    };
    ui_.radioGIFCustomDimension->setChecked(true);
    write(*ui_.textGIFWidth, share(size->width()));
    write(*ui_.textGIFHeigth, share(size->height()));
}

void ExportOptions::updateEstimate() {
    if (isUsable_)
        Q_EMIT edited(choicesAfterEdits());
    estimate();
}

void ExportOptions::estimate() {
    if (isShown_ && isUsable_)
        estimator_.request([this] { return choicesAfterEdits(); });
    else
        estimator_.stop();
}

ExportChoices ExportOptions::choices() {
    finishEditingGIFSize();
    remember();
    return chosen();
}

ExportChoices ExportOptions::chosen() const {
    ExportChoices chosen{.width = ui_.textGIFWidth->text(),
                         .height = ui_.textGIFHeigth->text(),
                         .loops = loops(),
                         .preset = presetOfWord(ui_.comboGIFQuality->currentData().toString()),
                         .speed = ui_.comboGIFSpeed->currentData().toDouble(),
                         .hold = ui_.comboGIFHold->currentData().toDouble(),
                         .customSize = ui_.radioGIFCustomDimension->isChecked(),
                         .limit = limit()};
    if (ui_.radioGIFCustomFPS->isChecked())
        chosen.rate = ui_.comboGIFFPS->currentIndex() + static_cast<int>(lowestRate);
    return chosen;
}
