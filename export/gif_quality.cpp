// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "export/gif_file.h"
#include "export/gif_preset.h"
#include "export/size_text.h"
#include "platform/text_number.h"
#include "shell/settings.h"
#include "ui_MainWindow.h"

#include <QLocale>

namespace {

constexpr std::uint64_t partOfMemory = 2; // of what is free: half may be taken

} // namespace

void AppDelegate::connectGIFQuality() {
    QComboBox &list = *ui->comboGIFQuality;
    for (const GifPreset preset : gifPresets)
        list.addItem(qtTrId(presetKey(preset)), QString::fromLatin1(presetWord(preset)));
    const GifPreset remembered = presetOfWord(settings::readGIFQuality());
    list.setCurrentIndex(list.findData(QString::fromLatin1(presetWord(remembered))));
    connect(&list, &QComboBox::currentIndexChanged, this,
            [&list] { settings::writeGIFQuality(list.currentData().toString()); });
}

GifPreset AppDelegate::chosenGIFPreset() const {
    return presetOfWord(ui->comboGIFQuality->currentData().toString());
}

std::optional<QString> AppDelegate::GIFSizeRefusal() const {
    const struct {
        const QLineEdit *field;
        const QString &name;
    } fields[] = {{ui->textGIFWidth, texts.s_IDD_WIDTH()},
                  {ui->textGIFHeigth, texts.s_IDD_HEIGHT()}};
    for (const auto &[field, name] : fields) {
        const QString problem = sizeProblemText(sizeTextProblem(field->text()));
        if (!problem.isEmpty())
            return qtTrId("IDD_SIZE_HINT").arg(name, problem);
    }
    const std::optional<MemoryState> memory = recording.memory();
    if (!memory)
        return std::nullopt;
    const QSize size(static_cast<int>(integerValue(ui->textGIFWidth->text())),
                     static_cast<int>(integerValue(ui->textGIFHeigth->text())));
    const bool stored = recording.array_Images && !recording.array_Images->empty();
    const QSize recorded =
        stored ? recording.array_Images->front().size() : originalSize().value_or(QSize(0, 0));
    const std::uint64_t needed = gifWorkingMemory(recorded, size);
    const std::uint64_t limit = memory->available / partOfMemory;
    if (needed <= limit)
        return std::nullopt;
    const QLocale locale;
    const auto amount = [&locale](std::uint64_t bytes) {
        return locale.formattedDataSize(static_cast<qint64>(bytes));
    };
    return qtTrId("IDD_GIF_TOO_LARGE")
        .arg(QString::number(size.width()), QString::number(size.height()), amount(needed),
             amount(limit));
}
