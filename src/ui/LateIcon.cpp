// SPDX-License-Identifier: MIT
#include "ui/LateIcon.h"

#include <QPainter>
#include <QPixmap>

#include <utility>

LateIcon::LateIcon(Make make)
    : m_make(std::move(make))
{
}

QPixmap LateIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return m_make(size).pixmap(size, mode, state);
}

void LateIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const QSizeF pixels = QSizeF(rect.size()) * painter->device()->devicePixelRatioF();
    m_make(pixels.toSize()).paint(painter, rect, Qt::AlignCenter, mode, state);
}

QIconEngine *LateIcon::clone() const
{
    return new LateIcon(m_make);
}
