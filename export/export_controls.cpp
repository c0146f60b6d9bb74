// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/export_options.h"
#include "export/exporter.h"
#include "export/return_key.h"
#include "export/scrolling_options.h"
#include "shell/number_text.h"
#include "shell/settings.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QRadioButton>

namespace {

constexpr double largeType = 1.3; // of the desktop's font
constexpr int offeredLoops[] = {2, 3, 5, 10};
constexpr double offeredHolds[] = {0, 0.5, 1, 2, 3, 4, 5}; // seconds

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
    : QObject(parent), ui_(controls), exporter_(exporter), estimator_(exporter, this) {
    ui_.gifOptions->addFoldingRow(*ui_.customSizeRow);
    ui_.gifOptions->addFoldingRow(*ui_.customRateRow);
    listen();
    auto *key = new ReturnKey(*ui_.pageGIF, this);
    key->addField(*ui_.textGIFWidth, [this] { OnGIFChangeWidth(); });
    key->addField(*ui_.textGIFHeigth, [this] { OnGIFChangeHeigth(); });
    key->addField(*ui_.comboFitUnder, [this] { finishLimit(); });
    key->addField(*ui_.comboGIFRepeat, [] {}); // it is heeded as it is typed
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
        // Also emitted after Return, and when an untouched field loses the focus.
        connect(edit, &QLineEdit::editingFinished, this, [this, edit, action] {
            if (edit->isModified())
                (this->*action)();
        });
        connect(edit, &QLineEdit::textChanged, this, [this, edit] {
            // Assistive technology sets a text without typing: it is an edit as well. Those of our
            // own take this back.
            edit->setModified(true);
            updateGIFDimensionHint();
            updateEstimate();
        });
    };
    field(ui_.textGIFWidth, &ExportOptions::OnGIFChangeWidth);
    field(ui_.textGIFHeigth, &ExportOptions::OnGIFChangeHeigth);
    fillRepeats();

    auto *passage = new ShortcutPassage(*ui_.menuitemActionGIFExport, this);
    // An editable list has the focus itself, and hands on what is typed.
    for (QWidget *edit : std::initializer_list<QWidget *>{ui_.textGIFWidth, ui_.textGIFHeigth,
                                                          ui_.comboGIFRepeat, ui_.comboFitUnder})
        edit->installEventFilter(passage);

    connect(ui_.checkGIFKeepAspectRatio, &QCheckBox::toggled, this,
            &ExportOptions::OnGIFChangeKeepAspectRatio);
    fillQualities();
    for (const double speed : frame_timing::speeds)
        ui_.comboGIFSpeed->addItem(QLocale().toString(speed) + QChar(u'×'), speed);
    ui_.comboGIFSpeed->setCurrentIndex(ui_.comboGIFSpeed->findData(1.0));
    fillLimits();
    ui_.labelGIFEstimate->installEventFilter(this);
    for (QComboBox *list :
         {ui_.comboGIFFPS, ui_.comboGIFQuality, ui_.comboFitUnder, ui_.comboGIFSpeed})
        list->installEventFilter(this);
    connect(ui_.btnGIFSize75, &QAbstractButton::clicked, this, [this] { chooseShare(75); });
    connect(ui_.btnGIFSize50, &QAbstractButton::clicked, this, [this] { chooseShare(50); });
    QFont large = ui_.labelGIFEstimate->font();
    large.setPointSizeF(large.pointSizeF() * largeType);
    large.setBold(true);
    ui_.labelGIFEstimate->setFont(large);
    connect(&estimator_, &SizeEstimator::unknown, this, [this] {
        estimate_.reset();
        showEstimate();
        ui_.btnWebPGenerate->setToolTip(qtTrId("IDD_GENERATE_WEBP_TIP"));
    });
    connect(&estimator_, &SizeEstimator::estimated, this, [this](quint64 bytes, bool isExact) {
        estimate_ = bytes;
        isExact_ = isExact;
        showEstimate();
    });
    connect(&estimator_, &SizeEstimator::webpEstimated, this, [this](quint64 bytes) {
        ui_.btnWebPGenerate->setToolTip(qtTrId("IDD_GENERATE_WEBP_TIP") + u'\n' +
                                        qtTrId("IDD_WEBP_ABOUT").arg(number_text::bytes(bytes)));
    });
    for (const QComboBox *list : {ui_.comboGIFFPS, ui_.comboGIFSpeed, ui_.comboGIFHold})
        connect(list, &QComboBox::currentIndexChanged, this, &ExportOptions::updateGIFSummary);
}

