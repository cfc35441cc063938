// SPDX-License-Identifier: MIT
#include "ui/MenuStyle.h"

#include "ui/AppPalette.h"
#include "ui/LateIcon.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QStyleOption>

#include <algorithm>

// How much of the text colour is in a line; the rest is the menu's own colour.
static constexpr double frameStrength = 0.4;
static constexpr double separatorStrength = 0.25;
static constexpr int separatorMargin = 6;
// What WCAG 2.1 asks of text, and how many tones between a colour and the text's are tried for it.
static constexpr double textContrast = 4.5;
static constexpr int tones = 10;
// Of at most 21; no palette that is drawn to be looked at has so much.
static constexpr double starkContrast = 20;
static constexpr double starkOutlineStrength = 0.6;
static constexpr double disabledStrength = 0.5;
// Fusion's box to check, and the resolution that it draws for, in pixels and in dots per inch.
static constexpr int drawnIndicator = 14;
static constexpr int drawnResolution = 96;
static constexpr double inchesInMeter = 1 / 0.0254;

// Of what is disabled as well.
static QColor lineColor(const QPalette &palette, double strength)
{
    return AppPalette::mixedColor(palette.color(QPalette::Active, QPalette::WindowText),
                                  palette.color(QPalette::Active, QPalette::Window), strength);
}

static qreal leastContrast(const QColor &color, const QPalette &palette)
{
    return std::min(Legibility::contrast(color, palette.color(QPalette::Active, QPalette::Base)),
                    Legibility::contrast(color, palette.color(QPalette::Active, QPalette::Window)));
}

// The colour, or the next of its tones that can be read on the palette's grounds; the text's own when none can.
static QColor readable(const QColor &color, const QPalette &palette)
{
    const QColor &text = palette.color(QPalette::Active, QPalette::Text);
    for (int step = 0; step < tones; ++step) {
        const QColor tone = AppPalette::mixedColor(text, color, double(step) / tones);
        if (leastContrast(tone, palette) >= textContrast)
            return tone;
    }
    return text;
}

// Black on white or white on black, as desktops have it for those who need the strongest contrast. Fusion's outlines
// are shades of the window's colour, and black has no darker one.
static bool isStark(const QPalette &palette)
{
    return Legibility::contrast(lineColor(palette, 1), lineColor(palette, 0)) > starkContrast;
}

// Such palettes may have the text of what is disabled in the colour that it stands on.
static void showDisabled(QPalette &palette)
{
    const QColor grey = lineColor(palette, disabledStrength);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, grey);
}

static void drawOutline(const QStyleOption *option, QPainter *painter, double strength = starkOutlineStrength)
{
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(lineColor(option->palette, strength));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

static bool isSeparator(const QStyleOption *option)
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    return item && item->menuItemType == QStyleOptionMenuItem::Separator && item->text.isEmpty();
}

// What Fusion measures an arrow by is the resolution of the text. Where that is large on a usual screen, it is made to
// believe in a denser one; the text of these controls is not drawn with it.
static void enlarge(QStyleOption &option, qreal textScale)
{
    const int resolution = qRound(drawnResolution * textScale);
    if (textScale <= 1 || resolution <= option.fontMetrics.fontDpi())
        return;
    QImage page(1, 1, QImage::Format_Mono);
    page.setDotsPerMeterX(qRound(resolution * inchesInMeter));
    page.setDotsPerMeterY(qRound(resolution * inchesInMeter));
    option.fontMetrics = QFontMetrics(QApplication::font(), &page);
}

// Calls with a copy of the option that is enlarged when it is a spin box's or a combo box's, else with the option.
template<typename Option, typename Call>
static auto withLargeArrows(const Option *option, qreal textScale, Call call)
{
    if (const auto *box = qstyleoption_cast<const QStyleOptionSpinBox *>(option)) {
        QStyleOptionSpinBox large(*box);
        enlarge(large, textScale);
        return call(static_cast<const Option *>(&large));
    }
    if (const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option)) {
        QStyleOptionComboBox large(*box);
        enlarge(large, textScale);
        return call(static_cast<const Option *>(&large));
    }
    return call(option);
}

MenuStyle::MenuStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{
}

void MenuStyle::install()
{
    if (QApplication::style()->inherits("QFusionStyle"))
        QApplication::setStyle(new MenuStyle); // owned by the application
}

void MenuStyle::polish(QPalette &palette)
{
    QProxyStyle::polish(palette);
    if (isStark(palette))
        showDisabled(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto role : {QPalette::Link, QPalette::LinkVisited})
            palette.setColor(group, role, readable(palette.color(group, role), palette));
    }
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    const qreal textScale = m_legibility.textScale();
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return textScale > 1 ? std::max(usual, qRound(drawnIndicator * textScale)) : usual;
    default:
        return usual;
    }
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                  const QWidget *widget) const
{
    return withLargeArrows(option, m_legibility.textScale(), [&](const QStyleOption *large) {
        return QProxyStyle::sizeFromContents(type, large, contents, widget);
    });
}

QRect MenuStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                                const QWidget *widget) const
{
    return withLargeArrows(option, m_legibility.textScale(), [&](const QStyleOptionComplex *large) {
        return QProxyStyle::subControlRect(control, large, part, widget);
    });
}

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
    case PE_PanelMenu:
    case PE_FrameMenu:
        drawOutline(option, painter, frameStrength);
        break;
    case PE_IndicatorCheckBox:
    case PE_FrameLineEdit:
    case PE_PanelButtonCommand:
    case PE_FrameTabWidget:
    case PE_Frame:
        if (isStark(option->palette) && !(option->state & State_HasFocus))
            drawOutline(option, painter);
        break;
    default:
        break;
    }
}

void MenuStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                   const QWidget *widget) const
{
    withLargeArrows(option, m_legibility.textScale(), [&](const QStyleOptionComplex *large) {
        QProxyStyle::drawComplexControl(control, large, painter, widget);
    });
    const bool isField = control == CC_ComboBox || control == CC_SpinBox;
    if (isField && isStark(option->palette) && !(option->state & State_HasFocus))
        drawOutline(option, painter);
    // Fusion's own mark is a shade of the window's colour.
    if (control == CC_ToolButton && (option->state & State_HasFocus))
        drawFocusRing(painter, option->rect, option->palette);
}

void MenuStyle::drawFocusRing(QPainter *painter, const QRect &button, const QPalette &palette)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(palette.color(QPalette::Highlight), 2));
    painter->drawRoundedRect(QRectF(button).adjusted(1, 1, -1, -1), 4, 4);
    painter->restore();
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    if (element != CE_MenuItem || !isSeparator(option)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        const bool isChosenTab = element == CE_TabBarTabShape && (option->state & State_Selected);
        if ((isChosenTab || element == CE_ProgressBarGroove) && isStark(option->palette))
            drawOutline(option, painter);
        return;
    }
    const QRect line(option->rect.left() + separatorMargin, option->rect.center().y(),
                     option->rect.width() - 2 * separatorMargin, 1);
    painter->fillRect(line, lineColor(option->palette, separatorStrength));
}

QIcon MenuStyle::standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const
{
    if (icon != SP_ToolBarHorizontalExtensionButton && icon != SP_ToolBarVerticalExtensionButton)
        return QProxyStyle::standardIcon(icon, option, widget);
    const auto make = [icon, style = QPointer<QStyle>(baseStyle())](const QSize &) {
        return style ? style->standardIcon(icon) : QIcon();
    };
    return QIcon(new LateIcon(make)); // the icon owns it
}
