// SPDX-License-Identifier: MIT
#pragma once

#include "ui/Legibility.h"

#include <QProxyStyle>

// Fusion with menus that stand out from what lies below them: its own frame and separators are shades of the window's
// colour, which are not seen on a dark one. The lines are made of the colours of the menu that is drawn, and so follow
// the palette. And with links that can be read: a palette that names no colour for them has a pure blue, dark or not;
// and with outlines in palettes of black and white alone. Its boxes to check and its arrows, which Fusion has in one
// size, grow with the desktop's text.
class MenuStyle : public QProxyStyle
{
    Q_OBJECT

public:
    // Takes the place of the application's style when that is Fusion; the menus of other styles are their own.
    static void install();

    // Around a tool button that has the keyboard; for those with a style sheet, which draw themselves.
    static void drawFocusRing(QPainter *painter, const QRect &button, const QPalette &palette);

    void polish(QPalette &palette) override;
    using QProxyStyle::polish;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    // The arrows of bars that are too narrow, which each bar asks for at once, are read when they are shown.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const override;

private:
    MenuStyle();

    Legibility m_legibility;
};
