// SPDX-License-Identifier: MIT
#include "ui/MenuStyle.h"

#include "ui/AppPalette.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

// How much of the text colour is in a line; the rest is the menu's own colour.
static constexpr double frameStrength = 0.4;
static constexpr double separatorStrength = 0.25;
static constexpr int separatorMargin = 6;

static QColor lineColor(const QPalette &palette, double strength)
{
    return AppPalette::mixedColor(palette.color(QPalette::WindowText), palette.color(QPalette::Window), strength);
}

static bool isSeparator(const QStyleOption *option)
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    return item && item->menuItemType == QStyleOptionMenuItem::Separator && item->text.isEmpty();
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

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_PanelMenu && element != PE_FrameMenu)
        return;
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(lineColor(option->palette, frameStrength));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    if (element != CE_MenuItem || !isSeparator(option)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    const QRect line(option->rect.left() + separatorMargin, option->rect.center().y(),
                     option->rect.width() - 2 * separatorMargin, 1);
    painter->fillRect(line, lineColor(option->palette, separatorStrength));
}
