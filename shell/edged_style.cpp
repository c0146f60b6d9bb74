// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/edged_style.h"

#include "shell/contrast.h"
#include "shell/palette_icon.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QStyleOption>

namespace {

constexpr double rounding = 2;     // points, as of Fusion's own edges
constexpr double edgeWidth = 1;    // points
constexpr double rimWidth = 2;     // points, of what has the focus
constexpr double selectedLine = 3; // points, above the selected tab
constexpr int loweredTab = 2;      // points
constexpr int belowTitle = 3;      // points between a group's title and its frame
constexpr double contrastOnDark = 4;
constexpr double step = 0.05;        // of the way from the window's colour to its text's
constexpr double disabledPart = 0.5; // of the way to the enabled control's edge
constexpr double tint = 0.35;        // of the accent in a checked tool

QColor mixed(const QColor &from, const QColor &to, double part) {
    const auto between = [part](float a, float b) {
        return a + (b - a) * static_cast<float>(part);
    };
    return QColor::fromRgbF(between(from.redF(), to.redF()), between(from.greenF(), to.greenF()),
                            between(from.blueF(), to.blueF()));
}

bool isDark(const QPalette &palette) {
    return luminance(palette.color(QPalette::Window)) <
           luminance(palette.color(QPalette::WindowText));
}

/// Against the window, and what fields are filled with. A thin light line on a dark ground has to
/// be stronger for that than a dark one on a light ground.
bool isSeen(const QColor &colour, const QPalette &palette) {
    const double least = isDark(palette) ? contrastOnDark : leastContrast;
    return contrast(colour, palette.color(QPalette::Active, QPalette::Window)) >= least &&
           contrast(colour, palette.color(QPalette::Active, QPalette::Base)) >= least;
}

QColor edgeOf(const QStyleOption &option) {
    const QPalette &palette = option.palette;
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    double part = step;
    while (part < 1 && !isSeen(mixed(window, text, part), palette))
        part += step;
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    return mixed(window, text, isEnabled ? part : part * disabledPart);
}

/// The palette's accent, or its text where that would not be seen.
QColor accentOf(const QPalette &palette) {
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    return contrast(accent, window) >= leastContrast
               ? accent
               : palette.color(QPalette::Active, QPalette::WindowText);
}

/// Along the inner side of `place`.
void drawWithin(QPainter &painter, const QRectF &place, const QColor &colour, double width,
                double radius = rounding) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    QPen pen(colour, width);
    pen.setJoinStyle(radius > 0 ? Qt::RoundJoin : Qt::MiterJoin);
    painter.setPen(pen);
    const double half = width / 2;
    painter.drawRoundedRect(place.adjusted(half, half, -half, -half), radius, radius);
    painter.restore();
}

void drawEdge(QPainter &painter, const QStyleOption &option, double radius = rounding) {
    drawWithin(painter, option.rect, edgeOf(option), edgeWidth, radius);
}

/// Fusion leaves room for the title above.
void drawGroupEdge(QPainter &painter, const QStyleOption &option, int indicatorHeight) {
    QStyleOption frame(option);
    frame.rect.adjust(0, std::max(indicatorHeight, option.fontMetrics.height()) + belowTitle, 0, 0);
    drawEdge(painter, frame);
}

/// Open below, where a selected tab goes over into its page; Fusion lowers the others.
void drawTabEdge(QPainter &painter, const QStyleOption &option) {
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    QStyleOption tab(option);
    tab.rect.adjust(0, isSelected ? 0 : loweredTab, 0, 2 * loweredTab);
    painter.save();
    painter.setClipRect(option.rect);
    drawEdge(painter, tab);
    if (isSelected)
        painter.fillRect(QRectF(option.rect.topLeft(), QSizeF(option.rect.width(), selectedLine)),
                         accentOf(option.palette));
    painter.restore();
}

bool hasKeyboardFocus(const QStyleOption &option) {
    return option.state.testFlag(QStyle::State_HasFocus) &&
           option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

void drawEdgeOrRim(QPainter &painter, const QStyleOption &option, bool hasFocus) {
    if (hasFocus)
        drawWithin(painter, option.rect, accentOf(option.palette), rimWidth);
    else
        drawEdge(painter, option);
}

void drawRadioEdge(QPainter &painter, const QStyleOption &option) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(edgeOf(option), edgeWidth));
    // As the style itself places the circle.
    const int width = option.rect.width();
    const double radius = (width + (width + 1) % 2) / 2.0 - 1;
    painter.drawEllipse(QPointF(option.rect.center() + QPoint(1, 1)), radius, radius);
    painter.restore();
}

void drawButtonEdge(QPainter &painter, const QStyleOption &option) {
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    const bool isFlat = button && button->features.testFlag(QStyleOptionButton::Flat);
    // Fusion gives the default one its accent.
    const bool isDefault = button && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
                           option.state.testFlag(QStyle::State_Enabled);
    if (hasKeyboardFocus(option))
        drawEdgeOrRim(painter, option, true);
    else if (!isFlat && !isDefault)
        drawEdge(painter, option);
}

