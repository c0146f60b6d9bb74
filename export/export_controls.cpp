// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/export_options.h"
#include "export/exporter.h"
#include "shell/settings.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QRadioButton>

namespace {

/// Lets the export's shortcut reach the menu while a field has the focus: a line of text would take
/// it for the end of the line, which has a key of its own.
class ShortcutPassage : public QObject {
public:
    explicit ShortcutPassage(const QAction &item, QObject *parent) : QObject(parent), item_(item) {}

    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() != QEvent::ShortcutOverride)
            return false;
        const QKeyCombination keys = static_cast<QKeyEvent *>(event)->keyCombination();
        if (!item_.shortcuts().contains(QKeySequence(keys)))
            return false;
        event->ignore();
        return true;
    }

private:
    const QAction &item_;
};

} // namespace

ExportOptions::ExportOptions(const ExportControls &controls, Exporter &exporter, QObject *parent)
    : QObject(parent), ui_(controls), exporter_(exporter) {
    listen();
}

void ExportOptions::listen() {
    using Action = void (ExportOptions::*)();
    // Not `clicked`: assistive technology switches without a click.
    const auto radio = [this](QRadioButton *button, Action action) {
        connect(button, &QRadioButton::toggled, this, [this, action](bool on) {
            if (on)
                (this->*action)();
        });
    };
    radio(ui_.radioGIFOriginalDimension, &ExportOptions::OnGIFOriginalResolution);
    radio(ui_.radioGIFCustomDimension, &ExportOptions::OnGIFCustomResolution);
    radio(ui_.radioGIFOriginalFPS, &ExportOptions::OnGIFOriginalFPS);
    radio(ui_.radioGIFCustomFPS, &ExportOptions::OnGIFCustomFPS);

    const auto field = [this](QLineEdit *edit, Action action) {
        connect(edit, &QLineEdit::returnPressed, this, [this, action] { (this->*action)(); });
        // Also told after Return, and when an untouched field loses the focus.
        connect(edit, &QLineEdit::editingFinished, this, [this, edit, action] {
            if (edit->isModified())
                (this->*action)();
        });
        connect(edit, &QLineEdit::textChanged, this, [this, edit] {
            // Assistive technology sets a text without typing: it is an edit as well. Those of our
            // own take this back.
            edit->setModified(true);
            updateGIFDimensionHint();
        });
    };
    field(ui_.textGIFWidth, &ExportOptions::OnGIFChangeWidth);
    field(ui_.textGIFHeigth, &ExportOptions::OnGIFChangeHeigth);
    connect(ui_.txtWebPLoops, &QLineEdit::textChanged, this, &ExportOptions::updateWebPLoopsHint);

    auto *passage = new ShortcutPassage(*ui_.menuitemActionGIFExport, this);
    for (QLineEdit *edit : {ui_.textGIFWidth, ui_.textGIFHeigth, ui_.txtWebPLoops})
        edit->installEventFilter(passage);

    connect(ui_.checkGIFKeepAspectRatio, &QCheckBox::toggled, this,
            &ExportOptions::OnGIFChangeKeepAspectRatio);
    fillQualities();
    for (const double speed : frame_timing::speeds)
        ui_.comboGIFSpeed->addItem(QLocale().toString(speed) + QChar(u'×'), speed);
    ui_.comboGIFSpeed->setCurrentIndex(ui_.comboGIFSpeed->findData(1.0));
    for (const QComboBox *list : {ui_.comboGIFFPS, ui_.comboGIFSpeed})
        connect(list, &QComboBox::currentIndexChanged, this, &ExportOptions::updateGIFSummary);
}

void ExportOptions::fillQualities() {
    QComboBox &list = *ui_.comboGIFQuality;
    for (const GifPreset preset : gifPresets)
        list.addItem(qtTrId(presetKey(preset)), QString::fromLatin1(presetWord(preset)));
    const GifPreset remembered = presetOfWord(settings::readGIFQuality());
    list.setCurrentIndex(list.findData(QString::fromLatin1(presetWord(remembered))));
    connect(&list, &QComboBox::currentIndexChanged, this,
            [&list] { settings::writeGIFQuality(list.currentData().toString()); });
}