void ExportOptions::fillQualities() {
    QComboBox &list = *ui_.comboGIFQuality;
    for (const GifPreset preset : gifPresets)
        list.addItem(qtTrId(presetKey(preset)), QString::fromLatin1(presetWord(preset)));
    const GifPreset remembered = presetOfWord(settings::readGIFQuality());
    list.setCurrentIndex(list.findData(QString::fromLatin1(presetWord(remembered))));
    connect(&list, &QComboBox::currentIndexChanged, this, [this, &list] {
        settings::writeGIFQuality(list.currentData().toString());
        enableLimit();
        updateEstimate();
    });
}

bool ExportOptions::eventFilter(QObject *watched, QEvent *event) {
    // Whoever scrolls the options does not mean to change the list beneath the pointer.
    if (event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    if (watched != ui_.labelGIFEstimate)
        return QObject::eventFilter(watched, event);
    // It is on the screen as long as its tab is.
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        isShown_ = event->type() == QEvent::Show;
        estimate();
    }
    return QObject::eventFilter(watched, event);
}

void ExportOptions::fillRepeats() {
    QComboBox &list = *ui_.comboGIFRepeat;
    list.setLineEdit(ui_.txtWebPLoops);
    // It would make a 10 of a 1.
    list.setCompleter(nullptr);
    list.addItems({qtTrId("IDD_LOOP_FOREVER"), qtTrId("IDD_LOOP_ONCE")});
    for (const int times : offeredLoops)
        list.addItem(QString::number(times));
    connect(ui_.txtWebPLoops, &QLineEdit::textChanged, this, [this] {
        updateWebPLoopsHint();
        updateEstimate();
    });
    for (const double hold : offeredHolds)
        ui_.comboGIFHold->addItem(qtTrId("IDD_HOLD_SECONDS").arg(QLocale().toString(hold)), hold);
}

void ExportOptions::fillLimits() {
    QComboBox &list = *ui_.comboFitUnder;
    list.addItem(qtTrId("IDD_NO_LIMIT"));
    for (const int limit : offeredLimits)
        list.addItem(qtTrId("IDD_LIMIT_MB").arg(QLocale().toString(limit)), limit);
    connect(&list, &QComboBox::editTextChanged, this, [this] {
        updateLimitHint();
        showEstimate();
        if (isUsable_)
            Q_EMIT edited(choicesAfterEdits());
    });
    connect(list.lineEdit(), &QLineEdit::editingFinished, this, &ExportOptions::finishLimit);
    updateLimitHint();
}

void ExportOptions::finishLimit() {
    if (const FitLimit typed = limit(); typed.bytes)
        ui_.comboFitUnder->setEditText(fitLimitText(*typed.bytes));
}

std::optional<std::uint64_t> ExportOptions::limitOfGIF() const {
    // The other encoder knows none.
    return ui_.comboFitUnder->isEnabled() ? limit().bytes : std::nullopt;
}

void ExportOptions::showEstimate() {
    const std::optional<std::uint64_t> most = limitOfGIF();
    const bool isOver = most && isUsable_ && estimate_.value_or(*most + 1) > *most;
    ui_.labelFitNote->setVisible(isOver);
    QString text;
    if (isOver)
        text = qtTrId("IDD_AT_MOST_SIZE").arg(fitLimitText(*most));
    else if (estimate_)
        text = (isExact_ ? qtTrId("IDD_GIF_SIZE") : qtTrId("IDD_ABOUT_SIZE"))
                   .arg(number_text::bytes(*estimate_));
    ui_.labelGIFEstimate->setText(text);
}
