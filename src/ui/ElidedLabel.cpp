// SPDX-License-Identifier: MIT
#include "ui/ElidedLabel.h"

#include <QPainter>

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::setWords(const QString &words)
{
    setText(words);
    setToolTip(QLatin1String("<qt>") + words.toHtmlEscaped() + QLatin1String("</qt>")); // so that it is wrapped
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect area = contentsRect();
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(area, static_cast<int>(alignment()),
                     fontMetrics().elidedText(text(), Qt::ElideRight, area.width()));
}
