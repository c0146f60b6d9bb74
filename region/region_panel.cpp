// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/region_panel.h"

#include "region/region_chooser.h"
#include "shell/mnemonics.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

#include <array>

namespace {

constexpr int largest = 65535; // pixels, of any side or place
constexpr int margin = 8;      // points, its edges among them
constexpr int between = 4;     // points
constexpr int apart = 10;      // points between a field and the next one's label
constexpr int besideText = 12; // points, of a button

const std::array usualSizes{QSize(320, 240), QSize(640, 480), QSize(800, 600), QSize(1280, 720),
                            QSize(1920, 1080)};

/// What the other entries of the list say instead of a size.
enum Special { Square = 1, LastUsed = 2 };

QString textOf(const QSize &size) {
    return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
}

QSpinBox *addField(QBoxLayout &row, QWidget *parent, const char *name, const QString &text) {
    auto *field = new QSpinBox(parent);
    field->setObjectName(QLatin1String(name));
    field->setRange(0, largest);
    field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field->setKeyboardTracking(false); // not while somebody is still typing
    field->setAccessibleName(text);
    if (row.count() > 0)
        row.addSpacing(apart - between);
    auto *label = new QLabel(text, parent);
    label->setObjectName(QStringLiteral("label") + QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(field);
    row.addWidget(label);
    row.addWidget(field);
    return field;
}

} // namespace

RegionPanel::RegionPanel(QWidget *parent, int width) : QFrame(parent) {
    setObjectName(QStringLiteral("regionPanel"));
    setAutoFillBackground(true); // the overlay's ground is transparent
    setCursor(Qt::ArrowCursor);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(between);
    auto *rows = new QBoxLayout(QBoxLayout::LeftToRight);
    auto *fields = new QHBoxLayout;
    auto *rest = new QHBoxLayout;
    for (QBoxLayout *row : {static_cast<QBoxLayout *>(fields), static_cast<QBoxLayout *>(rest)}) {
        row->setSpacing(between);
        rows->addLayout(row);
    }
    rows->setSpacing(between);
    whole->addLayout(rows);
    x_ = addField(*fields, this, "X", QStringLiteral("X"));
    y_ = addField(*fields, this, "Y", QStringLiteral("Y"));
    width_ = addField(*fields, this, "Width", qtTrId("IDD_WIDTH"));
    height_ = addField(*fields, this, "Height", qtTrId("IDD_HEIGHT"));
    presets_ = new QComboBox(this);
    presets_->setObjectName(QStringLiteral("Sizes"));
    presets_->setAccessibleName(qtTrId("IDD_REGION_SIZES"));
    presets_->setToolTip(qtTrId("IDD_REGION_SIZES"));
    presets_->setPlaceholderText(qtTrId("IDD_REGION_SIZES"));
    presets_->setFocusPolicy(Qt::TabFocus);
    presets_->view()->window()->installEventFilter(this);
    pick_ = new QPushButton(qtTrId("IDD_PICK_WINDOW"), this);
    pick_->setObjectName(QStringLiteral("PickWindow"));
    pick_->setToolTip(qtTrId("IDD_PICK_WINDOW_TIP"));
    pick_->setCheckable(true);
    use_ = new QPushButton(qtTrId("IDD_USE_REGION"), this);
    use_->setObjectName(QStringLiteral("UseRegion"));
    use_->setDefault(true);
    rest->addWidget(presets_);
    for (QPushButton *button : {pick_, use_}) {
        button->setFocusPolicy(Qt::TabFocus); // a click leaves the keys to the region
        button->setMinimumWidth(fontMetrics().horizontalAdvance(button->text()) + 2 * besideText);
        rest->addWidget(button);
    }
    hint_ = new QLabel(qtTrId("IDD_REGION_KEYS"), this);
    hint_->setTextFormat(Qt::PlainText);
    whole->addWidget(hint_);
    fillPresets();
    mnemonics::mark(*this);
    isNarrow_ = sizeHint().width() > width;
    if (isNarrow_) {
        rows->setDirection(QBoxLayout::TopToBottom);
        // Else the labels would grow away from their fields.
        fields->addStretch();
    }

    const auto moved = [this] {
        Q_EMIT wanted(QRect(x_->value(), y_->value(), width_->value(), height_->value()));
    };
    for (const QSpinBox *field : {x_, y_, width_, height_})
        connect(field, &QSpinBox::valueChanged, this, moved);
    connect(presets_, &QComboBox::activated, this, &RegionPanel::choosePreset);
    connect(pick_, &QPushButton::toggled, this, &RegionPanel::pickingWanted);
    connect(use_, &QPushButton::clicked, this, &RegionPanel::accepted);
}

void RegionPanel::fillPresets() {
    for (const QSize &size : usualSizes)
        presets_->addItem(textOf(size), size);
    presets_->addItem(qtTrId("IDD_REGION_SQUARE"), int{Square});
    if (RegionChooser::lastRegion())
        presets_->addItem(qtTrId("IDD_REGION_LAST"), int{LastUsed});
}

void RegionPanel::choosePreset(int index) {
    const QVariant chosen = presets_->itemData(index);
    if (chosen.toInt() == Square)
        Q_EMIT wantedSquare();
    else if (chosen.toInt() == LastUsed)
        Q_EMIT wantedLast();
    else
        Q_EMIT wantedSize(chosen.toSize());
}

void RegionPanel::showRegion(const QRect &recorded, const QString &problem) {
    const struct {
        QSpinBox *field;
        int value;
    } fields[] = {{x_, recorded.x()},
                  {y_, recorded.y()},
                  {width_, recorded.width()},
                  {height_, recorded.height()}};
    for (const auto &[field, value] : fields) {
        const QSignalBlocker quiet(field);
        field->setValue(value);
    }
    presets_->setCurrentIndex(presets_->findData(recorded.size()));
    hint_->setText(!problem.isEmpty()   ? problem
                   : pick_->isChecked() ? qtTrId("IDD_PICK_WINDOW_HINT")
                                        : qtTrId("IDD_REGION_KEYS"));
    // A third row would lie over the region's middle on a small screen.
    hint_->setVisible(!isNarrow_ || pick_->isChecked() || !problem.isEmpty());
    use_->setEnabled(problem.isEmpty());
    adjustSize();
}

void RegionPanel::setPicking(bool picking) {
    const QSignalBlocker quiet(pick_);
    pick_->setChecked(picking);
}

bool RegionPanel::isTyping() const {
    for (const QSpinBox *field : {x_, y_, width_, height_})
        if (field->hasFocus())
            return true;
    return false;
}

bool RegionPanel::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Hide)
        QMetaObject::invokeMethod(this, &RegionPanel::listClosed, Qt::QueuedConnection);
    return QFrame::eventFilter(watched, event);
}

QString RegionPanel::hint() const { return hint_->text(); }

void RegionPanel::mousePressEvent(QMouseEvent *event) { event->accept(); }

void RegionPanel::paintEvent(QPaintEvent *) {
    // It lies on any ground: one of the two edges is seen.
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), Qt::white);
    painter.fillRect(rect().adjusted(2, 2, -2, -2), palette().window());
}

void RegionPanel::hidePicking() {
    pick_->hide();
    adjustSize();
}
