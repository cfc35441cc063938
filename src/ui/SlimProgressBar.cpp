// SPDX-License-Identifier: MIT
#include "ui/SlimProgressBar.h"

#include "ui/AppPalette.h"

#include <QPainter>

static constexpr int lineHeight = 6;
// How much of the text's colour is in the trough.
static constexpr double troughStrength = 0.25;

SlimProgressBar::SlimProgressBar(QWidget *parent)
    : QProgressBar(parent)
{
    setTextVisible(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize SlimProgressBar::sizeHint() const
{
    return {QProgressBar::sizeHint().width(), 2 * lineHeight};
}

void SlimProgressBar::paintEvent(QPaintEvent *)
{
    QRectF line(0, (height() - lineHeight) / 2.0, width(), lineHeight);
    const double part = maximum() > minimum() ? double(value() - minimum()) / (maximum() - minimum()) : 0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(AppPalette::mixedColor(palette().color(QPalette::WindowText), palette().color(QPalette::Window),
                                            troughStrength));
    painter.drawRoundedRect(line, lineHeight / 2.0, lineHeight / 2.0);
    line.setWidth(part * width());
    painter.setBrush(palette().highlight());
    painter.drawRoundedRect(line, lineHeight / 2.0, lineHeight / 2.0);
}
