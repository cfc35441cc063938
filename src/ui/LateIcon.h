// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QIconEngine>

#include <functional>

// The engine of an icon whose picture is read when it is shown, in the size in which it is shown. Most icons of a
// window are not seen before a menu opens, and reading them would hold up its first frame.
class LateIcon : public QIconEngine
{
public:
    // Gives an icon with a picture that has as many pixels as are wanted, if there is one.
    using Make = std::function<QIcon(const QSize &pixels)>;

    explicit LateIcon(Make make);

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine *clone() const override;

private:
    Make m_make;
};