void drawCheckedTool(QPainter &painter, const QStyleOption &option) {
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    QColor fill = option.palette.color(QPalette::Active, QPalette::Highlight);
    fill.setAlphaF(static_cast<float>(isEnabled ? tint : tint * disabledPart));
    painter.fillRect(option.rect.adjusted(1, 1, -1, -1), fill);
    drawEdge(painter, option);
}

} // namespace

EdgedStyle::EdgedStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void EdgedStyle::replaceFusion() {
    if (QApplication::style()->name().compare(QLatin1String("fusion"), Qt::CaseInsensitive) == 0)
        QApplication::setStyle(new EdgedStyle); // The application owns it.
}

void EdgedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
    case PE_IndicatorCheckBox:
        if (!hasKeyboardFocus(*option))
            drawEdge(*painter, *option, 0);
        break;
    case PE_IndicatorRadioButton:
        if (!hasKeyboardFocus(*option))
            drawRadioEdge(*painter, *option);
        break;
    case PE_FrameLineEdit:
        drawEdgeOrRim(*painter, *option, option->state.testFlag(State_HasFocus));
        break;
    case PE_PanelButtonCommand:
        drawButtonEdge(*painter, *option);
        break;
    case PE_PanelButtonTool:
        if (option->state.testFlag(State_On))
            drawCheckedTool(*painter, *option);
        else
            drawEdge(*painter, *option);
        break;
    case PE_Frame:
    case PE_FrameMenu:
        if (isDark(option->palette))
            drawEdge(*painter, *option, 0);
        break;
    case PE_FrameGroupBox:
        if (isDark(option->palette))
            drawGroupEdge(*painter, *option,
                          proxy()->pixelMetric(PM_IndicatorHeight, option, widget));
        break;
    default:
        break;
    }
}

void EdgedStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const {
    const auto *title = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (element == CE_MenuBarItem && title && widget && widget->hasFocus() &&
        title->state.testFlag(State_Selected)) {
        // The keys are in the bar though no menu is open: the title looks as if its own were.
        QStyleOptionMenuItem chosen = *title;
        chosen.state.setFlag(State_Sunken);
        QProxyStyle::drawControl(element, &chosen, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (!isDark(option->palette))
        return;
    switch (element) {
    case CE_MenuItem:
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
            item && item->menuItemType == QStyleOptionMenuItem::Separator) {
            const int middle = item->rect.center().y();
            painter->fillRect(item->rect.left(), middle, item->rect.width(), 1, edgeOf(*option));
        }
        break;
    case CE_TabBarTabShape:
        drawTabEdge(*painter, *option);
        break;
    case CE_ProgressBarGroove:
        drawEdge(*painter, *option);
        break;
    default:
        break;
    }
}

void EdgedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                    QPainter *painter, const QWidget *widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    switch (control) {
    case CC_ComboBox:
        if (const auto *list = qstyleoption_cast<const QStyleOptionComboBox *>(option);
            list && list->frame)
            drawEdgeOrRim(*painter, *option,
                          hasKeyboardFocus(*option) ||
                              (list->editable && option->state.testFlag(State_HasFocus)));
        break;
    case CC_SpinBox:
        if (const auto *field = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
            field && field->frame)
            drawEdgeOrRim(*painter, *option, option->state.testFlag(State_HasFocus));
        break;
    case CC_ToolButton:
        if (hasKeyboardFocus(*option))
            drawEdgeOrRim(*painter, *option, true);
        break;
    case CC_ScrollBar:
        if (isDark(option->palette)) {
            QStyleOption thumb(*option);
            thumb.rect = proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget);
            drawEdge(*painter, thumb);
        }
        break;
    default:
        break;
    }
}

QIcon EdgedStyle::standardIcon(StandardPixmap icon, const QStyleOption *option,
                               const QWidget *widget) const {
    const struct {
        StandardPixmap icon;
        QString themed, drawn;
    } signs[] = {
        {SP_MessageBoxWarning, QStringLiteral("dialog-warning"),
         QStringLiteral(":/icons/warning.svg")},
        {SP_MessageBoxInformation, QStringLiteral("dialog-information"),
         QStringLiteral(":/icons/information.svg")},
        {SP_MessageBoxQuestion, QStringLiteral("dialog-question"),
         QStringLiteral(":/icons/question.svg")},
    };
    for (const auto &sign : signs)
        if (sign.icon == icon && !QIcon::hasThemeIcon(sign.themed))
            return paletteIcon(sign.drawn);
    return QProxyStyle::standardIcon(icon, option, widget);
}

int EdgedStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *data) const {
    return hint == SH_EtchDisabledText ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
}

QSize EdgedStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                   const QSize &contents, const QWidget *widget) const {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    // Whether a text must be cut the toolkit finds out with the "&" in "(&R)", which makes no room.
    if (type == CT_MenuItem)
        size.rwidth() += option->fontMetrics.horizontalAdvance(QLatin1Char('&'));
    return size;
}

int EdgedStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                            const QWidget *widget) const {
    const int own = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_MenuPanelWidth ? std::max(own, 1) : own;
}
