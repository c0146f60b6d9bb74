// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

/// The toolkit's Fusion style with edges that are seen. Fusion derives its outlines from the colour
/// of the window by making it darker: on dark windows little is left of them, on black ones
/// nothing, and those of check boxes and radio buttons are faint on light ones too.
///
/// Every control gets an edge in a colour between the palette's window and its text, with a
/// contrast of at least 3 to 1 with what is on either side of it. Frames around several controls,
/// menus and tabs get it on dark windows only. A checked tool has an edge and a tint of the accent,
/// what has the keyboard's focus a rim in the accent, and disabled menu items are drawn once
/// instead of embossed. Message boxes have drawn signs, sharp at any scale, unless the desktop's
/// icons have some. A menu has room for all of its texts.
class EdgedStyle : public QProxyStyle {
    Q_OBJECT

public:
    EdgedStyle();

    /// Takes it for the application where Fusion is its style. A style that a desktop or the user
    /// chose has edges of its own and stays.
    static void replaceFusion();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option,
                       const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
};
