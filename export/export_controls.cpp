// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "ui_MainWindow.h"

#include <QKeyEvent>
#include <QLocale>

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

void AppDelegate::connectExportControls() {
    using Action = void (AppDelegate::*)(QObject *);
    // Not `clicked`: assistive technology switches without a click.
    const auto radio = [this](QRadioButton *button, Action action) {
        connect(button, &QRadioButton::toggled, this, [this, button, action](bool on) {
            if (on)
                (this->*action)(button);
        });
    };
    radio(ui->radioGIFOriginalDimension, &AppDelegate::OnGIFOriginalResolution);
    radio(ui->radioGIFCustomDimension, &AppDelegate::OnGIFCustomResolution);
    radio(ui->radioGIFOriginalFPS, &AppDelegate::OnGIFOriginalFPS);
    radio(ui->radioGIFCustomFPS, &AppDelegate::OnGIFCustomFPS);

    const auto field = [this](QLineEdit *edit, Action action) {
        connect(edit, &QLineEdit::returnPressed, this,
                [this, edit, action] { (this->*action)(edit); });
        // Also told after Return, and when an untouched field loses the focus.
        connect(edit, &QLineEdit::editingFinished, this, [this, edit, action] {
            if (edit->isModified())
                (this->*action)(edit);
        });
        connect(edit, &QLineEdit::textChanged, this, [this, edit] {
            // Assistive technology sets a text without typing: it is an edit as well. Those of our
            // own take this back.
            edit->setModified(true);
            updateGIFDimensionHint();
        });
    };
    field(ui->textGIFWidth, &AppDelegate::OnGIFChangeWidth);
    field(ui->textGIFHeigth, &AppDelegate::OnGIFChangeHeigth);
    connect(ui->txtWebPLoops, &QLineEdit::textChanged, this, &AppDelegate::updateWebPLoopsHint);

    auto *passage = new ShortcutPassage(*ui->menuitemActionGIFExport, this);
    for (QLineEdit *edit : {ui->textGIFWidth, ui->textGIFHeigth, ui->txtWebPLoops})
        edit->installEventFilter(passage);

    connect(ui->checkGIFKeepAspectRatio, &QCheckBox::toggled, this,
            [this] { OnGIFChangeKeepAspectRatio(ui->checkGIFKeepAspectRatio); });
    connectGIFQuality();
    for (const double speed : frame_timing::speeds)
        ui->comboGIFSpeed->addItem(QLocale().toString(speed) + QChar(u'×'), speed);
    ui->comboGIFSpeed->setCurrentIndex(ui->comboGIFSpeed->findData(1.0));
    for (const QComboBox *list : {ui->comboGIFFPS, ui->comboGIFSpeed})
        connect(list, &QComboBox::currentIndexChanged, this, &AppDelegate::updateGIFSummary);
    connect(ui->btnGIFExport, &QPushButton::clicked, this,
            [this] { OnGIFExport(ui->btnGIFExport); });
    connect(ui->menuitemActionGIFExport, &QAction::triggered, this,
            &AppDelegate::OnMenuActionGIFExport);
    connect(ui->btnWebPGenerate, &QPushButton::clicked, this,
            [this] { Generate_WebP(ui->btnWebPGenerate); });
    // From the event loop: assistive technology waits for the answer to its press, and would wait
    // until the panel ends.
    connect(ui->btnSaveResult, &QPushButton::clicked, this, &AppDelegate::saveUnsavedResult,
            Qt::QueuedConnection);
}
