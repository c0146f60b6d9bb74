// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "export/aspect_ratio.h"
#include "export/size_text.h"
#include "platform/text_number.h"
#include "ui_MainWindow.h"

#include <algorithm>

namespace {

/// Gives the field a text of ours: it is not an edit that still waits for its action.
void write(QLineEdit &field, const QString &text) {
    field.setText(text);
    field.setModified(false);
}

} // namespace

void AppDelegate::resetGIFOptions() {
    const bool exists = surroundings.firstFrameFileExists();
    QWidget *const controls[] = {ui->radioGIFOriginalDimension,
                                 ui->radioGIFCustomDimension,
                                 ui->textGIFWidth,
                                 ui->textGIFHeigth,
                                 ui->checkGIFKeepAspectRatio,
                                 ui->radioGIFOriginalFPS,
                                 ui->radioGIFCustomFPS,
                                 ui->comboGIFFPS,
                                 ui->labelQuality,
                                 ui->comboGIFQuality,
                                 ui->labelSpeed,
                                 ui->comboGIFSpeed,
                                 ui->btnGIFExport};
    for (QWidget *control : controls)
        control->setEnabled(exists);
    ui->menuitemActionGIFExport->setEnabled(exists);
    ui->txtWebPLoops->setEnabled(exists);
    ui->btnWebPGenerate->setEnabled(exists);
    if (exists) {
        ui->radioGIFOriginalDimension->setChecked(true);
        OnGIFOriginalResolution(ui->radioGIFOriginalDimension);
        ui->radioGIFOriginalFPS->setChecked(true);
        OnGIFOriginalFPS(ui->radioGIFOriginalFPS);
        ui->comboGIFSpeed->setCurrentIndex(ui->comboGIFSpeed->findData(1.0));
    }
    updateGIFSummary();
}

void AppDelegate::OnGIFOriginalResolution(QObject *) {
    if (!ui->radioGIFOriginalDimension->isChecked())
        return;
    ui->radioGIFCustomDimension->setChecked(false);
    ui->textGIFWidth->setEnabled(false);
    ui->textGIFHeigth->setEnabled(false);
    ui->checkGIFKeepAspectRatio->setEnabled(false);
    if (const std::optional<QSize> size = originalSize()) {
        write(*ui->textGIFWidth, QString::number(size->width()));
        write(*ui->textGIFHeigth, QString::number(size->height()));
    }
    updateGIFDimensionHint();
}

void AppDelegate::OnGIFCustomResolution(QObject *) {
    if (!ui->radioGIFCustomDimension->isChecked())
        return;
    ui->radioGIFOriginalDimension->setChecked(false);
    ui->textGIFWidth->setEnabled(true);
    ui->textGIFHeigth->setEnabled(true);
    ui->checkGIFKeepAspectRatio->setEnabled(true);
    updateGIFDimensionHint();
}

void AppDelegate::OnGIFOriginalFPS(QObject *) {
    if (!ui->radioGIFOriginalFPS->isChecked())
        return;
    ui->radioGIFCustomFPS->setChecked(false);
    ui->comboGIFFPS->setEnabled(false);
    // The list is never without a selection, whatever rate was measured.
    const auto entries = static_cast<std::uint64_t>(ui->comboGIFFPS->count());
    const std::uint64_t rate = std::clamp<std::uint64_t>(recording.u_Record_Current_FPS(), 1,
                                                         std::max<std::uint64_t>(entries, 1));
    ui->comboGIFFPS->setCurrentIndex(static_cast<int>(rate) - 1);
    updateGIFSummary();
}

void AppDelegate::OnGIFCustomFPS(QObject *) {
    if (!ui->radioGIFCustomFPS->isChecked())
        return;
    ui->radioGIFOriginalFPS->setChecked(false);
    ui->comboGIFFPS->setEnabled(true);
    updateGIFSummary();
}

std::optional<float> AppDelegate::tiedAspectRatio() const {
    const std::optional<QSize> size = originalSize();
    if (!ui->checkGIFKeepAspectRatio->isChecked() || !size)
        return std::nullopt;
    const float ratio = aspect_ratio::ratio(size->width(), size->height());
    // Without a picture there is no ratio either.
    return std::isfinite(ratio) && ratio > 0.0f ? std::optional(ratio) : std::nullopt;
}

void AppDelegate::OnGIFChangeWidth(QObject *) {
    ui->textGIFWidth->setModified(false);
    const std::optional<float> ratio = tiedAspectRatio();
    const float width = floatValue(ui->textGIFWidth->text());
    if (!ratio || width == 0.0f)
        return;
    write(*ui->textGIFWidth, QString::number(aspect_ratio::cut(width)));
    write(*ui->textGIFHeigth, QString::number(aspect_ratio::heightForWidth(width, *ratio)));
}

void AppDelegate::OnGIFChangeHeigth(QObject *) {
    ui->textGIFHeigth->setModified(false);
    const std::optional<float> ratio = tiedAspectRatio();
    const float height = floatValue(ui->textGIFHeigth->text());
    if (!ratio || height == 0.0f)
        return;
    write(*ui->textGIFWidth, QString::number(aspect_ratio::widthForHeight(height, *ratio)));
    write(*ui->textGIFHeigth, QString::number(aspect_ratio::cut(height)));
}

void AppDelegate::OnGIFChangeKeepAspectRatio(QObject *sender) { OnGIFChangeWidth(sender); }

void AppDelegate::finishEditingGIFSize() {
    // The menu's shortcut leaves the focus in the field: its edit must not miss its action.
    if (ui->textGIFWidth->isModified())
        OnGIFChangeWidth(ui->textGIFWidth);
    if (ui->textGIFHeigth->isModified())
        OnGIFChangeHeigth(ui->textGIFHeigth);
}

void AppDelegate::updateGIFDimensionHint() {
    QString hint;
    const struct {
        QLineEdit *field;
        const QString &name;
    } fields[] = {{ui->textGIFWidth, texts.s_IDD_WIDTH()},
                  {ui->textGIFHeigth, texts.s_IDD_HEIGHT()}};
    for (const auto &[field, name] : fields) {
        const QString problem =
            field->isEnabled() ? sizeProblemText(sizeTextProblem(field->text())) : QString();
        field->setAccessibleDescription(problem);
        if (hint.isEmpty() && !problem.isEmpty())
            hint = qtTrId("IDD_SIZE_HINT").arg(name, problem);
    }
    ui->labelDimensionHint->setText(hint);
    ui->labelDimensionHint->setToolTip(hint);
    ui->labelDimensionHint->setVisible(!hint.isEmpty());
}
